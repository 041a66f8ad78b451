// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// The rows that are no media of the folder: group headers and tiles.

#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemGroup.h>
#include <NxVBLModel/INxExtraMedia.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <QSet>

#include <algorithm>

using namespace NXMEDIALIBRARY;
using Items = NMediaItemData::Items;

bool NMediaItemData::showsTiles() const
{
    const INxFolderMedia *owner = m_folder ? m_folder->owner() : nullptr;
    return owner
           && (owner->holdsMediaType(NXVBLMODEL::fkProject)
               || owner->holdsMediaType(NXVBLMODEL::fkShared));
}

void NMediaItemData::doExtraMedia()
{
    for (INxAbstractMedia *tile : qAsConst(m_extraItems)) {
        m_rows.removeAll(tile);
        for (int section = 0; section < m_groupItems.size(); ++section) {
            if (INxGroupMedia *group = groupOf(section))
                group->removeMember(tile);
        }
    }
    releaseExtraItems();
    if (!showsTiles())
        return;
    if (!isGrouped()) {
        if (!m_rows.isEmpty())
            m_rows.prepend(addTile(NXVBLMODEL::mtImportTile));
        return;
    }
    Items rows;
    rows.reserve(m_rows.size() + m_groupItems.size());
    for (INxAbstractMedia *media : qAsConst(m_rows)) {
        rows.append(media);
        auto *group = media->mediaType() == NXVBLMODEL::mtGroup
                          ? dynamic_cast<INxGroupMedia *>(media)
                          : nullptr;
        if (!group)
            continue;
        rows.append(addTile(NXVBLMODEL::mtImportTile));
        group->addMember(rows.last());
    }
    m_rows.swap(rows);
}

INxExtraMedia *NMediaItemData::addTile(NXVBLMODEL::NxMediaType type)
{
    INxExtraMedia *tile = createExtraMedia(type, titleOf(type));
    m_extraItems.append(tile);
    return tile;
}

QString NMediaItemData::titleOf(NXVBLMODEL::NxMediaType tile)
{
    return tile == NXVBLMODEL::mtViewMoreTile ? tr("View More") : tr("Import Media");
}

INxExtraMedia *NMediaItemData::createExtraMedia(NXVBLMODEL::NxMediaType type,
                                                const QString &title) const
{
    INxExtraMedia *tile = INxExtraMedia::createExtraMedia(type);
    tile->setTitle(title);
    return tile;
}

void NMediaItemData::releaseExtraItems()
{
    if (m_ownsExtras) {
        for (INxAbstractMedia *tile : qAsConst(m_extraItems))
            INxExtraMedia::releaseExtraMedia(dynamic_cast<INxExtraMedia *>(tile));
    }
    m_extraItems.clear();
    m_ownsExtras = true;
}

void NMediaItemData::releaseGroupItems()
{
    if (m_ownsGroups) {
        for (INxAbstractMedia *group : qAsConst(m_groupItems))
            INxGroupMedia::releaseGroup(dynamic_cast<INxGroupMedia *>(group));
    }
    m_groupItems.clear();
    m_arrangedGroups.clear();
    m_ownsGroups = true;
}

INxGroupMedia *NMediaItemData::groupOf(int section) const
{
    return dynamic_cast<INxGroupMedia *>(m_groupItems.value(section, nullptr));
}

void NMediaItemData::expandStateToggle(int row, bool expand)
{
    auto *group = dynamic_cast<INxGroupMedia *>(mediaItem(row));
    if (!group)
        return;
    const Items members = group->members();
    group->setExpanded(expand);
    const auto behind = m_rows.begin() + row + 1;
    const bool isWhole = m_rowsFollow && m_rows.end() - behind >= members.size()
                         && std::equal(members.begin(), members.end(), behind);
    if (expand) {
        m_rows = m_rows.mid(0, row + 1) + members + m_rows.mid(row + 1);
    } else if (isWhole) {
        m_rows.erase(behind, behind + members.size());
    } else {
        const QSet<INxAbstractMedia *> leaving(members.begin(), members.end());
        m_rows.erase(
            std::remove_if(m_rows.begin(), m_rows.end(),
                           [&leaving](INxAbstractMedia *media) { return leaving.contains(media); }),
            m_rows.end());
    }
    m_rowsFollow = false;
}

void NMediaItemData::reLoadMediaInSimilarSearch(INxFolderMedia *folder)
{
    clear();
    if (!folder)
        return;
    const Items series = folder->similarPackItems();
    const QSet<INxAbstractMedia *> inSeries(series.begin(), series.end());
    Items others = doFilter(folder->items(true, true));
    others.erase(
        std::remove_if(others.begin(), others.end(),
                       [&inSeries](INxAbstractMedia *media) { return inSeries.contains(media); }),
        others.end());
    appendPack(doFilter(series));
    appendPack(others);
}

void NMediaItemData::appendPack(const Items &pack)
{
    const qint64 limit =
        m_itemCountPerLine > 0 ? qint64(m_itemCountPerLine) * m_similarLines : qint64(pack.size());
    m_rows.append(pack.mid(0, int(qBound<qint64>(0, limit, pack.size()))));
    if (limit < pack.size())
        m_rows.append(addTile(NXVBLMODEL::mtViewMoreTile));
}

void NMediaItemData::updateGroupByText()
{
    for (int section = 0; section < m_groupItems.size(); ++section) {
        if (INxGroupMedia *group = groupOf(section))
            group->setTitle(NxMediaItemGroup::getGroupTitle(group->groupKey()));
    }
}

void NMediaItemData::updateExtraText()
{
    for (INxAbstractMedia *media : qAsConst(m_extraItems)) {
        if (auto *tile = dynamic_cast<INxExtraMedia *>(media))
            tile->setTitle(titleOf(tile->mediaType()));
    }
}

QVector<int> NMediaItemData::wholeLineRows() const
{
    QSet<const INxAbstractMedia *> heads;
    if (isGrouped())
        heads = {m_groupItems.begin(), m_groupItems.end()};
    for (const INxAbstractMedia *tile : qAsConst(m_extraItems)) {
        if (tile->mediaType() == NXVBLMODEL::mtViewMoreTile)
            heads.insert(tile);
    }
    QVector<int> found;
    const Items &items = getItems();
    for (int row = 0; !heads.isEmpty() && row < items.size();) {
        const bool isHead = heads.contains(items.at(row));
        if (isHead)
            found.append(row);
        // The next head is expected right behind what this one shows.
        const auto *group = isHead ? dynamic_cast<const INxGroupMedia *>(items.at(row)) : nullptr;
        const int behind = row + 1 + (group && group->isExpanded() ? group->members().size() : 0);
        const bool isThere =
            behind == items.size() || (behind < items.size() && heads.contains(items.at(behind)));
        row = isThere ? behind : row + 1;
    }
    return found;
}

// By what stands in the rows: a similar search shows none of the groups that are chosen.
int NMediaItemData::listedCount() const
{
    const Items &items = getItems();
    int inGroups = 0;
    bool hasGroups = false;
    for (const int row : wholeLineRows()) {
        if (const auto *group = dynamic_cast<const INxGroupMedia *>(items.at(row))) {
            inGroups += group->itemCount();
            hasGroups = true;
        }
    }
    if (hasGroups)
        return inGroups;
    return items.isEmpty() ? 0 : items.size() - m_extraItems.size();
}
