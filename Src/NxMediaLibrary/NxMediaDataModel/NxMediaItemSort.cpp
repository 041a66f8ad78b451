// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemSort.h>

#include "NxMediaItemOrdering_p.h"

using namespace NXMEDIALIBRARY;

void NxMediaItemSort::Sort(const QList<INxAbstractMedia *> &items, const NxMediaItemViewSort &sort,
                           QList<INxAbstractMedia *> &out)
{
    const NxMediaItemOrdering ordering(sort);
    if (!ordering.isSorting()) {
        out = items;
        return;
    }
    QList<INxAbstractMedia *> sorted;
    const std::vector<quint32> places = ordering.places(items);
    sorted.reserve(int(places.size()));
    for (const quint32 place : places)
        sorted.append(items[int(place)]);
    out = sorted;
}

void NxMediaItemSort::DoSortByName(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbName, order}, items);
}

void NxMediaItemSort::DoSortByDuration(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbDuration, order}, items);
}

void NxMediaItemSort::DoSortByDateCreated(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbDateCreated, order}, items);
}

void NxMediaItemSort::DoSortByUsed(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbUsed, order}, items);
}

void NxMediaItemSort::DoSortByFrameRate(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbFrameRate, order}, items);
}

void NxMediaItemSort::DoSortByInPoint(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbInPoint, order}, items);
}

void NxMediaItemSort::DoSortByOutPoint(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbOutPoint, order}, items);
}

void NxMediaItemSort::DoSortByFavourite(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbFavourite, order}, items);
}

void NxMediaItemSort::DoSortByFavouriteTime(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbFavouriteTime, order}, items);
}

void NxMediaItemSort::DoSortByDownloadTime(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbDownloadTime, order}, items);
}

void NxMediaItemSort::DoSortByResolution(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbResolution, order}, items);
}

void NxMediaItemSort::DoSortByAudioInfo(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbAudioInfo, order}, items);
}

void NxMediaItemSort::DoSortByType(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbType, order}, items);
}

void NxMediaItemSort::DoSortByNew(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbNew, order}, items);
}

void NxMediaItemSort::DoSortByCategory(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbCategory, order}, items);
}

void NxMediaItemSort::DoSortByListorder(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbListorder, order}, items);
}

void NxMediaItemSort::DoSortBySale(QList<INxAbstractMedia *> &items, Order order)
{
    Sort(items, {sbSale, order}, items);
}
