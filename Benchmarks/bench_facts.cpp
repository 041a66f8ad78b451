// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What files tell of themselves: the facts of every kind of footage, read as the worker reads
// them. The bound is what a program does that knows no better: open every file with FFmpeg and
// analyse its streams, pictures included, in one process. The footage of the tests is so small
// that opening it is half of the bound; what cameras write is measured by itself.

#include "BenchmarkTools.h"
#include "CameraFootage.h"
#include "FullAnalysis.h"

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <brevano-worker/facts/FactsReader.h>
#include <brevano-worker/input/Container.h>
#include <brevano-worker/input/FootageFile.h>

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

extern "C" {
#include <libavutil/log.h>
}

namespace {

constexpr int Rounds = 11;

struct Footage
{
    QByteArray path;
    NxFootageKind kind;
};

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

void readFacts(benchmark::State &state, std::vector<Footage> files)
{
    // What FFmpeg cannot read has no bound; nothing is left out on our side alone.
    files.erase(std::remove_if(files.begin(), files.end(),
                               [](const Footage &file) { return !analyseFully(file.path); }),
                files.end());
    std::vector<double> ours;
    std::vector<double> bound;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        for (const Footage &file : files)
            benchmark::DoNotOptimize(analyseFully(file.path));
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
    std::vector<Footage> files;
    for (const CameraFootage::File &file : CameraFootage::files())
        files.push_back({QFile::encodeName(file.path), file.kind});
    readFacts(state, files);
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
