// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "BenchmarkTools.h"

#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>
#include <NxMediaViews/NxMediaItemPainter.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxBsThumbManager.h>
#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/NxMediaEngineDoor.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QAbstractListModel>
#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QStyleOptionViewItem>

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>

// A screen full of media painted into a picture, beside as many covers drawn without anything.
namespace {

constexpr QSize Screen(1920, 1080);
constexpr int Rows = 200;
constexpr int Columns = 17;
constexpr QSize CoverSize(96, 54);
constexpr QSize Cell(112, 90); // 17 x 12 small covers fill the screen.

class FilmInfo final : public INxMediaInfo
{
public:
    explicit FilmInfo(int frames) : m_frames(frames) {}
    int kind() const override { return NXVBLMODEL::mikVideo; }
    int streamFlags() const override { return NXVBLMODEL::sfVideo; }
    qint64 frameCount() const override { return m_frames; }
    NxRational frameRate() const override { return {25, 1}; }

private:
    const int m_frames;
};

/// A clip with every mark.
class Clip final : public INxAbstractMediaItem
{
public:
    explicit Clip(int number)
        : m_number(number),
          m_name(QStringLiteral("GX01%1 harbour at dawn.mov").arg(number, 4, 10, QLatin1Char('0'))),
          m_info(number * 37)
    {
    }
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideoAudio; }
    QString name() const override { return m_name; }
    int state() const override { return NXVBLMODEL::lsPremium; }
    QString filePath() const override { return m_name; }
    const INxMediaInfo *mediaInfo() const override { return &m_info; }
    int usedCount() const override { return 1; }

    int number() const { return m_number; }

private:
    const int m_number;
    const QString m_name;
    const FilmInfo m_info;
};

QImage coverOf(int number, const QSize &size)
{
    QImage cover(size, QImage::Format_RGB32);
    QPainter painter(&cover);
    QLinearGradient ground(0, 0, size.width(), size.height());
    ground.setColorAt(0, QColor::fromHsv(number % 360, 180, 200));
    ground.setColorAt(1, QColor::fromHsv((number + 90) % 360, 90, 120));
    painter.fillRect(cover.rect(), ground);
    return cover;
}

/// Painted before anything is measured.
const std::vector<QImage> &covers()
{
    static const std::vector<QImage> painted = [] {
        std::vector<QImage> made;
        for (int i = 0; i < Rows; ++i)
            made.push_back(coverOf(i, CoverSize));
        return made;
    }();
    return painted;
}

class Thumbs final : public INxBsThumbManager
{
public:
    QImage thumbnail(INxAbstractMedia *media, const QSize &) override
    {
        return covers()[size_t(static_cast<const Clip *>(media)->number())];
    }
    void cancelRequests() override {}
};

class ThumbEngine final : public INxMediaEngine
{
public:
    INxBsThumbManager *createThumbManager() override { return new Thumbs; }
};

class ClipModel final : public QAbstractListModel
{
public:
    ClipModel()
    {
        for (int i = 0; i < Rows; ++i)
            m_clips.push_back(std::make_unique<Clip>(i));
    }
    int rowCount(const QModelIndex &) const override { return Rows; }
    QModelIndex index(int row, int column = 0, const QModelIndex & = QModelIndex()) const override
    {
        return createIndex(row, column,
                           static_cast<INxAbstractMedia *>(m_clips[size_t(row)].get()));
    }
    QVariant data(const QModelIndex &, int) const override { return {}; }

private:
    std::vector<std::unique_ptr<Clip>> m_clips;
};

QPoint placeOf(int row)
{
    return {row % Columns * Cell.width(), row / Columns * Cell.height()};
}

struct Wall
{
    Wall() : painter(new NxMediaItemPainter)
    {
        font.setPixelSize(12);
        painter->setNameFont(font);
        painter->setViewMode(NXMEDIALIBRARY::vmSmallThumbnail);
        painter->setProxyTest([](const INxAbstractMediaItem *) { return true; });
        delegate.setItemPainter(painter);
        option.font = font;
        option.state = QStyle::State_Enabled;
    }
    void drawRow(QPainter *canvas, int row)
    {
        option.rect = QRect(placeOf(row), painter->size());
        delegate.paint(canvas, option, model.index(row));
    }
    void drawAll(QImage *screen)
    {
        QPainter canvas(screen);
        canvas.fillRect(screen->rect(),
                        NxSkinStyle::instance()->GetColor(NxSkinColor::Background_Panel));
        for (int row = 0; row < Rows; ++row)
            drawRow(&canvas, row);
    }

    ThumbEngine engine;
    const NxMediaEngineDoor door{&engine};
    ClipModel model;
    NxMediaItemDelegate delegate;
    NxMediaItemPainter *const painter; // The delegate's.
    QFont font{QStringLiteral("DejaVu Sans")};
    QStyleOptionViewItem option;
};

/// The bound: a ground and as many pixmaps.
struct PlainCovers
{
    PlainCovers()
    {
        for (const QImage &cover : covers())
            pixmaps.push_back(QPixmap::fromImage(cover));
    }
    void drawAll(QImage *screen) const
    {
        QPainter canvas(screen);
        canvas.fillRect(screen->rect(), Qt::darkGray);
        for (int i = 0; i < Rows; ++i)
            canvas.drawPixmap(placeOf(i), pixmaps[size_t(i)]);
    }

    std::vector<QPixmap> pixmaps;
};

double timed(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return milliseconds(timer);
}

void laterFrames(benchmark::State &state)
{
    QImage screen(Screen, QImage::Format_RGB32);
    Wall wall;
    const PlainCovers plain;
    std::vector<double> rows;
    std::vector<double> bounds;
    wall.drawAll(&screen);
    for (auto turn : state) {
        Q_UNUSED(turn)
        bounds.push_back(timed([&] { plain.drawAll(&screen); }));
        rows.push_back(timed([&] { wall.drawAll(&screen); }));
    }
    state.counters["ms"] = median(rows);
    state.counters["bound_ms"] = median(bounds);
    state.counters["ratio"] = median(rows) / median(bounds);
}

void firstFrame(benchmark::State &state)
{
    QImage screen(Screen, QImage::Format_RGB32);
    std::vector<double> frames;
    for (auto turn : state) {
        Q_UNUSED(turn)
        Wall wall;
        frames.push_back(timed([&] { wall.drawAll(&screen); }));
    }
    state.counters["ms"] = median(frames);
}

// What the mouse costs that moves on to another row.
void oneRow(benchmark::State &state)
{
    QImage screen(Screen, QImage::Format_RGB32);
    Wall wall;
    wall.drawAll(&screen);
    std::vector<double> frames;
    std::vector<double> rows;
    int row = 0;
    for (auto turn : state) {
        Q_UNUSED(turn)
        QPainter canvas(&screen);
        row = (row + 1) % Rows;
        wall.option.state = QStyle::State_Enabled | QStyle::State_MouseOver;
        rows.push_back(timed([&] { wall.drawRow(&canvas, row); }));
        canvas.end();
        wall.option.state = QStyle::State_Enabled;
        frames.push_back(timed([&] { wall.drawAll(&screen); }));
    }
    state.counters["ms"] = median(rows);
    state.counters["frame_ms"] = median(frames);
    state.counters["part_of_frame"] = median(rows) / median(frames);
}

} // namespace

BENCHMARK(laterFrames)->Iterations(301)->Unit(benchmark::kMillisecond);
BENCHMARK(firstFrame)->Iterations(21)->Unit(benchmark::kMillisecond);
BENCHMARK(oneRow)->Iterations(201)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    covers();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
