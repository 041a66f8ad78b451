// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// The panel in its window, with 100,000 clips: how long it takes until what somebody does has been
// painted. A frame may take 8 ms, another order or choice 80 ms, a key in the search field 30 ms.

#include "BenchmarkTools.h"
#include "PanelStage.h"
#include "PanelYard.h"

#include <Brevano/window/PanelView.h>
#include <Brevano/window/SearchField.h>
#include <Brevano/window/ToolRow.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaViews/NxMediaItemView.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QWheelEvent>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <iterator>
#include <vector>

using namespace NXMEDIALIBRARY;

namespace {

constexpr int Clips = 100'000;
constexpr int Turns = 10;
constexpr double MillisecondsPerSecond = 1e3;

/// What was measured, beside the most that a user would put up with.
class Costs
{
public:
    void add(const PanelStage::Cost &cost)
    {
        m_clock.push_back(cost.ms);
        m_worked.push_back(cost.worked);
    }
    void report(benchmark::State *state, double bound) const
    {
        state->counters["median_ms"] = median(m_clock);
        state->counters["worst_ms"] = *std::max_element(m_clock.begin(), m_clock.end());
        state->counters["median_worked_ms"] = median(m_worked);
        state->counters["worst_worked_ms"] = *std::max_element(m_worked.begin(), m_worked.end());
        state->counters["bound_ms"] = bound;
    }

private:
    std::vector<double> m_clock;
    std::vector<double> m_worked;
};

/// The frames of a scroll that goes the same way several times. What makes one of them late once
/// and not again is the machine's, which does other things, too: "machine" tells how often.
class Frames
{
public:
    void beginPass() { m_passes.emplace_back(); }
    void add(const PanelStage::Cost &cost)
    {
        m_passes.back().push_back(cost.ms);
        m_costs.add(cost);
    }
    void report(benchmark::State *state, double bound) const
    {
        m_costs.report(state, bound);
        std::vector<double> all;
        for (const std::vector<double> &pass : m_passes)
            all.insert(all.end(), pass.begin(), pass.end());
        std::sort(all.begin(), all.end());
        const auto over = std::upper_bound(all.begin(), all.end(), bound);
        state->counters["frames"] = double(all.size());
        state->counters["most_ms"] = all.at(size_t(double(all.size()) * Most));
        state->counters["over_bound"] = double(std::distance(over, all.end()));
        state->counters["worst_of_medians_ms"] = worstOfMedians();
    }

private:
    static constexpr double Most = 0.99;

    /// Each frame by its middle pass.
    [[nodiscard]] double worstOfMedians() const
    {
        double worst = 0;
        for (size_t frame = 0; frame < m_passes.front().size(); ++frame) {
            std::vector<double> one;
            for (const std::vector<double> &pass : m_passes)
                one.push_back(pass.at(frame));
            worst = std::max(worst, median(one));
        }
        return worst;
    }

    std::vector<std::vector<double>> m_passes; // ms
    Costs m_costs;
};

class Panel : public PanelStage
{
public:
    Panel()
    {
        open(PanelYard::project(Clips));
        findFiles();
        items()->setFilter({}); // Not as the one before left it.
        items()->setGroupBy({});
        items()->setSortBy({sbName, soASC});
        items()->setViewMode(vmLargeThumbnail);
        settle();
        if (view()->mediaModel()->rowCount() < Clips)
            giveUp(QStringLiteral("the panel does not list all"));
    }
};

void wheel(QWidget *viewport, int notches)
{
    const QPointF place = viewport->rect().center();
    QWheelEvent event(place, viewport->mapToGlobal(place.toPoint()), {},
                      {0, -notches * QWheelEvent::DefaultDeltasPerStep}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(viewport, &event);
}

constexpr int MostFrames = 1'500;
constexpr int Passes = 3;
constexpr double FrameBound = 8; // ms

/// As far as the wheel goes, or as many frames as are asked for.
void scroll(benchmark::State &state, NxMediaItemViewMode mode, NxMediaItemViewGroupBy group,
            int notches)
{
    Frames frames;
    for (auto turn : state) {
        Q_UNUSED(turn)
        state.PauseTiming();
        Panel panel;
        panel.items()->setViewMode(mode);
        panel.items()->setGroupBy({group, soASC, nullptr});
        panel.settle();
        QScrollBar *bar = panel.view()->verticalScrollBar();
        bar->setValue(0); // Another order keeps what is at the top where it is.
        panel.settle();
        frames.beginPass();
        state.ResumeTiming();
        for (int i = 0; i < MostFrames && bar->value() < bar->maximum(); ++i)
            frames.add(panel.paint([&] { wheel(panel.view()->viewport(), notches); }));
        state.PauseTiming();
        state.counters["screens"] = double(bar->value()) / panel.view()->viewport()->height();
        state.ResumeTiming();
    }
    frames.report(&state, FrameBound);
}

/// As many frames that paint nothing and only count, each as long as one of a scroll.
void machine(benchmark::State &state)
{
    constexpr quint32 steps = 2'000'000;
    Frames frames;
    for (auto turn : state) {
        Q_UNUSED(turn)
        frames.beginPass();
        for (int i = 0; i < MostFrames; ++i) {
            const double worked = workedMilliseconds();
            QElapsedTimer timer;
            timer.start();
            quint32 number = quint32(i);
            for (quint32 step = 0; step < steps; ++step)
                benchmark::DoNotOptimize(number = number * 1664525 + 1013904223);
            frames.add({milliseconds(timer), workedMilliseconds() - worked});
        }
    }
    frames.report(&state, FrameBound);
}

using Deed = std::function<void(NxMediaItemManagerPresenter *, int turn)>;

/// Alternately one way and another.
void change(benchmark::State &state, const Deed &deed)
{
    constexpr double Bound = 80; // ms
    Panel panel;
    Costs costs;
    int turns = 0;
    for (auto turn : state) {
        Q_UNUSED(turn)
        const PanelStage::Cost cost = panel.paint([&] { deed(panel.items(), turns); });
        costs.add(cost);
        state.SetIterationTime(cost.ms / MillisecondsPerSecond);
        if (++turns == 1)
            state.counters["first_ms"] = cost.ms;
    }
    costs.report(&state, Bound);
}

void sort(NxMediaItemManagerPresenter *items, int turn)
{
    static constexpr NxMediaItemViewSortBy keys[] = {sbDateCreated, sbName, sbDuration, sbType};
    items->setSortBy({keys[turn % 4], turn / 4 % 2 == 0 ? soASC : soDESC});
}

void group(NxMediaItemManagerPresenter *items, int turn)
{
    static constexpr NxMediaItemViewGroupBy keys[] = {gbDateCreated, gbNone, gbType, gbDuration,
                                                      gbCameraName};
    items->setGroupBy({keys[turn % 5], soASC, nullptr});
}

void filterType(NxMediaItemManagerPresenter *items, int turn)
{
    static constexpr NxMediaTypeFilter types[] = {mtfVideo, mtfAudio, mtfAll};
    items->setFilterType(types[turn % 3]);
}

void viewMode(NxMediaItemManagerPresenter *items, int turn)
{
    static constexpr NxMediaItemViewMode modes[] = {vmList, vmSmallThumbnail, vmMiddleThumbnail,
                                                    vmLargeThumbnail};
    items->setViewMode(modes[turn % 4]);
}

void press(QLineEdit *field, int key, const QString &text)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(field, &event);
}

/// A word is typed and taken back letter by letter.
void search(benchmark::State &state)
{
    constexpr double Bound = 30; // ms
    static const auto word = QStringLiteral("view 00");
    Panel panel;
    auto *field = panel.window()->panel()->toolRow()->searchField()->findChild<QLineEdit *>();
    Costs costs;
    const auto type = [&](int key, const QString &text) {
        costs.add(panel.paint([&] { press(field, key, text); }));
    };
    for (auto turn : state) {
        Q_UNUSED(turn)
        for (const QChar letter : word)
            type(letter.toUpper().unicode(), letter);
        state.counters["found"] = panel.view()->mediaModel()->rowCount();
        for (int i = 0; i < word.size(); ++i)
            type(Qt::Key_Backspace, {});
    }
    costs.report(&state, Bound);
}

} // namespace

BENCHMARK_CAPTURE(scroll, large_by_notches, vmLargeThumbnail, gbNone, 1)
    ->Iterations(Passes)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(scroll, large_through_all, vmLargeThumbnail, gbNone, 12)
    ->Iterations(Passes)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(scroll, large_of_3000_days, vmLargeThumbnail, gbDateCreated, 12)
    ->Iterations(Passes)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(scroll, small_through_all, vmSmallThumbnail, gbNone, 4)
    ->Iterations(Passes)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(scroll, list_by_pages, vmList, gbNone, 10)
    ->Iterations(Passes)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(machine)->Iterations(Passes)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(change, sort, &sort)
    ->Iterations(2 * Turns)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(change, group, &group)
    ->Iterations(2 * Turns)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(change, filter_type, &filterType)
    ->Iterations(2 * Turns)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(change, view_mode, &viewMode)
    ->Iterations(2 * Turns)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(search)->Iterations(Turns)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    PanelYard::settle();
    const std::unique_ptr<QApplication> application = PanelStage::application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
