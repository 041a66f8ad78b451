// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Starting the program: from the moment at which it is asked for to a painted panel (the samples
// 700 ms, 100,000 clips 1,500 ms), and on to all covers that can be seen, which lie in the cache
// (1,000 ms). And what a process holds that has scrolled through all clips (400 MB; of that, covers
// as the project has them 128 MiB at most, and as the panel paints them 64 MiB).
//
// This program starts itself, for the part of the program that is measured.

#include "BenchmarkTools.h"
#include "PanelStage.h"
#include "PanelYard.h"

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaViews/NxMediaItemView.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QScrollBar>

#include <benchmark/benchmark.h>

#include <cstdio>

namespace {

constexpr int Clips = 100'000;
constexpr int Starts = 7;
constexpr double KiBPerMB = 1e6 / 1024;
const auto Show = QStringLiteral("--show");
const auto ScrollThrough = QStringLiteral("--scroll");

/// The same clock in all processes.
double nowMilliseconds()
{
    constexpr double MillisecondsPerSecond = 1e3;
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return double(now.tv_sec) * MillisecondsPerSecond
           + double(now.tv_nsec) / NanosecondsPerMillisecond;
}

// In the process that is started

double residentMB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        giveUp(status.fileName());
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / KiBPerMB;
    }
    giveUp(QStringLiteral("VmRSS"));
}

void show(const QString &project)
{
    PanelStage stage;
    stage.open(project);
    const double painted = nowMilliseconds();
    stage.settle();
    std::printf("%.3f %.3f\n", painted, nowMilliseconds());
}

/// By screens; at each the covers are waited for.
void scrollThrough(const QString &project)
{
    PanelStage stage;
    stage.open(project);
    stage.settle();
    const double before = residentMB();
    QScrollBar *bar = stage.view()->verticalScrollBar();
    while (bar->value() < bar->maximum()) {
        stage.paint([&] { bar->setValue(bar->value() + bar->pageStep()); });
        stage.settle();
    }
    std::printf("%.3f %.3f\n", before, residentMB());
}

// In the process that measures

/// What the process printed.
QList<double> started(const QString &deed, const QString &project)
{
    constexpr int LongestWait = 600'000; // ms
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {deed, project});
    if (!process.waitForFinished(LongestWait) || process.exitCode() != 0)
        giveUp(process.errorString());
    QList<double> numbers;
    for (const QByteArray &number : process.readAllStandardOutput().trimmed().split(' '))
        numbers.append(number.toDouble());
    return numbers;
}

void start(benchmark::State &state, const QString &project, double bound)
{
    std::vector<double> painted;
    std::vector<double> covered;
    for (auto turn : state) {
        Q_UNUSED(turn)
        const double before = nowMilliseconds();
        const QList<double> told = started(Show, project);
        painted.push_back(told.at(0) - before);
        covered.push_back(told.at(1) - told.at(0));
    }
    state.counters["painted_ms"] = median(painted);
    state.counters["bound_ms"] = bound;
    state.counters["covers_ms"] = median(covered);
    state.counters["covers_bound_ms"] = 1000;
}

void startWithSamples(benchmark::State &state)
{
    start(state, PanelYard::sampleProject(), 700);
}

void startWithManyClips(benchmark::State &state)
{
    start(state, PanelYard::project(Clips), 1500);
}

void memoryAfterScrolling(benchmark::State &state)
{
    const QString project = PanelYard::project(Clips);
    for (auto turn : state) {
        Q_UNUSED(turn)
        const QList<double> told = started(ScrollThrough, project);
        state.counters["before_MB"] = told.at(0);
        state.counters["resident_MB"] = told.at(1);
        state.counters["bound_MB"] = 400;
    }
}

} // namespace

BENCHMARK(startWithSamples)->Iterations(Starts)->Unit(benchmark::kMillisecond);
BENCHMARK(startWithManyClips)->Iterations(Starts)->Unit(benchmark::kMillisecond);
BENCHMARK(memoryAfterScrolling)->Iterations(1)->Unit(benchmark::kSecond);

int main(int argc, char **argv)
{
    const QStringList words = [&] {
        QStringList all;
        for (int i = 0; i < argc; ++i)
            all.append(QFile::decodeName(argv[i]));
        return all;
    }();
    const bool isStarted = words.size() == 3 && words.at(1).startsWith(QLatin1String("--s"));
    if (!isStarted)
        PanelYard::settle();
    const std::unique_ptr<QApplication> application = PanelStage::application(argc, argv);
    if (isStarted) {
        (words.at(1) == Show ? show : scrollThrough)(words.at(2));
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
