// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemSort.h>

#include <NxMediaLibrary/NxMediaDataModel/NxNaturalOrder.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxVBLModel/INxAbstractMediaItem.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

#include "NxMediaItemFacts_p.h"

using NxMediaItemFacts::itemOf;

namespace {

using Items = QList<INxAbstractMedia *>;
using Order = NxMediaItemSort::Order;

constexpr quint64 SignBit = quint64(1) << 63;

struct Parts
{
    std::vector<INxAbstractMedia *> folders;
    std::vector<INxAbstractMedia *> others;
};

Parts split(const Items &items)
{
    Parts parts;
    parts.others.reserve(size_t(items.size()));
    for (INxAbstractMedia *media : items) {
        const NXVBLMODEL::NxMediaType type = media ? media->mediaType() : NXVBLMODEL::mtNone;
        if (type == NXVBLMODEL::mtNone)
            continue;
        (type == NXVBLMODEL::mtFolder ? parts.folders : parts.others).push_back(media);
    }
    return parts;
}

void join(const Parts &parts, Items &items)
{
    items.clear();
    items.reserve(int(parts.folders.size() + parts.others.size()));
    for (INxAbstractMedia *folder : parts.folders)
        items.append(folder);
    for (INxAbstractMedia *other : parts.others)
        items.append(other);
}

bool isDescending(Order order)
{
    return order != NXMEDIALIBRARY::soASC;
}

// A fact as a number whose order is the order of the facts.
using RankOf = quint64 (*)(const INxAbstractMedia *media);

struct Ranked
{
    quint64 rank;
    quint32 index;

    friend bool operator<(const Ranked &a, const Ranked &b)
    {
        return a.rank != b.rank ? a.rank < b.rank : a.index < b.index;
    }
};

void orderByRank(std::vector<INxAbstractMedia *> &media, Order order, RankOf rankOf)
{
    const quint64 flip = isDescending(order) ? ~quint64(0) : 0;
    std::vector<Ranked> ranked;
    ranked.reserve(media.size());
    for (const INxAbstractMedia *one : media)
        ranked.push_back({rankOf(one) ^ flip, quint32(ranked.size())});
    if (std::is_sorted(ranked.begin(), ranked.end()))
        return;
    std::sort(ranked.begin(), ranked.end());

    const std::vector<INxAbstractMedia *> before = media;
    for (size_t i = 0; i < ranked.size(); ++i)
        media[i] = before[ranked[i].index];
}

using TextOf = QString (*)(const INxAbstractMedia *media);

void orderByText(std::vector<INxAbstractMedia *> &media, Order order, TextOf textOf)
{
    std::vector<QString> texts;
    texts.reserve(media.size());
    for (const INxAbstractMedia *one : media)
        texts.push_back(textOf(one));

    const std::vector<quint32> places = NxNaturalOrder::sorted(texts, isDescending(order));
    const std::vector<INxAbstractMedia *> before = media;
    for (size_t i = 0; i < places.size(); ++i)
        media[i] = before[places[i]];
}

void sortByRank(Items &items, Order order, RankOf rankOf)
{
    Parts parts = split(items);
    orderByRank(parts.others, order, rankOf);
    join(parts, items);
}

void sortByText(Items &items, Order order, TextOf textOf)
{
    Parts parts = split(items);
    orderByText(parts.others, order, textOf);
    join(parts, items);
}

quint64 rankOfNumber(qint64 number)
{
    return quint64(number) ^ SignBit;
}

quint64 rankOfDouble(double number)
{
    const double plain = number + 0.0; // A negative zero is no smaller than zero.
    quint64 bits = 0;
    static_assert(sizeof(bits) == sizeof(plain), "a double has 64 bits");
    std::memcpy(&bits, &plain, sizeof(bits));
    return bits & SignBit ? ~bits : bits | SignBit;
}

quint64 rankOfDate(const QDateTime &date)
{
    if (!date.isValid())
        return 0;
    return std::max(rankOfNumber(date.toMSecsSinceEpoch()), quint64(1));
}

quint64 rankOfSize(const QSize &size)
{
    if (!size.isValid())
        return 0;
    return (quint64(size.width()) + 1) << 32 | (quint64(size.height()) + 1);
}

// The flag in the highest bit, below it the date from new to old.
quint64 rankOfNewness(const INxAbstractMediaItem *item)
{
    constexpr qint64 farthest = (qint64(1) << 62) - 2;
    const quint64 flag = item && item->isNew() ? 0 : SignBit;
    const QDateTime changed = item ? item->lastModified() : QDateTime();
    if (!changed.isValid())
        return flag | (SignBit - 1);
    const qint64 msec = qBound(-farthest, changed.toMSecsSinceEpoch(), farthest);
    return flag | quint64((qint64(1) << 62) - msec);
}

QString nameOf(const INxAbstractMedia *media)
{
    return media->name();
}

using SortFunction = void (*)(Items &items, Order order);

// By NXMEDIALIBRARY::NxMediaItemViewSortBy.
constexpr std::array<SortFunction, NXMEDIALIBRARY::sbSale + 1> SortFunctions = {
    nullptr,
    &NxMediaItemSort::DoSortByName,
    &NxMediaItemSort::DoSortByDuration,
    &NxMediaItemSort::DoSortByDateCreated,
    &NxMediaItemSort::DoSortByUsed,
    &NxMediaItemSort::DoSortByFrameRate,
    &NxMediaItemSort::DoSortByInPoint,
    &NxMediaItemSort::DoSortByOutPoint,
    &NxMediaItemSort::DoSortByFavourite,
    &NxMediaItemSort::DoSortByFavouriteTime,
    &NxMediaItemSort::DoSortByDownloadTime,
    &NxMediaItemSort::DoSortByResolution,
    &NxMediaItemSort::DoSortByAudioInfo,
    &NxMediaItemSort::DoSortByType,
    &NxMediaItemSort::DoSortByNew,
    &NxMediaItemSort::DoSortByCategory,
    &NxMediaItemSort::DoSortByListorder,
    &NxMediaItemSort::DoSortBySale,
};

} // namespace

void NxMediaItemSort::Sort(const QList<INxAbstractMedia *> &items,
                           const NXMEDIALIBRARY::NxMediaItemViewSort &sort,
                           QList<INxAbstractMedia *> &out)
{
    QList<INxAbstractMedia *> sorted = items;
    const qint64 key = sort.sortBy;
    if (key > NXMEDIALIBRARY::sbNone && key <= NXMEDIALIBRARY::sbSale)
        SortFunctions[size_t(key)](sorted, sort.order);
    out = sorted;
}

void NxMediaItemSort::DoSortByName(QList<INxAbstractMedia *> &items, Order order)
{
    Parts parts = split(items);
    orderByText(parts.folders, order, nameOf);
    orderByText(parts.others, order, nameOf);
    join(parts, items);
}

void NxMediaItemSort::DoSortByDuration(QList<INxAbstractMedia *> &items, Order order)
{
    sortByRank(items, order, [](const INxAbstractMedia *media) {
        return rankOfNumber(NxMediaItemFacts::durationMsec(media));
    });
}

void NxMediaItemSort::DoSortByDateCreated(QList<INxAbstractMedia *> &items, Order order)
{
    sortByRank(items, order, [](const INxAbstractMedia *media) {
        const INxAbstractMediaItem *item = itemOf(media);
        return item ? rankOfDate(item->dateCreated()) : rankOfDate(QDateTime());
    });
}

void NxMediaItemSort::DoSortByUsed(QList<INxAbstractMedia *> &items, Order order)
{
    sortByRank(items, order, [](const INxAbstractMedia *media) {
        const INxAbstractMediaItem *item = itemOf(media);
        return rankOfNumber(item ? item->usedCount() : 0);
    });
}

void NxMediaItemSort::DoSortByFrameRate(QList<INxAbstractMedia *> &items, Order order)
{
    sortByRank(items, order, [](const INxAbstractMedia *media) {
        return rankOfDouble(NxMediaItemFacts::frameRate(itemOf(media)).toDouble());
    });
}

void NxMediaItemSort::DoSortByInPoint(QList<INxAbstractMedia *> &items, Order order)
{
    sortByRank(items, order, [](const INxAbstractMedia *media) {
        const INxAbstractMediaItem *item = itemOf(media);
        return rankOfNumber(item ? item->inPoint() : 0);
    });
}

void NxMediaItemSort::DoSortByOutPoint(QList<INxAbstractMedia *> &items, Order order)
{
    sortByRank(items, order, [](const INxAbstractMedia *media) {
        const INxAbstractMediaItem *item = itemOf(media);
        return rankOfNumber(item ? item->outPoint() : 0);
    });
}

void NxMediaItemSort::DoSortByFavourite(QList<INxAbstractMedia *> &items, Order order)
{
    sortByRank(items, order, [](const INxAbstractMedia *media) {
        const INxAbstractMediaItem *item = itemOf(media);
        return quint64(item && item->isFavourite() ? 0 : 1);
    });
}

void NxMediaItemSort::DoSortByFavouriteTime(QList<INxAbstractMedia *> &items, Order order)
{
    sortByRank(items, order, [](const INxAbstractMedia *media) {
        const INxAbstractMediaItem *item = itemOf(media);
        return item ? rankOfDate(item->favouriteTime()) : rankOfDate(QDateTime());
    });
}

void NxMediaItemSort::DoSortByDownloadTime(QList<INxAbstractMedia *> &items, Order order)
{
    sortByRank(items, order, [](const INxAbstractMedia *media) {
        const INxAbstractMediaItem *item = itemOf(media);
        return item ? rankOfDate(item->downloadTime()) : rankOfDate(QDateTime());
    });
}

void NxMediaItemSort::DoSortByResolution(QList<INxAbstractMedia *> &items, Order order)
{
    sortByRank(items, order, [](const INxAbstractMedia *media) {
        return rankOfSize(NxMediaLibraryUtils::getResolution(itemOf(media)));
    });
}

void NxMediaItemSort::DoSortByAudioInfo(QList<INxAbstractMedia *> &items, Order order)
{
    sortByText(items, order, [](const INxAbstractMedia *media) {
        const INxAbstractMediaItem *item = itemOf(media);
        return item ? item->audioInfoText() : QString();
    });
}

void NxMediaItemSort::DoSortByType(QList<INxAbstractMedia *> &items, Order order)
{
    sortByRank(items, order, [](const INxAbstractMedia *media) {
        return quint64(NxMediaItemFacts::typeClass(media));
    });
}

void NxMediaItemSort::DoSortByNew(QList<INxAbstractMedia *> &items, Order order)
{
    sortByRank(items, order,
               [](const INxAbstractMedia *media) { return rankOfNewness(itemOf(media)); });
}

void NxMediaItemSort::DoSortByCategory(QList<INxAbstractMedia *> &items, Order order)
{
    sortByText(items, order, [](const INxAbstractMedia *media) {
        const INxAbstractMediaItem *item = itemOf(media);
        return item ? item->categoryName() : QString();
    });
}

void NxMediaItemSort::DoSortByListorder(QList<INxAbstractMedia *> &items, Order order)
{
    sortByRank(items, order, [](const INxAbstractMedia *media) {
        const INxAbstractMediaItem *item = itemOf(media);
        return rankOfNumber(item ? item->listOrder() : 0);
    });
}

void NxMediaItemSort::DoSortBySale(QList<INxAbstractMedia *> &items, Order order)
{
    sortByRank(items, order, [](const INxAbstractMedia *media) {
        const INxAbstractMediaItem *item = itemOf(media);
        return rankOfNumber(item ? item->sale() : 0);
    });
}
