// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Finding moved footage: 300 missing media among 20,000 files, all of one size or each of its own.
// Starting the workers, walking, and comparing are all in. The bound is what cannot be done
// without: reading the folders, looking at every file, and reading those that have the size of a
// missing one, one after the other in one process.

#include "BenchmarkTools.h"
#include "Heartbeat.h"

#include <NxVBLEngine/disk/NxDiskThread.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/reading/NxReadRequests.h>
#include <NxVBLEngine/reading/NxReadingThread.h>
#include <NxVBLEngine/reading/NxWorkerLocation.h>
#include <NxVBLEngine/relink/NxRelinkSearch.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int Folders = 20;
constexpr int FilesEach = 1'000;
constexpr int Missing = 300;
constexpr int Rounds = 3;
constexpr int SmallestFile = 1'024; // bytes
constexpr double MillisecondsPerSecond = 1e3;

struct Footage
{
    QString root;
    QStringList files;
};

void write(const QString &path, int number, bool isOneSize)
{
    QByteArray bytes = QByteArray::number(number);
    bytes.resize(SmallestFile + (isOneSize ? 0 : number));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        giveUp(path);
}

Footage made(const QString &root, bool isOneSize)
{
    Footage footage{root, {}};
    for (int number = 0; number < Folders * FilesEach; ++number) {
        const QString folder = QStringLiteral("%1/Shoot %2").arg(root).arg(number / FilesEach);
        if (number % FilesEach == 0 && !QDir().mkpath(folder))
            giveUp(folder);
        footage.files.append(
            QStringLiteral("%1/DSC_%2.MOV").arg(folder).arg(number, 5, 10, QLatin1Char('0')));
        write(footage.files.last(), number, isOneSize);
    }
    return footage;
}

/// The footage of all rounds; made once.
const Footage &footage(bool isOneSize)
{
    static const QTemporaryDir dir;
    static const std::array<Footage, 2> both = {made(dir.filePath(QStringLiteral("sizes")), false),
                                                made(dir.filePath(QStringLiteral("size")), true)};
    return both[size_t(isOneSize)];
}

/// So many files of them, spread over all folders.
QStringList missing(const Footage &footage)
{
    QStringList files;
    for (int i = 0; i < Missing; ++i)
        files.append(footage.files.at(i * (footage.files.size() / Missing)));
    return files;
}

// The bound

QSet<qint64> sizesOf(const QStringList &files)
{
    QSet<qint64> sizes;
    for (const QString &path : files)
        sizes.insert(QFile(path).size());
    return sizes;
}

void bareRead(const std::string &path, std::string *buffer)
{
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const ssize_t count = pread(file, buffer->data(), buffer->size(), 0);
    benchmark::DoNotOptimize(count);
    close(file);
}

void bareWalk(const std::string &folder, const QSet<qint64> &sizes, std::string *buffer)
{
    DIR *handle = opendir(folder.c_str());
    while (const dirent *found = readdir(handle)) {
        const std::string name = found->d_name;
        if (name == "." || name == "..")
            continue;
        const std::string path = folder + "/" + name;
        struct stat facts = {};
        stat(path.c_str(), &facts);
        if (S_ISDIR(facts.st_mode))
            bareWalk(path, sizes, buffer);
        else if (sizes.contains(facts.st_size))
            bareRead(path, buffer);
    }
    closedir(handle);
}

double findBare(const Footage &footage)
{
    constexpr size_t piece = 64 * 1'024; // bytes; the files hold no more.
    std::string buffer(piece, '\0');
    const QSet<qint64> sizes = sizesOf(missing(footage));
    QElapsedTimer timer;
    timer.start();
    bareWalk(QFile::encodeName(footage.root).toStdString(), sizes, &buffer);
    return milliseconds(timer);
}

// Ours

NxWorkerSettings workers(const QTemporaryDir &cache)
{
    NxResult<QString> program = NxWorkerLocation::find();
    if (!program)
        giveUp(program.errorText());
    NxWorkerSettings settings;
    settings.program = program.take();
    settings.cacheFolder = cache.path();
    return settings;
}

std::vector<NxFingerprint> fingerprints(const QStringList &files, const NxWorkerSettings &settings)
{
    std::vector<NxFingerprint> prints(size_t(files.size()));
    int answered = 0;
    QEventLoop loop;
    std::unique_ptr<NxReadingThread> thread;
    NxDoorbell bell([&] {
        for (const NxReadOutcome &outcome : thread->take()) {
            prints.at(size_t(outcome.number)) = outcome.answer.fingerprint;
            ++answered;
        }
        if (answered == files.size())
            loop.quit();
    });
    thread = std::make_unique<NxReadingThread>(settings, bell.rope());
    std::vector<NxReadRequest> requests;
    for (int i = 0; i < files.size(); ++i)
        requests.push_back(NxReadRequests::of(quint64(i), files.at(i), rwFingerprint));
    thread->add(std::move(requests));
    loop.exec();
    return prints;
}

/// A project whose media stood elsewhere, under other names.
QList<INxAbstractMediaItem *> fill(NxProjectMemory *memory, const QStringList &files,
                                   const std::vector<NxFingerprint> &prints)
{
    QVector<NxMediaSeed> seeds;
    for (int i = 0; i < files.size(); ++i) {
        NxMediaSeed seed;
        seed.path = QStringLiteral("/Volumes/Gone/Clip %1.MOV").arg(i);
        seed.size = prints[size_t(i)].size;
        seeds.append(seed);
    }
    NxEngineFolder *section = memory->category(NXVBLMODEL::mctMedia)->folder(NXVBLMODEL::fidRoot);
    QList<INxAbstractMediaItem *> items;
    for (NxEngineMedia *media : memory->addNewMedia(section, seeds)) {
        NxFootageRecord record;
        record.fingerprint = prints[size_t(items.size())];
        memory->setFootage(media, record);
        items.append(media);
    }
    return items;
}

void check(const NxRelinkReport &report, const QStringList &files)
{
    for (int i = 0; i < files.size(); ++i) {
        const NxRelinkFinding &finding = report.findings.at(i);
        const bool isRight = finding.match == NxRelinkMatch::Fingerprint
                             && finding.paths == QStringList(files.at(i));
        if (!isRight)
            giveUp(QStringLiteral("not found: ") + files.at(i));
    }
}

double findOurs(const Footage &footage, const std::vector<NxFingerprint> &prints,
                const NxWorkerSettings &settings, double *longestHold)
{
    const QStringList files = missing(footage);
    NxProjectMemory memory((QString()));
    const QList<INxAbstractMediaItem *> items = fill(&memory, files, prints);
    NxRelinkSearch search(&memory, std::make_shared<NxDiskThread>(), settings);
    QEventLoop loop;
    NxRelinkReport report;
    QObject::connect(&search, &INxRelinkSearch::finished, &loop,
                     [&](quint64, const NxRelinkReport &finished) {
                         report = finished;
                         loop.quit();
                     });
    const Heartbeat heart;
    QElapsedTimer timer;
    timer.start();
    (void)search.start(items, footage.root);
    loop.exec();
    const double spent = milliseconds(timer);
    *longestHold = heart.longest();
    check(report, files);
    return spent;
}

void findMoved(benchmark::State &state)
{
    const Footage &all = footage(state.range(0) != 0);
    const QTemporaryDir cache;
    const NxWorkerSettings settings = workers(cache);
    const std::vector<NxFingerprint> prints = fingerprints(missing(all), settings);
    std::vector<double> ours;
    std::vector<double> bound;
    std::vector<double> holds;
    for (auto _ : state) {
        bound.push_back(findBare(all));
        double hold = 0;
        ours.push_back(findOurs(all, prints, settings, &hold));
        holds.push_back(hold);
        state.SetIterationTime(ours.back() / MillisecondsPerSecond);
    }
    state.counters["ours_ms"] = median(ours);
    state.counters["bound_ms"] = median(bound);
    state.counters["ratio"] = median(ours) / median(bound);
    state.counters["files_per_s"] = Folders * FilesEach * MillisecondsPerSecond / median(ours);
    state.counters["longest_hold_ms"] = *std::max_element(holds.begin(), holds.end());
}
BENCHMARK(findMoved)
    ->ArgName("one_size")
    ->Arg(0)
    ->Arg(1)
    ->UseManualTime()
    ->Iterations(Rounds)
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
