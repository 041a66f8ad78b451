// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>

#include <NxMediaLibrary/NxMediaDataModel/INxMediaItemFilter.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemFilterFactory.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemSort.h>
#include <NxVBLModel/INxExtraMedia.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <QSet>

#include <algorithm>
#include <array>
#include <typeinfo>

#include "NxMediaItemArrangement_p.h"
#include "NxMediaItemGrouping_p.h"

using namespace NXMEDIALIBRARY;

namespace {

using Items = NMediaItemData::Items;

constexpr int SimilarLines = 2;
constexpr int SimilarLinesInList = 6;

// Folders of the user's own, and the favourites and downloads, can be grouped.
constexpr std::array<NXVBLMODEL::NxFolderKind, 6> GroupableSections = {
    NXVBLMODEL::fkProject,         NXVBLMODEL::fkShared,     NXVBLMODEL::fkUserSection,
    NXVBLMODEL::fkUserSectionMore, NXVBLMODEL::fkFavourites, NXVBLMODEL::fkDownloaded,
};

} // namespace

NMediaItemData::NMediaItemData(NXVBLMODEL::NxMediaCategoryType categoryType)
    : m_similarLines(SimilarLines),
      m_categoryType(categoryType),
      m_arrangement(std::make_unique<NxMediaItemArrangement>())
{
    createFilter();
}

NMediaItemData::NMediaItemData(const NMediaItemData &other)
    : m_categoryType(other.m_categoryType),
      m_arrangement(std::make_unique<NxMediaItemArrangement>())
{
    copySettings(other);
    createFilter();
}

NMediaItemData &NMediaItemData::operator=(const NMediaItemData &other)
{
    if (this == &other)
        return *this;
    releaseExtraItems();
    releaseGroupItems();
    m_arrangement->clear();
    m_rowsFollow = false;
    m_categoryType = other.m_categoryType;
    copySettings(other);
    createFilter();
    return *this;
}

void NMediaItemData::copySettings(const NMediaItemData &other)
{
    m_folder = other.m_folder;
    m_rows = other.m_rows;
    m_groupItems = other.m_groupItems;
    m_extraItems = other.m_extraItems;
    m_groupBy = other.m_groupBy;
    m_sortBy = other.m_sortBy;
    m_filter = other.m_filter;
    m_keepFolder = other.m_keepFolder;
    m_sortEnable = other.m_sortEnable;
    m_itemCountPerLine = other.m_itemCountPerLine;
    m_similarLines = other.m_similarLines;
    m_relocateIndexes = other.m_relocateIndexes;
    m_ownsGroups = false;
    m_ownsExtras = false;
}

NMediaItemData::~NMediaItemData()
{
    releaseExtraItems();
    releaseGroupItems();
}

void NMediaItemData::createFilter()
{
    m_filters.clear();
    switch (m_categoryType) {
    case NXVBLMODEL::mctStockMedia:
        m_filters.push_back(NxMediaItemFilterFactory::createStockMediaItemFilter());
        break;
    case NXVBLMODEL::mctVCGStock:
        m_filters.push_back(NxMediaItemFilterFactory::createVCGMediaItemFilter());
        break;
    default:
        m_filters.push_back(NxMediaItemFilterFactory::createMediaItemFilter());
    }
    m_filters.back()->SetFilterParam(m_filter);
}

void NMediaItemData::setGroupBy(const NxMediaItemViewGroup &group)
{
    if (!m_folder || !isCanGroupBy() || m_groupBy.groupBy != gbNone) {
        m_rows.clear();
        releaseGroupItems();
    }
    m_groupBy = group;
    if (m_folder)
        load(m_folder);
}

NxMediaItemViewGroup NMediaItemData::getGroupBy() const
{
    return m_groupBy;
}

void NMediaItemData::setFilter(const NxMediaItemViewFilter &filter)
{
    const bool isOtherAnchor = m_filter.searchMode == esmSimilar && filter.searchMode == esmSimilar
                               && m_filter.similarResourceId != filter.similarResourceId;
    m_filter = filter;
    m_rows.clear();
    m_rowsFollow = false;
    m_similarLines = m_filter.listView ? SimilarLinesInList : SimilarLines;
    for (const auto &one : m_filters)
        one->SetFilterParam(m_filter);
    if (m_filter.searchMode != esmSimilar)
        updateMediaItems();
    else if (isOtherAnchor)
        reLoadMediaInSimilarSearch(m_folder);
}

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
    if (m_groupItems.isEmpty() || m_groupItems != m_arrangedGroups)
        return narrowGroupsOfOthers();
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

// The groups of a derived record, about which nothing else is known.
Items NMediaItemData::narrowGroupsOfOthers()
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
    if (m_filter.searchMode == esmSimilar || (m_folder && m_folder->isKind(NXVBLMODEL::fkCustom)))
        return true;
    if (!m_folder || m_folder->isSearchResult() || !m_filter.keyword.isEmpty())
        return false;
    const INxFolderMedia *owner = m_folder->owner();
    const bool isGroupable = owner
                             && std::any_of(GroupableSections.begin(), GroupableSections.end(),
                                            [owner](NXVBLMODEL::NxFolderKind kind) {
                                                return owner->holdsMediaType(kind);
                                            });
    return isGroupable && m_groupBy.groupBy != gbNone;
}

bool NMediaItemData::isGrouped() const
{
    return m_folder && isCanGroupBy() && m_groupBy.groupBy != gbNone;
}

Items NMediaItemData::listing() const
{
    return m_folder ? m_folder->items(true, true) : Items();
}

void NMediaItemData::load(const INxFolderMedia *folder)
{
    m_folder = const_cast<INxFolderMedia *>(folder);
    layOut(listing());
}

void NMediaItemData::updateMediaItems()
{
    layOut(listing());
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

void NMediaItemData::clear()
{
    m_rows.clear();
    m_rowsFollow = false;
    m_arrangement->clear();
    releaseExtraItems();
    releaseGroupItems();
}

INxFolderMedia *NMediaItemData::folder() const
{
    return m_folder;
}

const Items &NMediaItemData::getItems() const
{
    static const Items none;
    return m_folder ? m_rows : none;
}

INxAbstractMedia *NMediaItemData::mediaItem(int row) const
{
    return getItems().value(row, nullptr);
}

QList<int> NMediaItemData::rows(const INxAbstractMedia *item) const
{
    QList<int> found;
    const Items &items = getItems();
    for (auto row = items.begin();; ++row) {
        row = std::find(row, items.end(), item);
        if (row == items.end())
            return found;
        found.append(int(row - items.begin()));
    }
}

void NMediaItemData::setSortBy(const NxMediaItemViewSort &sort)
{
    m_sortBy = sort;
    updateMediaItems();
}

void NMediaItemData::setChangesTold(bool told)
{
    if (told == m_areChangesTold)
        return;
    m_areChangesTold = told;
    m_rowsFollow = false;
    m_arrangement->clear();
    m_arrangedGroups.clear();
}

void NMediaItemData::releaseCaches()
{
    m_arrangement->release();
    m_rowsFollow = m_rowsFollow && m_arrangement->isKnown();
}
