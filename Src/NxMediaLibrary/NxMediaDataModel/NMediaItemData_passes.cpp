// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Making all rows: what passes the filters, in groups and in order.

#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>

#include <NxMediaLibrary/NxMediaDataModel/INxMediaItemFilter.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemSort.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <algorithm>
#include <array>
#include <typeinfo>

#include "NxMediaItemArrangement_p.h"
#include "NxMediaItemGrouping_p.h"

using namespace NXMEDIALIBRARY;
using Items = NMediaItemData::Items;

namespace {

// Folders of the user's own, and the favourites and downloads, can be grouped.
constexpr std::array<NXVBLMODEL::NxFolderKind, 6> GroupableSections = {
    NXVBLMODEL::fkProject,         NXVBLMODEL::fkShared,     NXVBLMODEL::fkUserSection,
    NXVBLMODEL::fkUserSectionMore, NXVBLMODEL::fkFavourites, NXVBLMODEL::fkDownloaded,
};

bool isAlwaysGrouped(const INxFolderMedia *folder, const NxMediaItemViewFilter &filter)
{
    return filter.searchMode == esmSimilar || (folder && folder->isKind(NXVBLMODEL::fkCustom));
}

} // namespace

// As the group engine groups, but what was found out about the items is kept.
void NMediaItemData::doGroupBy(Items &items, INxFolderMedia *folder, Items &groups)
{
    NxMediaItemViewGroup group = m_groupBy;
    group.folder = folder;
    m_rowsFollow = false;
    m_arrangement->setMedia(items, m_areChangesTold);
    m_arrangement->groupBy(group);
    const std::vector<Items> members = m_arrangement->members();
    Items made;
    for (size_t i = 0; i < m_arrangement->sections().size() && group.groupBy != gbNone; ++i) {
        INxGroupMedia *one = NxMediaItemGrouping::makeGroup(m_arrangement->sections()[i].key);
        one->setMembers(members[i]);
        made.append(one);
    }
    groups = made;
    m_arrangedGroups = made;
}

void NMediaItemData::doGroupBy()
{
    Items items = listing();
    regroup(items);
}

void NMediaItemData::regroup(Items &items)
{
    releaseGroupItems();
    if (!m_folder)
        return;
    doGroupBy(items, m_folder, m_groupItems);
    m_ownsGroups = true;
    sortGroupItems();
}

void NMediaItemData::sortGroupItems() {}

Items NMediaItemData::doFilter(const Items &items) const
{
    Items passing = items;
    for (const auto &filter : m_filters) {
        Items narrowed;
        narrowed.reserve(passing.size());
        filter->Filter(passing, narrowed);
        passing.swap(narrowed);
    }
    return passing;
}

Items NMediaItemData::getVisibleItems(const Items &items)
{
    if (!m_folder)
        return items;
    m_rowsFollow = false;
    m_arrangedGroups.clear();
    m_arrangement->setMedia(items, m_areChangesTold);
    m_arrangement->groupBy({});
    m_arrangement->show(doFilter(items), m_sortEnable ? effectiveSort() : NxMediaItemViewSort());
    m_isArranged = true;
    return m_arrangement->shown(0);
}

Items NMediaItemData::getVisibleItemsFromGroup()
{
    m_rowsFollow = false;
    const bool isArranged = !m_groupItems.isEmpty() && m_groupItems == m_arrangedGroups;
    if (!isArranged || !m_arrangement->hasGroups())
        return narrowGroupsByMembers();
    m_arrangement->show(doFilter(m_arrangement->media()),
                        m_sortEnable ? m_sortBy : NxMediaItemViewSort());
    Items rows;
    for (int section = 0; section < m_groupItems.size(); ++section) {
        INxGroupMedia *group = groupOf(section);
        const Items shown = m_arrangement->shown(section);
        group->setMembers(shown);
        if (shown.isEmpty())
            continue;
        rows.append(group);
        rows.append(shown);
    }
    m_isArranged = true;
    return rows;
}

// Groups about which nothing else is known: those of a derived record, or to which media came.
Items NMediaItemData::narrowGroupsByMembers()
{
    Items rows;
    for (INxAbstractMedia *media : qAsConst(m_groupItems)) {
        auto *group = dynamic_cast<INxGroupMedia *>(media);
        if (!group)
            continue;
        Items shown = doFilter(group->members());
        if (m_sortEnable)
            NxMediaItemSort::Sort(shown, m_sortBy, shown);
        group->setMembers(shown);
        if (shown.isEmpty())
            continue;
        rows.append(group);
        rows.append(shown);
    }
    return rows;
}

NxMediaItemViewSort NMediaItemData::effectiveSort() const
{
    if (m_folder->isNewnessOrdered())
        return {sbNew, soASC};
    const bool sortsByNew = m_sortBy.sortBy == sbNew;
    if (sortsByNew && m_folder->holdsMediaType(NXVBLMODEL::fkFavourites))
        return {sbFavouriteTime, m_sortBy.order};
    if (sortsByNew && m_folder->holdsMediaType(NXVBLMODEL::fkDownloaded))
        return {sbDownloadTime, m_sortBy.order};
    if (m_folder->holdsMediaType(NXVBLMODEL::fkRecent))
        return {sbDateCreated, soDESC};
    return m_sortBy;
}

bool NMediaItemData::isCanGroupBy() const
{
    if (isAlwaysGrouped(m_folder, m_filter))
        return true;
    return m_groupBy.groupBy != gbNone && canGroup(m_folder, m_filter);
}

bool NMediaItemData::canGroup(const INxFolderMedia *folder, const NxMediaItemViewFilter &filter)
{
    if (isAlwaysGrouped(folder, filter))
        return true;
    if (!folder || folder->isSearchResult() || !filter.keyword.isEmpty())
        return false;
    const INxFolderMedia *owner = folder->owner();
    return owner
           && std::any_of(
               GroupableSections.begin(), GroupableSections.end(),
               [owner](NXVBLMODEL::NxFolderKind kind) { return owner->holdsMediaType(kind); });
}

bool NMediaItemData::isGrouped() const
{
    return m_folder && isCanGroupBy() && m_groupBy.groupBy != gbNone;
}

Items NMediaItemData::listing() const
{
    return m_folder ? m_folder->items(true, true) : Items();
}

void NMediaItemData::layOut(Items items)
{
    m_rows.clear();
    m_isArranged = false;
    releaseExtraItems();
    const bool canGroup = isCanGroupBy();
    if (canGroup && m_groupBy.groupBy != gbNone) {
        regroup(items);
        m_rows = getVisibleItemsFromGroup();
    } else {
        if (!canGroup)
            releaseGroupItems();
        m_rows = getVisibleItems(items);
    }
    doExtraMedia();
    for (int section = 0; section < m_groupItems.size(); ++section) {
        if (INxGroupMedia *group = groupOf(section))
            group->setExpanded(true);
    }
    m_hasTiles = showsTiles();
    m_rowsFollow = m_isArranged && typeid(*this) == typeid(NMediaItemData);
}
