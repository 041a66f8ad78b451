// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Ten thousand files through the window: how long it takes, and for how long the event loop, which
// paints the panel, is held at most (16 ms). First their names, then what is in them: nothing,
// which the workers find out.

#include "BenchmarkTools.h"
#include "Heartbeat.h"
#include "PanelStage.h"
#include "PanelYard.h"

#include <Brevano/window/ImportDesk.h>
#include <Brevano/window/ProjectHolder.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/INxProject.h>

#include <QApplication>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QEventLoop>

#include <benchmark/benchmark.h>

namespace {

constexpr int Files = 10'000;
constexpr double LongestHold = 16; // ms
constexpr double Most = 0.999;

struct Holds
{
    void add(const Heartbeat &beat)
    {
        longest = std::max(longest, beat.longest());
        worked = std::max(worked, beat.longestWorked());
        most = std::max(most, beat.quantile(Most));
    }
    double longest = 0;
    double worked = 0;
    double most = 0;
};

double importAll(PanelStage *stage, const QStringList &paths, Holds *holds)
{
    QEventLoop loop;
    QObject::connect(stage->window()->desk(), &ImportDesk::sigFinished, &loop, &QEventLoop::quit);
    QElapsedTimer timer;
    timer.start();
    const Heartbeat beat;
    stage->window()->importPaths(paths);
    loop.exec();
    holds->add(beat);
    return milliseconds(timer);
}

double readAll(PanelStage *stage, Holds *holds)
{
    INxFootageService *service = stage->window()->holder()->project()->footageService();
    QEventLoop loop;
    QObject::connect(service, &INxFootageService::idle, &loop, &QEventLoop::quit);
    QElapsedTimer timer;
    timer.start();
    const Heartbeat beat;
    if (!service->isIdle())
        loop.exec();
    holds->add(beat);
    return milliseconds(timer);
}

/// The files of ten folders, named one by one: all of them appear in the folder that is shown.
QStringList filesBelow(const QString &folder)
{
    QStringList files;
    QDirIterator each(folder, QDir::Files, QDirIterator::Subdirectories);
    while (each.hasNext())
        files += each.next();
    return files;
}

void importFiles(benchmark::State &state)
{
    Holds importing;
    Holds reading;
    std::vector<double> imports;
    std::vector<double> readings;
    int round = 0;
    for (auto turn : state) {
        Q_UNUSED(turn)
        PanelStage stage;
        stage.create(PanelYard::path(QStringLiteral("Import %1.brevano").arg(++round)));
        const QStringList files = filesBelow(PanelYard::freshFiles(Files));
        imports.push_back(importAll(&stage, files, &importing));
        if (stage.view()->mediaModel()->rowCount() < Files)
            state.SkipWithError("the panel does not list all");
        readings.push_back(readAll(&stage, &reading));
    }
    state.counters["import_ms"] = median(imports);
    state.counters["import_longest_hold_ms"] = importing.longest;
    state.counters["import_longest_worked_ms"] = importing.worked;
    state.counters["import_hold_999_ms"] = importing.most;
    state.counters["read_ms"] = median(readings);
    state.counters["read_longest_hold_ms"] = reading.longest;
    state.counters["read_longest_worked_ms"] = reading.worked;
    state.counters["read_hold_999_ms"] = reading.most;
    state.counters["bound_ms"] = LongestHold;
}

} // namespace

BENCHMARK(importFiles)->Iterations(3)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    PanelYard::settle();
    const std::unique_ptr<QApplication> application = PanelStage::application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
