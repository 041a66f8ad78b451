// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "SortBound.h"

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxVBLEngine/objects/NxEngineMedia.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/NxObserverList.h>

#include <QCoreApplication>
#include <QTimer>

#include <malloc.h>
#include <memory>

// The item model over the engine's media: whole passes beside their bound, and single events.
namespace {

using namespace NXMEDIALIBRARY;
using namespace SortBound;
using Items = QList<INxAbstractMedia *>;

/// A section that lists what it is given.
class ListFolder final : public INxFolderMedia
{
public:
    QList<INxAbstractMedia *> items(bool, bool) const override { return listed; }
    INxAbstractMedia *lastMedia(bool) const override
    {
        return listed.isEmpty() ? nullptr : listed.last();
    }
    bool containsMedia(const INxAbstractMedia *media, bool) const override
    {
        return media->parentFolder() != nullptr; // The media of these benchmarks have none.
    }
    int folderId() const override { return NXVBLMODEL::fidRoot; }
    int kind() const override { return NXVBLMODEL::fkProject; }
    INxFolderMedia *owner() const override { return const_cast<ListFolder *>(this); }

    Items listed;
};

/// Has observers, and nothing else.
class QuietManager final : public INxMediaItemManager
{
public:
    bool registerObserver(INxMediaItemEventObserver *observer) override
    {
        return m_observers.add(observer);
    }
    void unregisterObserver(INxMediaItemEventObserver *observer) override
    {
        m_observers.remove(observer);
    }

private:
    NxObserverList<INxMediaItemEventObserver> m_observers;
};

QString suffixOf(int number)
{
    static const char *const suffixes[] = {"mov", "mp4", "wav", "jpg", "srt"};
    return QLatin1String(suffixes[number % 5]);
}

std::unique_ptr<NxEngineMedia> makeMedia(int number, QRandomGenerator &random)
{
    NxMediaRecord record;
    record.id = number + 1;
    record.name = nameOf(number, random);
    record.path = QStringLiteral("/Volumes/Footage/%1.%2").arg(number).arg(suffixOf(number));
    record.size = random.bounded(1 << 30);
    record.created = 1400000000000LL + qint64(random.bounded(300000000)) * 1000;
    record.modified = record.created;
    auto media = std::make_unique<NxEngineMedia>(record);
    media->setUsed(random.bounded(1000));
    return media;
}

/// The media of a folder, and a model that follows them.
struct Library
{
    explicit Library(int count, bool scattered = false, int spare = 0)
        : model(NXVBLMODEL::mctMedia, nullptr)
    {
        QRandomGenerator random(1);
        for (int i = 0; i < count + spare; ++i)
            media.push_back(makeMedia(i, random));
        for (int i = 0; i < count; ++i)
            folder.listed.append(media[size_t(i)].get());
        std::mt19937 shuffler(2);
        if (scattered)
            std::shuffle(folder.listed.begin(), folder.listed.end(), shuffler);
        model.subscribeMediaItemManager(&manager);
        model.setSortEnable(true);
    }
    ~Library() { model.unSubscribeMediaItemManager(); }

    std::vector<std::unique_ptr<NxEngineMedia>> media;
    ListFolder folder;
    QuietManager manager;
    NxMediaItemModel model;
};

NxMediaItemViewFilter filterOf(int type, const QString &keyword = QString())
{
    NxMediaItemViewFilter filter;
    filter.type = type;
    filter.keyword = keyword;
    return filter;
}

void loadSorted(benchmark::State &state, int key, bool scattered)
{
    const int count = int(state.range(0));
    Library library(count, scattered);
    library.model.setSortBy({NxMediaItemViewSortBy(key), soASC});
    library.model.setFilter(filterOf(mtfVideo));
    measure(state, count, [&] {
        library.model.clear();
        const Clock::time_point begin = Clock::now();
        library.model.load(&library.folder);
        return secondsOf(begin);
    });
    state.counters["rows"] = library.model.rowCount();
}

void changeFilter(benchmark::State &state, const NxMediaItemViewFilter &filter)
{
    const int count = int(state.range(0));
    Library library(count);
    library.model.setSortBy({sbName, soASC});
    library.model.load(&library.folder);
    measure(state, count, [&] {
        library.model.setFilter({});
        const Clock::time_point begin = Clock::now();
        library.model.setFilter(filter);
        return secondsOf(begin);
    });
    state.counters["rows"] = library.model.rowCount();
}

void clearFilter(benchmark::State &state)
{
    const int count = int(state.range(0));
    Library library(count);
    library.model.setSortBy({sbName, soASC});
    library.model.load(&library.folder);
    measure(state, count, [&] {
        library.model.setFilter(filterOf(mtfAll, QStringLiteral("nothing is called so")));
        const Clock::time_point begin = Clock::now();
        library.model.setFilter({});
        return secondsOf(begin);
    });
}

void changeGroup(benchmark::State &state, int key)
{
    const int count = int(state.range(0));
    Library library(count);
    library.model.setSortBy({sbName, soASC});
    library.model.load(&library.folder);
    measure(state, count, [&] {
        library.model.setGroupBy({});
        const Clock::time_point begin = Clock::now();
        library.model.setGroupBy({NxMediaItemViewGroupBy(key), soASC, nullptr});
        return secondsOf(begin);
    });
}

void add(Library &library, NxEngineMedia *media)
{
    library.model.onBeforeAddItemEvent(&library.folder, media);
    library.folder.listed.append(media);
    library.model.onAfterAddItemEvent(&library.folder, media);
}

// One after the other into a library that is full already; each is taken out again.
void addOne(benchmark::State &state, int groupBy)
{
    const int count = int(state.range(0));
    Library library(count, false, 1000);
    library.model.setSortBy({sbName, soASC});
    library.model.setGroupBy({NxMediaItemViewGroupBy(groupBy), soASC, nullptr});
    library.model.load(&library.folder);
    size_t next = 0;
    for (auto turn : state) {
        Q_UNUSED(turn)
        NxEngineMedia *media = library.media[size_t(count) + next++ % 1000].get();
        const Clock::time_point begin = Clock::now();
        add(library, media);
        state.SetIterationTime(secondsOf(begin));
        library.model.onBeforeRemoveItemEvent(&library.folder, media);
        library.folder.listed.removeLast();
    }
}

void removeOne(benchmark::State &state, int groupBy)
{
    const int count = int(state.range(0));
    Library library(count);
    library.model.setSortBy({sbName, soASC});
    library.model.setGroupBy({NxMediaItemViewGroupBy(groupBy), soASC, nullptr});
    library.model.load(&library.folder);
    std::mt19937 random(3);
    for (auto turn : state) {
        Q_UNUSED(turn)
        const int at = int(random() % unsigned(library.folder.listed.size()));
        INxAbstractMedia *media = library.folder.listed[at];
        const Clock::time_point begin = Clock::now();
        library.model.onBeforeRemoveItemEvent(&library.folder, media);
        state.SetIterationTime(secondsOf(begin));
        library.folder.listed.removeAt(at);
    }
}

void changeOne(benchmark::State &state)
{
    const int count = int(state.range(0));
    Library library(count);
    library.model.setSortBy({sbName, soASC});
    library.model.load(&library.folder);
    std::mt19937 random(3);
    for (auto turn : state) {
        Q_UNUSED(turn)
        library.model.onMediaStateChangedEvent(library.media[random() % size_t(count)].get());
    }
}

void addAll(benchmark::State &state, int groupBy)
{
    const int count = int(state.range(0));
    for (auto turn : state) {
        Q_UNUSED(turn)
        Library library(0, false, count);
        library.model.setSortBy({sbName, soASC});
        library.model.setGroupBy({NxMediaItemViewGroupBy(groupBy), soASC, nullptr});
        library.model.load(&library.folder);
        const Clock::time_point begin = Clock::now();
        for (const auto &media : library.media)
            add(library, media.get());
        state.SetIterationTime(secondsOf(begin));
    }
}

void foldAndUnfold(benchmark::State &state)
{
    const int count = int(state.range(0));
    Library library(0, false, count);
    library.model.setGroupBy({gbCameraName, soASC, nullptr}); // All are without a camera.
    for (const auto &media : library.media)
        library.folder.listed.append(media.get());
    library.model.load(&library.folder);
    for (auto turn : state) {
        Q_UNUSED(turn)
        library.model.expandStateToggle(0, false);
        library.model.expandStateToggle(0, true);
    }
    state.counters["rows"] = library.model.rowCount();
}

size_t heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void memoryOfRows(benchmark::State &state, int groupBy)
{
    const int count = int(state.range(0));
    Library library(count);
    library.model.setSortBy({sbName, soASC});
    library.model.setGroupBy({NxMediaItemViewGroupBy(groupBy), soASC, nullptr});
    const size_t before = heapInUse();
    double loaded = 0;
    double idle = 0;
    for (auto turn : state) {
        Q_UNUSED(turn)
        library.model.load(&library.folder);
        library.model.setFilter(filterOf(mtfVideo));
        library.model.setFilter({});
        loaded = double(heapInUse() - before) / count;
        QMetaObject::invokeMethod(library.model.findChild<QTimer *>(), "timeout");
        idle = double(heapInUse() - before) / count;
    }
    state.counters["bytes_a_row"] = loaded;
    state.counters["bytes_a_row_idle"] = idle;
}

void grown(benchmark::internal::Benchmark *bench)
{
    bench->Arg(1000)->Arg(10000)->Arg(100000)->Arg(1000000);
}

void timed(benchmark::internal::Benchmark *bench)
{
    grown(bench);
    bench->UseManualTime()->Iterations(500)->Unit(benchmark::kMicrosecond);
}

} // namespace

BENCHMARK_CAPTURE(loadSorted, name_in_import_order, sbName, false)->Apply(sized);
BENCHMARK_CAPTURE(loadSorted, name_scattered, sbName, true)->Apply(sized);
BENCHMARK_CAPTURE(loadSorted, date_created, sbDateCreated, false)->Apply(sized);
BENCHMARK_CAPTURE(loadSorted, date_created_scattered, sbDateCreated, true)->Apply(sized);
BENCHMARK_CAPTURE(loadSorted, used, sbUsed, false)->Apply(sized);
BENCHMARK_CAPTURE(loadSorted, type, sbType, false)->Apply(sized);
BENCHMARK_CAPTURE(loadSorted, duration, sbDuration, false)->Apply(sized);
BENCHMARK_CAPTURE(changeFilter, type_video, filterOf(mtfVideo))->Apply(sized);
BENCHMARK_CAPTURE(changeFilter, keyword_many, filterOf(mtfAll, QStringLiteral("m")))->Apply(sized);
BENCHMARK_CAPTURE(changeFilter, keyword_few, filterOf(mtfAll, QStringLiteral("scene 12")))
    ->Apply(sized);
BENCHMARK_CAPTURE(changeFilter, keyword_none, filterOf(mtfAll, QStringLiteral("nobody")))
    ->Apply(sized);
BENCHMARK(clearFilter)->Apply(sized);
BENCHMARK_CAPTURE(changeGroup, type, gbType)->Apply(sized);
BENCHMARK_CAPTURE(changeGroup, date_created, gbDateCreated)->Apply(sized);
BENCHMARK_CAPTURE(changeGroup, duration, gbDuration)->Apply(sized);
BENCHMARK_CAPTURE(changeGroup, camera, gbCameraName)->Apply(sized);
BENCHMARK_CAPTURE(changeGroup, category, gbCategory)->Apply(sized);
BENCHMARK_CAPTURE(addOne, ungrouped, gbNone)->Apply(timed);
BENCHMARK_CAPTURE(addOne, by_type, gbType)->Apply(timed);
BENCHMARK_CAPTURE(addOne, by_date_created, gbDateCreated)->Apply(timed);
BENCHMARK_CAPTURE(removeOne, ungrouped, gbNone)->Apply(timed);
BENCHMARK_CAPTURE(removeOne, by_type, gbType)->Apply(timed);
BENCHMARK(changeOne)->Apply(grown)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(addAll, ungrouped, gbNone)
    ->Arg(10000)
    ->Arg(100000)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(addAll, by_type, gbType)
    ->Arg(10000)
    ->Arg(100000)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(addAll, by_date_created, gbDateCreated)
    ->Arg(10000)
    ->Arg(100000)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(foldAndUnfold)->Apply(grown)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(memoryOfRows, ungrouped, gbNone)
    ->Arg(100000)
    ->Arg(1000000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(memoryOfRows, by_type, gbType)
    ->Arg(100000)
    ->Arg(1000000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
