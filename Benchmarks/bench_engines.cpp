// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemGroup.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemSort.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxGroupMedia.h>
#include <NxVBLModel/INxMediaInfo.h>

#include "SortBound.h"

#include <QRandomGenerator>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

// Sorting and grouping of many media, each beside its bound: "times_S" is the time as a multiple of
// what sorting n random 64-bit integers takes, measured in turn with it.
namespace {

using namespace NXMEDIALIBRARY;
using Items = QList<INxAbstractMedia *>;
using namespace SortBound;

struct Info final : INxMediaInfo
{
    int kind() const override { return NXVBLMODEL::mikVideo; }
    int streamFlags() const override { return flags; }
    qint64 frameCount() const override { return frames; }
    NxRational frameRate() const override { return {25, 1}; }
    int flags = NXVBLMODEL::sfVideo;
    qint64 frames = 0;
};

struct Item final : INxAbstractMediaItem
{
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideoAudio; }
    QString name() const override { return title; }
    const INxMediaInfo *mediaInfo() const override { return &info; }
    QDateTime dateCreated() const override
    {
        return QDateTime::fromMSecsSinceEpoch(created, Qt::UTC);
    }
    int usedCount() const override { return used; }
    QString cameraName() const override { return camera; }
    QString categoryName() const override { return category; }

    QString title;
    Info info;
    qint64 created = 0;
    int used = 0;
    QString camera;
    QString category;
};

std::vector<std::unique_ptr<Item>> makeItems(int count)
{
    QRandomGenerator random(1);
    std::vector<std::unique_ptr<Item>> items;
    for (int i = 0; i < count; ++i) {
        auto item = std::make_unique<Item>();
        item->title = nameOf(i, random);
        item->info.frames = random.bounded(200000);
        item->info.flags = random.bounded(3) ? NXVBLMODEL::sfVideo : NXVBLMODEL::sfImage;
        item->created = 1400000000000LL + qint64(random.bounded(300000000)) * 1000;
        item->used = random.bounded(1000);
        item->camera = QStringLiteral("Camera %1").arg(random.bounded(40));
        item->category = QStringLiteral("Pack %1").arg(random.bounded(40));
        items.push_back(std::move(item));
    }
    return items;
}

Items listOf(const std::vector<std::unique_ptr<Item>> &items, bool scattered)
{
    Items list;
    for (const std::unique_ptr<Item> &item : items)
        list.append(item.get());
    std::mt19937 random(2);
    if (scattered)
        std::shuffle(list.begin(), list.end(), random);
    return list;
}

void sortItems(benchmark::State &state, int key, bool scattered)
{
    const int count = int(state.range(0));
    const std::vector<std::unique_ptr<Item>> owned = makeItems(count);
    const Items items = listOf(owned, scattered);
    measure(state, count, [&] {
        Items out;
        const Clock::time_point begin = Clock::now();
        NxMediaItemSort::Sort(items, {NxMediaItemViewSortBy(key), soASC}, out);
        return secondsOf(begin);
    });
}

void groupItems(benchmark::State &state, int key, bool scattered)
{
    const int count = int(state.range(0));
    const std::vector<std::unique_ptr<Item>> owned = makeItems(count);
    const Items items = listOf(owned, scattered);
    measure(state, count, [&] {
        Items out;
        const Clock::time_point begin = Clock::now();
        NxMediaItemGroup::Group(items, {NxMediaItemViewGroupBy(key), soASC, nullptr}, out);
        const double seconds = secondsOf(begin);
        for (INxAbstractMedia *group : qAsConst(out))
            INxGroupMedia::releaseGroup(dynamic_cast<INxGroupMedia *>(group));
        return seconds;
    });
}

} // namespace

BENCHMARK_CAPTURE(sortItems, name_in_import_order, sbName, false)->Apply(sized);
BENCHMARK_CAPTURE(sortItems, name_scattered, sbName, true)->Apply(sized);
BENCHMARK_CAPTURE(sortItems, duration, sbDuration, false)->Apply(sized);
BENCHMARK_CAPTURE(sortItems, date_created, sbDateCreated, false)->Apply(sized);
BENCHMARK_CAPTURE(sortItems, used, sbUsed, false)->Apply(sized);
BENCHMARK_CAPTURE(sortItems, type, sbType, false)->Apply(sized);
BENCHMARK_CAPTURE(sortItems, category, sbCategory, false)->Apply(sized);
BENCHMARK_CAPTURE(groupItems, type, gbType, false)->Apply(sized);
BENCHMARK_CAPTURE(groupItems, date_created, gbDateCreated, false)->Apply(sized);
BENCHMARK_CAPTURE(groupItems, duration, gbDuration, false)->Apply(sized);
BENCHMARK_CAPTURE(groupItems, camera, gbCameraName, false)->Apply(sized);
BENCHMARK_CAPTURE(groupItems, category, gbCategory, false)->Apply(sized);

BENCHMARK_MAIN();
