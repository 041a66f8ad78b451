// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Reading footage through the workers, as a window does it: starting them, the pipe, and what the
// answers cost the event loop are all in. The bound of facts is a full analysis of every file's
// streams, one after the other in one process.

#include "BenchmarkTools.h"
#include "CameraFootage.h"
#include "FullAnalysis.h"
#include "Heartbeat.h"

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLEngine/disk/NxFileProbe.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/reading/NxFootageReader.h>
#include <NxVBLEngine/reading/NxReadingThread.h>
#include <NxVBLEngine/reading/NxWorkerLocation.h>
#include <NxVBLModel/INxMediaImporter.h>

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>
#include <unistd.h>

extern "C" {
#include <libavutil/log.h>
}

namespace {

constexpr int Clips = 10'000;
constexpr int ClipsPerFolder = 1'000;
constexpr int LinksPerFile = 4;
constexpr int CopiesPerFile = 3;
constexpr double MillisecondsPerSecond = 1e3;

const QTemporaryDir &workFolder()
{
    static const QTemporaryDir dir;
    return dir;
}

/// The sample set that ./run makes.
const QString &samples()
{
    static const QString path = [] {
        const QString target = workFolder().filePath(QStringLiteral("samples"));
        const QString maker = QStringLiteral(NX_SOURCE_DIR "/Packaging/make-samples");
        if (QProcess::execute(maker, {target}) != 0)
            giveUp(maker);
        return target;
    }();
    return path;
}

QStringList filesOf(const QString &folder)
{
    QStringList files;
    QDirIterator each(folder, QDir::Files, QDirIterator::Subdirectories);
    while (each.hasNext())
        files += each.next();
    files.sort();
    return files;
}

QStringList cameraFiles()
{
    QStringList paths;
    for (const CameraFootage::File &file : CameraFootage::files())
        paths += file.path;
    return paths;
}

/// So many links to files, in folders.
QString linkedFootage(const QString &name, const QStringList &originals, int clips)
{
    const QString root = workFolder().filePath(name);
    for (int number = 0; number < clips; ++number) {
        const QString folder = QStringLiteral("%1/Shoot %2").arg(root).arg(number / ClipsPerFolder);
        const QString original = originals.at(number % originals.size());
        const QString link = QStringLiteral("%1/%2 %3.%4")
                                 .arg(folder, QFileInfo(original).completeBaseName())
                                 .arg(number)
                                 .arg(QFileInfo(original).suffix());
        if (!QDir().mkpath(folder)
            || ::link(QFile::encodeName(original).constData(), QFile::encodeName(link).constData())
                   != 0)
            giveUp(link);
    }
    return root;
}

/// Copies of the camera's files that differ in their last bytes, so that each has pictures of its
/// own.
QString copiedFootage()
{
    const QString root = workFolder().filePath(QStringLiteral("copies"));
    if (!QDir().mkpath(root))
        giveUp(root);
    for (const CameraFootage::File &original : CameraFootage::files()) {
        for (int number = 0; number < CopiesPerFile; ++number) {
            const QString name = QFileInfo(original.path).fileName();
            const QString copy = QStringLiteral("%1/%2 %3").arg(root).arg(number).arg(name);
            QFile file(copy);
            if (!QFile::copy(original.path, copy) || !file.open(QIODevice::Append)
                || file.write(QByteArray::number(number)) < 1)
                giveUp(copy);
        }
    }
    return root;
}

double analyseAll(const QStringList &files)
{
    QElapsedTimer timer;
    timer.start();
    for (const QString &path : files)
        benchmark::DoNotOptimize(analyseFully(QFile::encodeName(path)));
    return milliseconds(timer);
}

NxWorkerSettings workerSettings(int workers)
{
    NxWorkerSettings settings;
    const NxResult<QString> program = NxWorkerLocation::find();
    if (!program)
        giveUp(program.errorText());
    static int count = 0;
    settings.program = *program;
    settings.cacheFolder = workFolder().filePath(QStringLiteral("cache %1").arg(++count));
    settings.workers = workers;
    settings.volumeRoots = &NxFileProbe::volumeRoots;
    return settings;
}

/// A project in memory with all files of a folder, none of them read.
class Project
{
public:
    Project(const QString &footage, int workers) : m_project(workerSettings(workers))
    {
        NxEngineCategory *category = m_project.memory()->category(NXVBLMODEL::mctMedia);
        m_section = category->folder(NXVBLMODEL::fidRoot);
        INxMediaImporter *importer = category->importer();
        QEventLoop loop;
        QObject::connect(importer, &INxMediaImporter::finished, &loop, &QEventLoop::quit);
        importer->start(m_section, {footage}, NXVBLMODEL::mitFiles);
        loop.exec();
    }
    [[nodiscard]] NxFootageReader *reader() const { return m_project.footageReader(); }
    [[nodiscard]] NxEngineFolder *section() const { return m_section; }
    [[nodiscard]] INxMediaManager *manager() const
    {
        return m_project.memory()->category(NXVBLMODEL::mctMedia);
    }
    [[nodiscard]] QList<INxAbstractMediaItem *> items() const
    {
        QList<INxAbstractMediaItem *> all;
        for (NxEngineMedia *media : m_project.memory()->livingMedia())
            all.append(media);
        return all;
    }
    /// Until everything is idle.
    double read(int wishes) const
    {
        QEventLoop loop;
        QObject::connect(reader(), &NxFootageReader::idle, &loop, &QEventLoop::quit);
        QElapsedTimer timer;
        timer.start();
        reader()->want(items(), wishes);
        loop.exec();
        return milliseconds(timer);
    }

private:
    NxEngineProject m_project;
    NxEngineFolder *m_section = nullptr;
};

void factsOfCameraFootage(benchmark::State &state)
{
    const QStringList originals = cameraFiles();
    const QString footage =
        linkedFootage(QStringLiteral("camera"), originals, originals.size() * LinksPerFile);
    const QStringList files = filesOf(footage);
    double ratios = 0;
    for (auto _ : state) {
        Q_UNUSED(_)
        const double bound = analyseAll(files);
        const Project project(footage, QThread::idealThreadCount());
        const double spent = project.read(INxFootageService::wFacts);
        state.SetIterationTime(spent / MillisecondsPerSecond);
        ratios += spent / bound;
    }
    state.counters["files"] = double(files.size());
    state.counters["times_full_analysis"] = ratios / double(state.iterations());
}

void factsOfTenThousandClips(benchmark::State &state)
{
    const QString footage = linkedFootage(QStringLiteral("many"), filesOf(samples()), Clips);
    double longest = 0;
    for (auto _ : state) {
        Q_UNUSED(_)
        const Project project(footage, QThread::idealThreadCount());
        NxMediaItemModel model(NXVBLMODEL::mctMedia, nullptr);
        model.subscribeMediaItemManager(project.manager()->itemManager());
        model.setSortEnable(true);
        model.setSortBy({NXMEDIALIBRARY::sbName, NXMEDIALIBRARY::soASC});
        model.load(project.section());
        const Heartbeat heart;
        state.SetIterationTime(project.read(INxFootageService::wFacts) / MillisecondsPerSecond);
        longest = std::max(longest, heart.longest());
        model.unSubscribeMediaItemManager();
    }
    state.counters["clips"] = Clips;
    state.counters["longest_hold_ms"] = longest;
}

/// Covers of all these, by so many workers; starting them counts.
double makeCovers(const QStringList &files, int workers)
{
    QEventLoop loop;
    NxDoorbell bell([&loop] { loop.quit(); });
    NxReadingThread thread(workerSettings(workers), bell.rope());
    std::vector<NxReadRequest> requests;
    for (const QString &path : files) {
        NxReadRequest request;
        request.number = requests.size() + 1;
        request.path = QFile::encodeName(path);
        request.road = path.endsWith(QLatin1String("g")) && !path.endsWith(QLatin1String("mpg"))
                           ? NxFootageRoad::Still
                           : NxFootageRoad::Stream;
        request.wishes = rwFingerprint | rwCover;
        requests.push_back(request);
    }
    QElapsedTimer timer;
    timer.start();
    thread.add(requests);
    for (size_t done = 0; done < requests.size(); done += thread.take().size())
        loop.exec();
    return milliseconds(timer);
}

void coversWithTwoWorkers(benchmark::State &state)
{
    const QStringList files = filesOf(copiedFootage());
    double gain = 0;
    for (auto _ : state) {
        Q_UNUSED(_)
        const double alone = makeCovers(files, 1);
        const double together = makeCovers(files, 2);
        state.SetIterationTime(together / MillisecondsPerSecond);
        gain += alone / together;
    }
    state.counters["files"] = double(files.size());
    state.counters["times_one_worker"] = gain / double(state.iterations());
}

BENCHMARK(factsOfCameraFootage)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(factsOfTenThousandClips)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(coversWithTwoWorkers)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    av_log_set_level(AV_LOG_QUIET);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
