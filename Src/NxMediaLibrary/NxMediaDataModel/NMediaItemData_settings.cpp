// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>

using namespace NXMEDIALIBRARY;

NxMediaItemViewSort NMediaItemData::getSortBy() const
{
    return m_sortBy;
}

const NxMediaItemViewFilter &NMediaItemData::getFilter() const
{
    return m_filter;
}

void NMediaItemData::setSortEnable(bool enable)
{
    m_sortEnable = enable;
}

bool NMediaItemData::isSortEnable() const
{
    return m_sortEnable;
}

void NMediaItemData::setKeepFolder(bool keep)
{
    m_keepFolder = keep;
}

bool NMediaItemData::isKeepFolder() const
{
    return m_keepFolder;
}

void NMediaItemData::setItemCountPerLine(int count, bool rescale)
{
    if (rescale && count != 0)
        m_similarLines = m_itemCountPerLine * m_similarLines / count;
    m_itemCountPerLine = count;
}

int NMediaItemData::itemCountPerLine() const
{
    return m_itemCountPerLine;
}

int NMediaItemData::similarLines() const
{
    return m_similarLines;
}

void NMediaItemData::addSimilarLines(int lines)
{
    m_similarLines += lines;
}

void NMediaItemData::saveRelocateIndex(int row)
{
    m_relocateIndexes.append(row);
}

void NMediaItemData::removeAllRelocateIndex()
{
    m_relocateIndexes.clear();
}

const QList<int> &NMediaItemData::getRelocateIndexs() const
{
    return m_relocateIndexes;
}
