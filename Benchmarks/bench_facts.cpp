// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What files tell of themselves: the facts of every kind of footage, read as the worker reads
// them. The bound is what a program does that knows no better: open every file with FFmpeg and
// analyse its streams, pictures included, in one process. The footage of the tests is so small
// that opening it is half of the bound; what cameras write is measured by itself.

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <brevano-worker/facts/FactsReader.h>
#include <brevano-worker/input/Container.h>
#include <brevano-worker/input/FootageFile.h>

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/log.h>
}

namespace {

constexpr int Rounds = 11;
constexpr double NanosecondsPerMillisecond = 1e6;

struct Footage
{
    QByteArray path;
    NxFootageKind kind;
};

struct Clip
{
    const char *name;
    NxFootageKind kind;
    const char *arguments; ///< Of ffmpeg.
};

constexpr const char *Moving = "-f lavfi -i testsrc2=s=1920x1080:r=25:d=4 ";
constexpr const char *Sound = "-f lavfi -i sine=r=48000:d=4 ";
constexpr const char *Photo = "-f lavfi -i testsrc2=s=4000x3000 -frames:v 1 ";

// In 1080p, as cameras, editors and telephones write them.
constexpr Clip Clips[] = {
    {"camera.mp4", NxFootageKind::Video, "-c:v libx264 -preset veryfast -b:v 12M -c:a aac"},
    {"camera.mov", NxFootageKind::Video, "-c:v libx264 -preset veryfast -b:v 12M -c:a pcm_s16le"},
    {"recorder.mkv", NxFootageKind::Video, "-c:v libx264 -preset veryfast -b:v 12M -c:a aac"},
    {"telephone.mp4", NxFootageKind::Video,
     "-c:v libx265 -preset ultrafast -x265-params log-level=none -c:a aac"},
    {"browser.webm", NxFootageKind::Video,
     "-c:v libvpx-vp9 -deadline realtime -cpu-used 8 -c:a libopus"},
    {"editor.mov", NxFootageKind::Video, "-c:v prores_ks -profile:v 1 -c:a pcm_s16le"},
    {"camcorder.ts", NxFootageKind::Video, "-c:v libx264 -preset veryfast -b:v 12M -c:a aac"},
    {"disc.mpg", NxFootageKind::Video, "-c:v mpeg2video -b:v 8M -c:a mp2"},
    {"broadcast.mxf", NxFootageKind::Video,
     "-c:v dnxhd -profile:v dnxhr_lb -pix_fmt yuv422p -c:a pcm_s16le"},
    {"old.avi", NxFootageKind::Video, "-c:v mjpeg -c:a pcm_s16le"},
    {"voice.wav", NxFootageKind::Audio, ""},
    {"music.mp3", NxFootageKind::Audio, ""},
    {"music.m4a", NxFootageKind::Audio, ""},
    {"photo.jpg", NxFootageKind::Image, "-pix_fmt yuvj420p"},
    {"drawing.png", NxFootageKind::Image, ""},
};

QString inputsOf(NxFootageKind kind)
{
    if (kind == NxFootageKind::Image)
        return QLatin1String(Photo);
    return kind == NxFootageKind::Audio ? QLatin1String(Sound)
                                        : QLatin1String(Moving) + QLatin1String(Sound);
}

/// Made by the first who asks, and gone with the program.
const std::vector<Footage> &cameraFootage()
{
    static const QTemporaryDir dir;
    static const std::vector<Footage> files = [] {
        std::vector<Footage> made;
        for (const Clip &clip : Clips) {
            const QString path = dir.filePath(QLatin1String(clip.name));
            const QString arguments = QStringLiteral("-v error -y ") + inputsOf(clip.kind)
                                      + QLatin1String(clip.arguments);
            const int code = QProcess::execute(QStringLiteral("ffmpeg"),
                                               arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts)
                                                   + QStringList{path});
            if (code != 0)
                qFatal("ffmpeg cannot make %s", clip.name);
            made.push_back({QFile::encodeName(path), clip.kind});
        }
        return made;
    }();
    return files;
}

/// The files of one kind, or of all kinds when it is Unknown.
std::vector<Footage> footage(NxFootageKind kind)
{
    std::vector<Footage> files;
    for (const NxFootageRecipe &recipe : NxFootageRecipes::all()) {
        if (kind == NxFootageKind::Unknown || recipe.truth.kind == kind)
            files.push_back({QFile::encodeName(NxFootageSet::path(recipe)), recipe.truth.kind});
    }
    return files;
}

NxResult<NxFootageFacts> factsOf(const Footage &footage)
{
    const auto file = FootageFile::open(footage.path);
    if (!file)
        return file.error();
    if (footage.kind == NxFootageKind::Subtitle)
        return FactsReader::ofText(file->get());
    if (footage.kind == NxFootageKind::Image && !footage.path.endsWith(".gif"))
        return FactsReader::ofStill(file->get());
    const auto container = Container::open(file->get());
    return container ? FactsReader::ofStream(container->get())
                     : NxResult<NxFootageFacts>(container.error());
}

/// True when FFmpeg can read the file at all.
bool analyse(const Footage &footage)
{
    AVFormatContext *format = nullptr;
    if (avformat_open_input(&format, footage.path.constData(), nullptr, nullptr) < 0)
        return false;
    const bool isAnalysed = avformat_find_stream_info(format, nullptr) >= 0;
    avformat_close_input(&format);
    return isAnalysed;
}

double milliseconds(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / NanosecondsPerMillisecond;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

void readFacts(benchmark::State &state, std::vector<Footage> files)
{
    // What FFmpeg cannot read has no bound; nothing is left out on our side alone.
    files.erase(std::remove_if(files.begin(), files.end(),
                               [](const Footage &file) { return !analyse(file); }),
                files.end());
    std::vector<double> ours;
    std::vector<double> bound;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        for (const Footage &file : files)
            benchmark::DoNotOptimize(analyse(file));
        bound.push_back(milliseconds(timer));
        timer.start();
        for (const Footage &file : files) {
            const auto facts = factsOf(file);
            if (!facts)
                qFatal("%s: %s", file.path.constData(), qUtf8Printable(facts.errorText()));
        }
        ours.push_back(milliseconds(timer));
        state.SetIterationTime(ours.back() / 1'000);
    }
    state.counters["files"] = double(files.size());
    state.counters["ours_ms"] = median(ours);
    state.counters["bound_ms"] = median(bound);
    state.counters["ratio"] = median(ours) / median(bound);
}

void readTestFootage(benchmark::State &state)
{
    readFacts(state, footage(NxFootageKind(state.range(0))));
}
BENCHMARK(readTestFootage)
    ->ArgName("kind")
    ->Arg(int(NxFootageKind::Unknown))
    ->Arg(int(NxFootageKind::Video))
    ->Arg(int(NxFootageKind::Audio))
    ->Arg(int(NxFootageKind::Image))
    ->UseManualTime()
    ->Iterations(Rounds)
    ->Unit(benchmark::kMillisecond);

void readCameraFootage(benchmark::State &state)
{
    readFacts(state, cameraFootage());
}
BENCHMARK(readCameraFootage)->UseManualTime()->Iterations(Rounds)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    av_log_set_level(AV_LOG_QUIET);
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
