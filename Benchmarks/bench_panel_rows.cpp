// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What the rows of the panel's view cost without the window: laying out 3,000 groups (4 us), taking
// up a reset of very many media (a tenth of what a QListView needs), a screen full of the list.

#include "BenchmarkTools.h"
#include "PanelStage.h"
#include "PanelYard.h"

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaViews/NxMediaGrid_p.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxVBLEngine/objects/NxEngineMedia.h>
#include <NxVBLModel/INxFolderMedia.h>

#include <QApplication>
#include <QHeaderView>
#include <QImage>
#include <QListView>
#include <QMetaObject>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

using namespace NXMEDIALIBRARY;

namespace {

constexpr QSize Tile{176, 130};

void layOutGroups(benchmark::State &state)
{
    constexpr int Groups = 3'000;
    constexpr int MediaEach = 33;
    QVector<int> heads;
    for (int group = 0; group < Groups; ++group)
        heads.append(group * (MediaEach + 1));
    NxMediaGrid::Measures measures;
    measures.cell = Tile;
    measures.headHeight = 30;
    measures.width = PanelStage::FullHd.width();
    measures.spacing = 4;
    NxMediaGrid grid;
    for (auto turn : state) {
        Q_UNUSED(turn)
        grid.layOut(Groups * (MediaEach + 1), heads, measures);
        benchmark::DoNotOptimize(grid.height());
    }
    state.counters["bound_us"] = 4;
}

/// A section that lists what it is given.
class ListFolder final : public INxFolderMedia
{
public:
    QList<INxAbstractMedia *> items(bool, bool) const override { return listed; }
    int folderId() const override { return NXVBLMODEL::fidRoot; }
    int kind() const override { return NXVBLMODEL::fkProject; }
    INxFolderMedia *owner() const override { return const_cast<ListFolder *>(this); }

    QList<INxAbstractMedia *> listed;
};

struct Rows
{
    explicit Rows(int count) : model(NXVBLMODEL::mctMedia, nullptr)
    {
        media.reserve(size_t(count));
        for (int i = 0; i < count; ++i) {
            NxMediaRecord record;
            record.id = i + 1;
            record.name = QStringLiteral("DSC_%1.MOV").arg(i);
            record.path = QStringLiteral("/Volumes/Footage/") + record.name;
            media.push_back(std::make_unique<NxEngineMedia>(record));
            folder.listed.append(media.back().get());
        }
        model.load(&folder);
    }

    std::vector<std::unique_ptr<NxEngineMedia>> media;
    ListFolder folder;
    NxMediaItemModel model;
};

/// The model says that everything changed, and the view lays out its rows.
template<typename LayOut>
double takeUpReset(QAbstractItemModel *model, LayOut layOut)
{
    QElapsedTimer timer;
    timer.start();
    QMetaObject::invokeMethod(model, "modelAboutToBeReset");
    QMetaObject::invokeMethod(model, "modelReset");
    layOut();
    return milliseconds(timer);
}

void reset(benchmark::State &state)
{
    const int count = int(state.range(0));
    Rows rows(count);
    NxMediaItemView view;
    view.resize(PanelStage::FullHd);
    QListView plain;
    plain.setViewMode(QListView::IconMode);
    plain.setUniformItemSizes(true);
    plain.resize(PanelStage::FullHd);
    std::vector<double> ours;
    std::vector<double> bounds;
    const auto settle = [&] { benchmark::DoNotOptimize(view.visibleRows()); };
    for (auto turn : state) {
        Q_UNUSED(turn)
        plain.setModel(&rows.model);
        bounds.push_back(takeUpReset(&rows.model, [&] { plain.doItemsLayout(); }));
        plain.setModel(nullptr);
        view.setModel(&rows.model);
        view.selectMedia({rows.folder.listed.at(count / 3)});
        settle();
        ours.push_back(takeUpReset(&rows.model, settle));
        view.setModel(nullptr);
    }
    state.counters["ours_ms"] = median(ours);
    state.counters["bound_ms"] = median(bounds);
    state.counters["ratio"] = median(ours) / median(bounds);
}

/// With as many rows a QListView takes hours.
void resetOfMillion(benchmark::State &state)
{
    constexpr int Count = 1'000'000;
    Rows rows(Count);
    NxMediaItemView view;
    view.resize(PanelStage::FullHd);
    view.setModel(&rows.model);
    view.selectMedia({rows.folder.listed.at(Count / 3)});
    const auto settle = [&] { benchmark::DoNotOptimize(view.visibleRows()); };
    settle();
    for (auto turn : state) {
        Q_UNUSED(turn)
        takeUpReset(&rows.model, settle);
    }
}

/// The bound: as many texts.
double drawTexts(QImage *screen, const NxMediaItemView &view, int rows)
{
    QElapsedTimer timer;
    timer.start();
    QPainter canvas(screen);
    canvas.setFont(view.font());
    canvas.fillRect(screen->rect(), view.palette().base());
    const int columns = view.columnHeader()->count();
    const QSize cell(screen->width() / columns, screen->height() / rows);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const QPoint place(column * cell.width(), row * cell.height());
            canvas.drawText(QRect(place, cell), Qt::AlignVCenter,
                            QStringLiteral("text %1").arg(row * columns + column));
        }
    }
    return milliseconds(timer);
}

/// In a viewport of 1920 x 1080 that shows every column.
void paintList(benchmark::State &state)
{
    PanelStage stage;
    stage.open(PanelYard::project(1'000));
    NxMediaItemView *view = stage.view();
    stage.items()->setViewMode(vmList);
    view->setParent(nullptr);
    view->viewport()->setFixedSize(PanelStage::FullHd);
    view->show();
    QHeaderView *columns = view->columnHeader();
    for (int column = 0; column < columns->count(); ++column)
        columns->resizeSection(column, PanelStage::FullHd.width() / columns->count());
    view->resize(view->size() + PanelStage::FullHd - view->viewport()->size());
    stage.settle();
    QImage screen(PanelStage::FullHd, QImage::Format_RGB32);
    const auto [first, last] = view->visibleRows();
    std::vector<double> ours;
    std::vector<double> bounds;
    for (auto turn : state) {
        Q_UNUSED(turn)
        bounds.push_back(drawTexts(&screen, *view, last - first + 1));
        QElapsedTimer timer;
        timer.start();
        view->viewport()->render(&screen);
        ours.push_back(milliseconds(timer));
    }
    state.counters["rows"] = last - first + 1;
    state.counters["columns"] = columns->count();
    state.counters["ms"] = median(ours);
    state.counters["bound_ms"] = median(bounds);
    state.counters["ratio"] = median(ours) / median(bounds);
}

} // namespace

BENCHMARK(layOutGroups)->Unit(benchmark::kMicrosecond);
BENCHMARK(reset)->Arg(10'000)->Arg(100'000)->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(resetOfMillion)->Iterations(11)->Unit(benchmark::kMillisecond);
BENCHMARK(paintList)->Iterations(101)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    PanelYard::settle();
    const std::unique_ptr<QApplication> application = PanelStage::application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
