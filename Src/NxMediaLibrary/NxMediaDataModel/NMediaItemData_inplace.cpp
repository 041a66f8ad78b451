// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// One media more or less, at the cost of its own place: the rows of before and what the arrangement
// knows are changed together. Whatever cannot be done so safely is left to a whole pass.

#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>

#include <NxVBLModel/INxExtraMedia.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <algorithm>

#include "NxMediaItemArrangement_p.h"
#include "NxMediaItemGrouping_p.h"

using namespace NXMEDIALIBRARY;
using Items = NMediaItemData::Items;
using Section = NxMediaItemArrangement::Section;

namespace {

bool isListed(const INxFolderMedia *folder, INxAbstractMedia *item)
{
    return folder && folder->containsMedia(item, true);
}

} // namespace

/// The rows that stand before the media of a section: its header, its tile.
int NMediaItemData::headRows() const
{
    return (m_arrangedGroups.isEmpty() ? 0 : 1) + (m_hasTiles ? 1 : 0);
}

int NMediaItemData::rowsBefore(int section) const
{
    int rows = 0;
    for (int i = 0; i < section; ++i) {
        const Section &one = m_arrangement->sections()[size_t(i)];
        rows += one.hasRows ? headRows() + int(one.shown.size()) : 0;
    }
    return rows;
}

NxMediaItemViewSort NMediaItemData::usedSort() const
{
    if (!m_sortEnable)
        return {};
    return isGrouped() ? m_sortBy : effectiveSort();
}

bool NMediaItemData::canChangeInPlace() const
{
    return m_areChangesTold && m_rowsFollow && m_folder && m_hasTiles == showsTiles()
           && !m_arrangement->hasBareSection()
           && m_arrangement->isArrangedBy(isGrouped() ? m_groupBy : NxMediaItemViewGroup(),
                                          usedSort());
}

void NMediaItemData::append(INxAbstractMedia *item, INxFolderMedia *folder)
{
    Q_UNUSED(folder)
    if (appendInPlace(item))
        return;
    Items items = listing();
    if (item && !items.contains(item))
        items.append(item);
    layOut(items);
}

bool NMediaItemData::appendInPlace(INxAbstractMedia *item)
{
    if (!item || !canChangeInPlace() || isListed(m_folder, item))
        return false;
    if (!NxMediaItemOrdering(usedSort()).keeps(item) || !settle())
        return false;
    const quint32 number = m_arrangement->append(item);
    if (!doFilter({item}).isEmpty())
        show(number);
    return true;
}

bool NMediaItemData::lacks(const INxAbstractMedia *item) const
{
    return m_folder && m_arrangement->isKnown()
           && m_arrangement->numberOf(item) == NxMediaItemArrangement::NoNumber;
}

void NMediaItemData::appended(INxAbstractMedia *item)
{
    const Items &arranged = m_arrangement->media();
    const bool isLast = !arranged.isEmpty() && arranged.last() == item;
    if (!isLast && lacks(item))
        updateMediaItems();
    else if (!isLast || !m_folder)
        m_arrangement->setListingMoved();
    else if (m_folder->lastMedia(true) != item)
        m_arrangement->setLastMoved();
}

void NMediaItemData::listingChanged()
{
    m_arrangement->setListingMoved();
}

// Before one more finds its place, what stands at a wrong one goes to the right one: media whose
// facts changed, and the one appended last if it is listed elsewhere. Where equal media are listed
// the folder knows only after the event: one that an undo brought back, or in a folder further in.
bool NMediaItemData::settle()
{
    quint32 listed = NxMediaItemArrangement::NoNumber;
    if (!findLast(&listed))
        return false;
    std::vector<quint32> wrong;
    if (!findChanged(&wrong))
        return false;
    const quint32 last = quint32(m_arrangement->media().size()) - 1;
    const bool isMoved = listed != NxMediaItemArrangement::NoNumber && listed != last;
    if (isMoved && wrong.empty() && !m_arrangement->hasEqualNeighbour(last)) {
        m_arrangement->renumberLast(listed); // Its number decides nothing.
        m_arrangement->setSettled();
        return !m_arrangement->hasBareSection();
    }
    if (isMoved && std::find(wrong.begin(), wrong.end(), last) == wrong.end())
        wrong.push_back(last);
    for (const quint32 number : wrong) // All of them: no list with wrong places can be searched.
        hide(m_arrangement->placeOf(number));
    if (isMoved)
        m_arrangement->renumberLast(listed);
    for (quint32 number : wrong) {
        if (isMoved)
            number = number == last ? listed : number >= listed ? number + 1 : number;
        m_arrangement->reorder(number);
        if (!doFilter({m_arrangement->media()[int(number)]}).isEmpty())
            show(number);
    }
    m_arrangement->setSettled();
    return !m_arrangement->hasBareSection();
}

/// The number that the media appended last has in the folder's listing; NoNumber when it has its
/// place. False when the listings differ in more.
bool NMediaItemData::findLast(quint32 *number)
{
    if (m_arrangement->isListingMoved()) {
        *number = m_arrangement->listedNumberOfLast(listing());
        return *number != NxMediaItemArrangement::NoNumber;
    }
    if (!m_arrangement->isLastMoved())
        return true;
    m_arrangement->closeHoles();
    const Items &arranged = m_arrangement->media();
    if (arranged.isEmpty() || !m_folder)
        return false;
    const int place = m_folder->listedPlace(arranged.last(), true);
    *number = quint32(place);
    return place >= 0 && place < arranged.size();
}

/// The numbers of the media that changed; false when that is better left to a whole pass.
bool NMediaItemData::findChanged(std::vector<quint32> *numbers) const
{
    const QVector<INxAbstractMedia *> &changes = m_arrangement->changes();
    if (changes.size() > NxMediaItemArrangement::ManyChanges)
        return false;
    const NxMediaItemOrdering ordering(usedSort());
    for (INxAbstractMedia *media : changes) {
        const quint32 number = m_arrangement->numberOf(media);
        if (number == NxMediaItemArrangement::NoNumber)
            continue;
        if (!ordering.keeps(media))
            return false;
        numbers->push_back(number);
    }
    return true;
}

void NMediaItemData::show(quint32 number)
{
    INxAbstractMedia *media = m_arrangement->media()[int(number)];
    QString missingKey;
    int section = m_arrangement->findSection(media, &missingKey);
    if (section < 0) {
        section = m_arrangement->insertSection(missingKey);
        m_groupItems.insert(section, NxMediaItemGrouping::makeGroup(missingKey));
        m_arrangedGroups.insert(section, m_groupItems[section]);
    }
    const int row = rowsBefore(section);
    if (!m_arrangement->sections()[size_t(section)].hasRows)
        insertHead(section, row);
    const int at = m_arrangement->show(number, section);
    m_rows.insert(row + headRows() + at, media);
    if (INxGroupMedia *group = groupOf(section))
        group->insertMember((m_hasTiles ? 1 : 0) + at, media);
}

void NMediaItemData::insertHead(int section, int row)
{
    INxGroupMedia *group = groupOf(section);
    if (m_hasTiles) {
        INxExtraMedia *tile = addTile(NXVBLMODEL::mtImportTile);
        m_rows.insert(row, tile);
        if (group)
            group->addMember(tile);
    }
    if (group)
        m_rows.insert(row, group);
}

void NMediaItemData::hide(const NxMediaItemPlace &place)
{
    if (place.section < 0)
        return;
    m_rows.removeAt(rowsBefore(place.section) + headRows() + place.at);
    if (INxGroupMedia *group = groupOf(place.section))
        group->removeMemberAt((m_hasTiles ? 1 : 0) + place.at);
    m_arrangement->hide(place);
}

void NMediaItemData::remove(INxAbstractMedia *item)
{
    const QList<int> standing = rows(item);
    if (m_extraItems.contains(item) || !m_rowsFollow || standing.size() > 1) {
        removeEverywhere(item);
        return;
    }
    if (!standing.isEmpty()) {
        removeShown(standing.first());
        return;
    }
    const quint32 number = m_arrangement->numberOf(item);
    if (number != NxMediaItemArrangement::NoNumber)
        m_arrangement->remove(number);
}

void NMediaItemData::removeShown(int row)
{
    int section = 0;
    int before = 0;
    for (int rows = 0;; before += rows, ++section) {
        const Section &one = m_arrangement->sections()[size_t(section)];
        rows = one.hasRows ? headRows() + int(one.shown.size()) : 0;
        if (row < before + rows)
            break;
    }
    const int at = row - before - headRows();
    if (at < 0)
        return; // Headers are nobody's media.
    const quint32 number = m_arrangement->sections()[size_t(section)].shown[size_t(at)];
    hide({section, at});
    m_arrangement->remove(number);
}

void NMediaItemData::removeEverywhere(INxAbstractMedia *item)
{
    m_rowsFollow = false;
    m_arrangement->clear();
    m_rows.removeAll(item);
    m_groupItems.removeAll(item);
    for (int section = 0; section < m_groupItems.size(); ++section) {
        if (INxGroupMedia *group = groupOf(section))
            group->removeMember(item);
    }
    if (m_extraItems.removeAll(item) > 0 && m_ownsExtras)
        INxExtraMedia::releaseExtraMedia(dynamic_cast<INxExtraMedia *>(item));
}

void NMediaItemData::mediaChanged(INxAbstractMedia *item)
{
    m_arrangement->noteChange(item);
}
