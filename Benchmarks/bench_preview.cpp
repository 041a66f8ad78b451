// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What it takes until a clip plays under the pointer, and how it goes on. From making the timeline
// to the first frame at hand, the worker's start included; the longest time for which the GUI
// thread is held by one call, or by anything, while a film plays at its own speed; and how many
// frames come in a second to whoever takes them as fast as they come. The bounds are what a user
// does not notice: a second until something moves, two milliseconds for a call, and 25 frames a
// second.

#include "BenchmarkTools.h"
#include "Heartbeat.h"

#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLModel/INxClip.h>
#include <NxVBLModel/INxTimeline.h>
#include <NxWorkerProtocol/NxPictureFile.h>
#include <NxWorkerProtocol/NxPreviewMessages.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

namespace {

using namespace NxPictureFile;

constexpr int Rounds = 5;
constexpr double MillisecondsPerSecond = 1'000;
constexpr double FirstFrameBound = 1'000; // ms
constexpr double HoldBound = 2; // ms
constexpr double RateBound = 25; // Frames a second.
constexpr int Step = 40; // ms between two frames that are shown.
constexpr int Steps = 100;
constexpr int LongestWait = 60'000; // ms
constexpr qint64 Frames = 250;

struct Clip
{
    const char *name;
    const char *arguments;
};

constexpr Clip Clips[] = {
    {"avc.mp4", "-c:v libx264 -preset veryfast -b:v 12M -g 24 -bf 2"},
    {"avc long.mp4", "-c:v libx264 -preset veryfast -b:v 12M -g 250 -bf 2"},
    {"hevc.mkv", "-c:v libx265 -preset ultrafast -x265-params keyint=24:log-level=error"},
    {"mjpeg.avi", "-c:v mjpeg -q:v 4"},
};

/// 1080p with noise, as a camera writes it.
QString made(const Clip &clip)
{
    const QDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/../previews"));
    const QString path = folder.filePath(QLatin1String(clip.name));
    if (QFile::exists(path))
        return path;
    const QString part = folder.filePath(QStringLiteral("part ") + QLatin1String(clip.name));
    const QString line = QStringLiteral("-v error -y -f lavfi -i testsrc2=s=1920x1080:r=25:d=12 "
                                        "-vf noise=alls=12:allf=t -pix_fmt yuv420p ")
                         + QLatin1String(clip.arguments);
    if (!QDir().mkpath(folder.path())
        || QProcess::execute(QStringLiteral("ffmpeg"),
                             line.split(QLatin1Char(' ')) + QStringList{part})
               != 0
        || !QFile::rename(part, path))
        giveUp(QStringLiteral("ffmpeg cannot make ") + path);
    return path;
}

/// An engine with one film that plays, as the panel has it. Every call is timed.
class Preview
{
public:
    explicit Preview(const QString &path)
        : m_pixels(size_t(FrameWidth) * size_t(FrameHeight) * NxPreviewSlots::BytesPerPixel)
    {
        NxEmbeddedEngine::Options options;
        options.pictureFolder = m_folder.filePath(QStringLiteral("pictures"));
        m_engine = std::make_unique<NxEmbeddedEngine>(options);
        m_age.start();
        timed([&] {
            m_timeline.reset(m_engine->createTimeline(m_engine->createVideoClip(path)));
            m_timeline->setOutputSize(1920, 1080);
        });
    }
    [[nodiscard]] bool show(qint64 frame)
    {
        bool isThere = false;
        timed([&] {
            isThere = m_timeline->renderFrame(frame, FrameWidth, FrameHeight, m_pixels.data());
        });
        return isThere;
    }
    /// Takes a frame as soon as it is there.
    void await(qint64 frame)
    {
        while (!show(frame)) {
            if (m_age.elapsed() > LongestWait)
                giveUp(QStringLiteral("no frame comes"));
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        }
    }
    /// ms since it was made.
    [[nodiscard]] double age() const { return milliseconds(m_age); }
    /// Of one call, ms: by the clock, and of work alone. The worker renders on all cores, so the
    /// clock counts what the system gave to it meanwhile.
    [[nodiscard]] double longestHold() const { return m_longestHold; }
    [[nodiscard]] double longestWork() const { return m_longestWork; }

private:
    void timed(const std::function<void()> &call)
    {
        QElapsedTimer timer;
        timer.start();
        const double before = workedMilliseconds();
        call();
        m_longestWork = std::max(m_longestWork, workedMilliseconds() - before);
        m_longestHold = std::max(m_longestHold, milliseconds(timer));
    }

    const QTemporaryDir m_folder;
    std::vector<uchar> m_pixels;
    std::unique_ptr<NxEmbeddedEngine> m_engine;
    std::unique_ptr<INxTimeline> m_timeline;
    QElapsedTimer m_age;
    double m_longestHold = 0;
    double m_longestWork = 0;
};

void firstFrame(benchmark::State &state)
{
    const Clip &clip = Clips[state.range(0)];
    const QString path = made(clip);
    std::vector<double> waits;
    double hold = 0;
    double work = 0;
    for (auto _ : state) {
        Preview preview(path);
        preview.await(0);
        waits.push_back(preview.age());
        hold = std::max(hold, preview.longestHold());
        work = std::max(work, preview.longestWork());
        state.SetIterationTime(waits.back() / MillisecondsPerSecond);
    }
    state.SetLabel(clip.name);
    state.counters["ours_ms"] = median(waits);
    state.counters["bound_ms"] = FirstFrameBound;
    state.counters["ratio"] = median(waits) / FirstFrameBound;
    state.counters["hold_ms"] = work;
    state.counters["hold_clock_ms"] = hold;
    state.counters["hold_ratio"] = work / HoldBound;
}
BENCHMARK(firstFrame)
    ->DenseRange(0, int(std::size(Clips)) - 1)
    ->UseManualTime()
    ->Iterations(Rounds)
    ->Unit(benchmark::kMillisecond);

void framesASecond(benchmark::State &state)
{
    const Clip &clip = Clips[state.range(0)];
    const QString path = made(clip);
    std::vector<double> rates;
    for (auto _ : state) {
        Preview preview(path);
        preview.await(0);
        const double begin = preview.age();
        for (qint64 frame = 1; frame <= Frames; ++frame)
            preview.await(frame);
        const double spent = preview.age() - begin;
        rates.push_back(double(Frames) * MillisecondsPerSecond / spent);
        state.SetIterationTime(spent / MillisecondsPerSecond);
    }
    state.SetLabel(clip.name);
    state.counters["ours_fps"] = median(rates);
    state.counters["bound_fps"] = RateBound;
    state.counters["ratio"] = RateBound / median(rates);
}
BENCHMARK(framesASecond)
    ->DenseRange(0, int(std::size(Clips)) - 1)
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

void playingAtItsOwnSpeed(benchmark::State &state)
{
    const Clip &clip = Clips[state.range(0)];
    Preview preview(made(clip));
    preview.await(0);
    const double begin = preview.age();
    double longest = 0;
    int missed = 0;
    for (auto _ : state) {
        QEventLoop loop;
        QTimer timer;
        qint64 frame = 0;
        timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
            missed += preview.show(frame) ? 0 : 1;
            if (++frame == Steps)
                loop.quit();
        });
        const Heartbeat heartbeat;
        timer.start(Step);
        loop.exec();
        longest = heartbeat.longest();
        state.SetIterationTime((preview.age() - begin) / MillisecondsPerSecond);
    }
    state.SetLabel(clip.name);
    state.counters["hold_ms"] = preview.longestWork();
    state.counters["hold_clock_ms"] = preview.longestHold();
    state.counters["bound_ms"] = HoldBound;
    state.counters["ratio"] = preview.longestWork() / HoldBound;
    state.counters["between_turns_ms"] = longest;
    state.counters["missed"] = missed;
}
BENCHMARK(playingAtItsOwnSpeed)
    ->DenseRange(0, int(std::size(Clips)) - 1)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
