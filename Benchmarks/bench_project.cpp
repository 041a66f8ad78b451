// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Opening, holding and walking projects of many media.

#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineItemManager.h>
#include <NxVBLEngine/objects/NxEngineUndoStack.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLModel/INxMediaInfo.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <malloc.h>
#include <map>
#include <memory>
#include <random>

using namespace NXVBLMODEL;

namespace {

constexpr int MediaPerFolder = 500;

NxEmbeddedEngine::Options withoutBackups()
{
    NxEmbeddedEngine::Options options;
    options.backups = false;
    return options;
}

NxProjectMemory *memoryOf(NxEmbeddedEngine *engine)
{
    return static_cast<NxEngineProject *>(engine->currentProject())->memory();
}

QVector<NxMediaSeed> seeds(int folder, int count)
{
    QVector<NxMediaSeed> made(count);
    for (int i = 0; i < count; ++i) {
        made[i].path = QStringLiteral("/Volumes/Footage/2026/Shoot %1/Card A/DSC_%2.MOV")
                           .arg(folder)
                           .arg(i * 7919 % count, 5, 10, QLatin1Char('0'));
        made[i].size = 1000000 + i;
        made[i].created = 1700000000000 + i * 1000;
    }
    return made;
}

// A clip as one of some cameras writes it, and what is made of it.
NxFootageRecord clip(qint64 id)
{
    constexpr int Cameras = 12;
    NxFootageRecord record;
    record.media = id;
    record.state = NxReadState::Read;
    record.stamp = {1000000 + id, 1700000000000 + id};
    NxFootageStreams &streams = record.facts.streams;
    streams.kind = NxFootageKind::Video;
    streams.hasVideo = streams.hasAudio = streams.canSeek = true;
    streams.width = 3840;
    streams.height = 2160;
    streams.videoCodec = QStringLiteral("h264");
    streams.audioCodec = QStringLiteral("aac");
    streams.cameraModel = QStringLiteral("Camera %1").arg(id % Cameras);
    record.facts.frames = 100 + id % 1000;
    record.facts.rate = {24000, 1001};
    record.facts.durationUs = 4000000 + id;
    record.facts.shot = 1700000000000 + id;
    record.facts.timecode = QStringLiteral("01:02:%1:00").arg(id % 60, 2, 10, QLatin1Char('0'));
    record.facts.reel = QStringLiteral("A%1").arg(id % 1000, 3, 10, QLatin1Char('0'));
    record.fingerprint = {1000000 + id, quint64(id) * 7919, quint64(id) * 104729};
    record.cover = record.strip = NxPictureState::Made;
    return record;
}

enum Footage {
    Unread,
    Read,
};

// A project of that many media, made once a process.
QString projectOf(int count, Footage footage = Unread)
{
    static QTemporaryDir folder;
    static std::map<std::pair<int, Footage>, QString> made;
    QString &path = made[{count, footage}];
    if (!path.isEmpty())
        return path;
    path = folder.filePath(QStringLiteral("%1-%2.brevano").arg(count).arg(footage));
    NxEmbeddedEngine engine(withoutBackups());
    if (!engine.createProject(path))
        qFatal("the project cannot be made");
    NxProjectMemory *memory = memoryOf(&engine);
    NxEngineFolder *section = memory->category(mctMedia)->folder(fidRoot);
    for (int at = 0; at < count; at += MediaPerFolder) {
        NxEngineFolder *home = memory->addNewFolder(section, QStringLiteral("Shoot %1").arg(at));
        const auto added = memory->addNewMedia(home, seeds(at, MediaPerFolder));
        for (NxEngineMedia *media : footage == Read ? added : QVector<NxEngineMedia *>())
            memory->setFootage(media, clip(media->id()));
    }
    memory->flush();
    if (!engine.closeProject())
        qFatal("the project cannot be closed");
    return path;
}

void openProject(benchmark::State &state)
{
    const QString path = projectOf(int(state.range(0)), Footage(state.range(1)));
    state.SetLabel(state.range(1) == Read ? "footage read" : "footage not read");
    for (auto _ : state) {
        NxEmbeddedEngine engine(withoutBackups());
        if (!engine.openProject(path, NxProjectOpenMode::ReadWrite))
            state.SkipWithError("the project cannot be opened");
        state.PauseTiming();
        if (!engine.closeProject())
            state.SkipWithError("the project cannot be closed");
        state.ResumeTiming();
    }
}
BENCHMARK(openProject)
    ->Args({100000, Unread})
    ->Args({100000, Read})
    ->Args({1000000, Unread})
    ->Args({1000000, Read})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);

size_t heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

// What a text of its own takes on the heap: header, characters, closing zero, and the heap's own
// eight bytes, in steps of sixteen.
size_t heapOf(const QString &text)
{
    constexpr size_t Header = sizeof(QArrayData);
    constexpr size_t Step = 16;
    const size_t asked = Header + (size_t(text.size()) + 1) * sizeof(QChar) + sizeof(size_t);
    return (asked + Step - 1) / Step * Step;
}

size_t stringsOf(const NxEngineMedia *media)
{
    const size_t names = heapOf(media->name()) + heapOf(media->sourcePath());
    const INxMediaInfo *info = media->mediaInfo();
    const bool isRead = media->readState() == NxReadState::Read;
    return names + (isRead ? heapOf(info->timecode()) + heapOf(info->reelName()) : 0);
}

void memoryPerMedia(benchmark::State &state)
{
    const int count = int(state.range(0));
    const QString path = projectOf(count, Footage(state.range(1)));
    state.SetLabel(state.range(1) == Read ? "footage read" : "footage not read");
    double bytes = 0;
    for (auto _ : state) {
        const size_t before = heapInUse();
        NxEmbeddedEngine engine(withoutBackups());
        if (!engine.openProject(path, NxProjectOpenMode::ReadOnly))
            state.SkipWithError("the project cannot be opened");
        size_t strings = 0;
        for (const NxEngineMedia *media : memoryOf(&engine)->livingMedia())
            strings += stringsOf(media);
        bytes = double(heapInUse() - before - strings) / count;
        if (!engine.closeProject())
            state.SkipWithError("the project cannot be closed");
    }
    state.counters["bytes_per_media"] = bytes;
}
BENCHMARK(memoryPerMedia)
    ->Args({100000, Unread})
    ->Args({100000, Read})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

qint64 walk(const QList<INxAbstractMedia *> &items)
{
    qint64 sum = 0;
    for (const INxAbstractMedia *media : items) {
        const auto *item = static_cast<const INxAbstractMediaItem *>(media);
        sum += item->mediaType() + item->mediaInfo()->kind() + item->name().at(4).unicode();
    }
    return sum;
}

void walkNamesTypesAndInfos(benchmark::State &state)
{
    const QString path = projectOf(int(state.range(0)));
    const bool scattered = state.range(1) != 0;
    NxEmbeddedEngine engine(withoutBackups());
    if (!engine.openProject(path, NxProjectOpenMode::ReadOnly))
        state.SkipWithError("the project cannot be opened");
    auto items = memoryOf(&engine)->category(mctMedia)->root()->items(true, true);
    if (scattered)
        std::shuffle(items.begin(), items.end(), std::mt19937(1));
    for (auto _ : state)
        benchmark::DoNotOptimize(walk(items));
    state.SetLabel(scattered ? "bound: the same, scattered" : "in folder order");
}
BENCHMARK(walkNamesTypesAndInfos)
    ->Args({1000000, 0})
    ->Args({1000000, 1})
    ->Unit(benchmark::kMillisecond);

void listItems(benchmark::State &state)
{
    const QString path = projectOf(int(state.range(0)));
    NxEmbeddedEngine engine(withoutBackups());
    if (!engine.openProject(path, NxProjectOpenMode::ReadOnly))
        state.SkipWithError("the project cannot be opened");
    const INxFolderMedia *root = memoryOf(&engine)->category(mctMedia)->root();
    for (auto _ : state)
        benchmark::DoNotOptimize(root->items(true, true));
}
BENCHMARK(listItems)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

void removeAndUndo(benchmark::State &state)
{
    const QString path = projectOf(100000);
    NxEmbeddedEngine engine(withoutBackups());
    if (!engine.openProject(path, NxProjectOpenMode::ReadWrite))
        state.SkipWithError("the project cannot be opened");
    NxProjectMemory *memory = memoryOf(&engine);
    NxEngineCategory *category = memory->category(mctMedia);
    auto items = category->root()->items(true, true);
    std::shuffle(items.begin(), items.end(), std::mt19937(1));
    const auto chosen = items.mid(0, int(state.range(0)));
    for (auto _ : state) {
        category->itemManager()->removeMediaItems(nullptr, chosen);
        memory->undoStack()->undo();
    }
    if (!engine.closeProject())
        state.SkipWithError("the project cannot be closed");
}
BENCHMARK(removeAndUndo)->Arg(5000)->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
