// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What the user chose to see.

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>

#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>
#include <NxVBLModel/NxObserverConnector.h>

#include "NxResetScope_p.h"

using namespace NXMEDIALIBRARY;

namespace {

constexpr int MoreLines = 2;
constexpr int MoreLinesInList = 6;

} // namespace

void NxMediaItemModel::setSortBy(const NxMediaItemViewSort &sort)
{
    const NxResetScope scope(this);
    m_data->setSortBy(sort);
}

NxMediaItemViewSort NxMediaItemModel::getSortBy() const
{
    return m_data->getSortBy();
}

void NxMediaItemModel::setGroupBy(const NxMediaItemViewGroup &group)
{
    const NxResetScope scope(this);
    m_data->setGroupBy(group);
}

NxMediaItemViewGroup NxMediaItemModel::getGroupBy() const
{
    return m_data->getGroupBy();
}

void NxMediaItemModel::setFilter(const NxMediaItemViewFilter &filter)
{
    const NxResetScope scope(this);
    m_data->setFilter(filter);
}

NxMediaItemViewFilter NxMediaItemModel::getFilter() const
{
    return m_data->getFilter();
}

bool NxMediaItemModel::isGrouped() const
{
    return m_data->isGrouped();
}

void NxMediaItemModel::setSortEnable(bool enable)
{
    m_data->setSortEnable(enable);
}

bool NxMediaItemModel::isSortEnable() const
{
    return m_data->isSortEnable();
}

void NxMediaItemModel::setKeepFolder(bool keep)
{
    m_data->setKeepFolder(keep);
}

bool NxMediaItemModel::isKeepFolder() const
{
    return m_data->isKeepFolder();
}

void NxMediaItemModel::setFetchMoreEnable(bool enable)
{
    m_fetchMoreEnable = enable;
}

bool NxMediaItemModel::isFetchMoreEnable() const
{
    return m_fetchMoreEnable;
}

void NxMediaItemModel::setItemCountPerLine(int count, bool rescale)
{
    m_data->setItemCountPerLine(count, rescale);
}

int NxMediaItemModel::itemCountPerLine() const
{
    return m_data->itemCountPerLine();
}

int NxMediaItemModel::similarLines() const
{
    return m_data->similarLines();
}

void NxMediaItemModel::expandStateToggle(int row, bool expand)
{
    const NxResetScope scope(this);
    m_data->expandStateToggle(row, expand);
}

void NxMediaItemModel::viewMoreSimilarPackItem(bool large)
{
    m_data->addSimilarLines(large ? MoreLinesInList : MoreLines);
    updateSimilarMediaItems();
}

void NxMediaItemModel::updateSimilarMediaItems()
{
    const NxResetScope scope(this);
    m_data->reLoadMediaInSimilarSearch(folder());
}

void NxMediaItemModel::updateGroupByItemText()
{
    m_data->updateGroupByText();
}

void NxMediaItemModel::saveRelocateIndex(int row)
{
    m_data->saveRelocateIndex(row);
}

void NxMediaItemModel::removeAllRelocateIndex()
{
    m_data->removeAllRelocateIndex();
}

QList<int> NxMediaItemModel::getRelocateIndexs() const
{
    return m_data->getRelocateIndexs();
}
