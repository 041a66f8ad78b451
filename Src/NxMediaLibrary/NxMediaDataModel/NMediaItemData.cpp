// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>

#include <NxMediaLibrary/NxMediaDataModel/INxMediaItemFilter.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemFilterFactory.h>

#include <algorithm>

#include "NxMediaItemArrangement_p.h"

using namespace NXMEDIALIBRARY;

namespace {

using Items = NMediaItemData::Items;

constexpr int SimilarLines = 2;
constexpr int SimilarLinesInList = 6;

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

void NMediaItemData::load(const INxFolderMedia *folder)
{
    m_folder = const_cast<INxFolderMedia *>(folder);
    layOut(listing());
}

void NMediaItemData::updateMediaItems()
{
    layOut(listing());
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
