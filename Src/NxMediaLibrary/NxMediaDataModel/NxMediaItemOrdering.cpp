// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxMediaItemOrdering_p.h"

#include <NxMediaLibrary/NxMediaDataModel/NxNaturalOrder.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxVBLModel/INxAbstractMediaItem.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>

#include "NxMediaAhead_p.h"
#include "NxMediaItemFacts_p.h"

using namespace NXMEDIALIBRARY;
using NxMediaItemFacts::itemOf;

namespace {

using Items = QList<INxAbstractMedia *>;
using Numbers = std::vector<quint32>;

constexpr quint64 SignBit = quint64(1) << 63;

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

// A fact as a number whose order is the order of the facts.
using RankOf = quint64 (*)(const INxAbstractMedia *media);
using TextOf = QString (*)(const INxAbstractMedia *media);

/// What is compared: one of the two.
struct Fact
{
    RankOf rankOf = nullptr;
    TextOf textOf = nullptr;
    bool ordersFolders = false; // Otherwise folders stay as they are.
};

template<int (INxAbstractMediaItem::*Query)() const>
quint64 rankOfInt(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = itemOf(media);
    return rankOfNumber(item ? (item->*Query)() : 0);
}

template<qint64 (INxAbstractMediaItem::*Query)() const>
quint64 rankOfLong(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = itemOf(media);
    return rankOfNumber(item ? (item->*Query)() : 0);
}

template<QDateTime (INxAbstractMediaItem::*Query)() const>
quint64 rankOfTime(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = itemOf(media);
    return item ? rankOfDate((item->*Query)()) : rankOfDate(QDateTime());
}

template<QString (INxAbstractMediaItem::*Query)() const>
QString textOfItem(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = itemOf(media);
    return item ? (item->*Query)() : QString();
}

QString nameOf(const INxAbstractMedia *media)
{
    return media->name();
}

quint64 rankOfDuration(const INxAbstractMedia *media)
{
    return rankOfNumber(NxMediaItemFacts::durationMsec(media));
}

quint64 rankOfFrameRate(const INxAbstractMedia *media)
{
    return rankOfDouble(NxMediaItemFacts::frameRate(itemOf(media)).toDouble());
}

quint64 rankOfFavourite(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = itemOf(media);
    return item && item->isFavourite() ? 0 : 1;
}

quint64 rankOfResolution(const INxAbstractMedia *media)
{
    return rankOfSize(NxMediaLibraryUtils::getResolution(itemOf(media)));
}

quint64 rankOfType(const INxAbstractMedia *media)
{
    return quint64(NxMediaItemFacts::typeClass(media));
}

quint64 rankOfNew(const INxAbstractMedia *media)
{
    return rankOfNewness(itemOf(media));
}

using Item = INxAbstractMediaItem;

// By NXMEDIALIBRARY::NxMediaItemViewSortBy.
constexpr std::array<Fact, sbSale + 1> Facts = {{
    {},
    {nullptr, &nameOf, true},
    {&rankOfDuration},
    {&rankOfTime<&Item::dateCreated>},
    {&rankOfInt<&Item::usedCount>},
    {&rankOfFrameRate},
    {&rankOfLong<&Item::inPoint>},
    {&rankOfLong<&Item::outPoint>},
    {&rankOfFavourite},
    {&rankOfTime<&Item::favouriteTime>},
    {&rankOfTime<&Item::downloadTime>},
    {&rankOfResolution},
    {nullptr, &textOfItem<&Item::audioInfoText>},
    {&rankOfType},
    {&rankOfNew},
    {nullptr, &textOfItem<&Item::categoryName>},
    {&rankOfInt<&Item::listOrder>},
    {&rankOfInt<&Item::sale>},
}};

struct Ranked
{
    quint64 rank;
    quint32 number;

    friend bool operator<(const Ranked &a, const Ranked &b)
    {
        return a.rank != b.rank ? a.rank < b.rank : a.number < b.number;
    }
};

void orderByRank(const Items &media, Numbers &numbers, bool isDescending, RankOf rankOf)
{
    const quint64 flip = isDescending ? ~quint64(0) : 0;
    std::vector<Ranked> ranked;
    ranked.reserve(numbers.size());
    for (const quint32 number : numbers) {
        nxFetchMediaAhead(media, int(number));
        ranked.push_back({rankOf(media.at(int(number))) ^ flip, number});
    }
    if (std::is_sorted(ranked.begin(), ranked.end()))
        return;
    std::sort(ranked.begin(), ranked.end());
    std::transform(ranked.begin(), ranked.end(), numbers.begin(),
                   [](const Ranked &one) { return one.number; });
}

void orderByText(const Items &media, Numbers &numbers, bool isDescending, TextOf textOf)
{
    std::vector<QString> texts;
    texts.reserve(numbers.size());
    for (const quint32 number : numbers) {
        nxFetchMediaAhead(media, int(number));
        texts.push_back(textOf(media.at(int(number))));
    }
    const Numbers places = NxNaturalOrder::sorted(texts, isDescending);
    const Numbers before = numbers;
    std::transform(places.begin(), places.end(), numbers.begin(),
                   [&before](quint32 place) { return before[place]; });
}

void orderByFact(const Items &media, Numbers &numbers, bool isDescending, const Fact &fact)
{
    if (fact.rankOf)
        orderByRank(media, numbers, isDescending, fact.rankOf);
    else
        orderByText(media, numbers, isDescending, fact.textOf);
}

int compareByFact(const INxAbstractMedia *a, const INxAbstractMedia *b, const Fact &fact)
{
    if (fact.textOf)
        return NxNaturalOrder::compare(fact.textOf(a), fact.textOf(b));
    const quint64 first = fact.rankOf(a);
    const quint64 second = fact.rankOf(b);
    return first < second ? -1 : first > second ? 1 : 0;
}

bool isFolder(const INxAbstractMedia *media)
{
    return media->mediaType() == NXVBLMODEL::mtFolder;
}

} // namespace

NxMediaItemOrdering::NxMediaItemOrdering(const NxMediaItemViewSort &sort) : m_sort(sort) {}

bool NxMediaItemOrdering::isSorting() const
{
    const qint64 key = m_sort.sortBy;
    return key > sbNone && key <= sbSale;
}

bool NxMediaItemOrdering::keeps(const INxAbstractMedia *media) const
{
    return !isSorting() || (media && media->mediaType() != NXVBLMODEL::mtNone);
}

std::vector<quint32> NxMediaItemOrdering::places(const QList<INxAbstractMedia *> &media) const
{
    Numbers others;
    if (!isSorting()) {
        others.resize(size_t(media.size()));
        std::iota(others.begin(), others.end(), 0);
        return others;
    }
    Numbers places;
    others.reserve(size_t(media.size()));
    for (int i = 0; i < media.size(); ++i) {
        nxFetchMediaAhead(media, i);
        const INxAbstractMedia *one = media.at(i);
        const NXVBLMODEL::NxMediaType type = one ? one->mediaType() : NXVBLMODEL::mtNone;
        if (type != NXVBLMODEL::mtNone)
            (type == NXVBLMODEL::mtFolder ? places : others).push_back(quint32(i));
    }
    const Fact &fact = Facts[size_t(m_sort.sortBy)];
    const bool isDescending = m_sort.order != soASC;
    if (fact.ordersFolders)
        orderByFact(media, places, isDescending, fact);
    orderByFact(media, others, isDescending, fact);
    if (places.empty())
        return others;
    places.insert(places.end(), others.begin(), others.end());
    return places;
}

int NxMediaItemOrdering::compare(const INxAbstractMedia *a, const INxAbstractMedia *b) const
{
    if (!isSorting())
        return 0;
    if (isFolder(a) != isFolder(b))
        return isFolder(a) ? -1 : 1;
    const Fact &fact = Facts[size_t(m_sort.sortBy)];
    if (isFolder(a) && !fact.ordersFolders)
        return 0;
    return m_sort.order == soASC ? compareByFact(a, b, fact) : compareByFact(b, a, fact);
}
