// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Sixty animated GIFs on screen. Ours paints the rows of the panel, names and marks included, when
// their picture moved; the bound is as many bare QMovies, each painted, scaled to the cell,
// whenever it shows another frame. CPU time of the whole program, for as many painted frames.

#include "BenchmarkTools.h"

#include <NxMediaLibrary/delegate/NxGifPreviewHelper.h>
#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>
#include <NxMediaViews/NxMediaItemPainter.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/NxMediaIndex.h>

#include <QAbstractListModel>
#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QImage>
#include <QMovie>
#include <QPainter>
#include <QProcess>
#include <QStringList>
#include <QStyleOptionViewItem>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <ctime>
#include <functional>
#include <memory>
#include <vector>

namespace {

constexpr int Gifs = 60;
constexpr int Columns = 10;
constexpr QSize Cover{144, 81};
constexpr int Frames = 1'500; // Painted in each turn: two seconds of all.
constexpr int Rounds = 5;
constexpr double MillisecondsPerSecond = 1'000;

class Gif final : public INxAbstractMediaItem
{
public:
    explicit Gif(const QString &path) : m_path(path) {}
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtImage; }
    int kindCode() const override { return NXVBLMODEL::mkcAnimatedImage; }
    QString filePath() const override { return m_path; }

private:
    const QString m_path;
};

/// Two films, each in many files.
class GifFolder
{
public:
    GifFolder()
    {
        const QString small = make("320x180", 10);
        const QString large = make("480x270", 15);
        for (int i = 0; i < Gifs; ++i) {
            const QString path = m_folder.filePath(QStringLiteral("%1.gif").arg(i));
            if (!QFile::copy(i % 2 == 0 ? small : large, path))
                giveUp(path);
            paths.append(path);
        }
    }

    QStringList paths;

private:
    QString make(const char *size, int rate)
    {
        const QString path = m_folder.filePath(QLatin1String(size) + QStringLiteral(".gif"));
        const QString source =
            QStringLiteral("testsrc2=s=%1:r=%2:d=3").arg(QLatin1String(size)).arg(rate);
        if (QProcess::execute(QStringLiteral("ffmpeg"),
                              {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"),
                               QStringLiteral("lavfi"), QStringLiteral("-i"), source, path})
            != 0)
            giveUp(path);
        return path;
    }

    QTemporaryDir m_folder;
};

/// What a view would show.
class Screen
{
public:
    explicit Screen(const QSize &row)
        : m_row(row),
          m_picture(Columns * row.width(), Gifs / Columns * row.height(), QImage::Format_RGB32)
    {
    }
    [[nodiscard]] QRect place(int gif) const
    {
        return {QPoint(gif % Columns * m_row.width(), gif / Columns * m_row.height()), m_row};
    }
    void paint(const std::function<void(QPainter *)> &draw)
    {
        QPainter painter(&m_picture);
        draw(&painter);
        ++m_painted;
    }
    /// CPU time of that many more frames, ms.
    double timeOfFrames()
    {
        const int end = m_painted + Frames;
        const std::clock_t start = std::clock();
        while (m_painted < end)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return double(std::clock() - start) * MillisecondsPerSecond / CLOCKS_PER_SEC;
    }

private:
    const QSize m_row;
    QImage m_picture;
    int m_painted = 0;
};

class GifModel final : public QAbstractListModel
{
public:
    explicit GifModel(const QStringList &paths)
    {
        for (const QString &path : paths)
            m_gifs.push_back(std::make_unique<Gif>(path));
    }
    int rowCount(const QModelIndex &) const override { return int(m_gifs.size()); }
    QModelIndex index(int row, int column = 0, const QModelIndex & = QModelIndex()) const override
    {
        return createIndex(row, column, static_cast<INxAbstractMedia *>(m_gifs[size_t(row)].get()));
    }
    QVariant data(const QModelIndex &, int) const override { return {}; }

private:
    std::vector<std::unique_ptr<Gif>> m_gifs;
};

/// The rows as the panel draws them, names and marks included; at each tick those that moved.
double ours(const GifFolder &folder)
{
    const GifModel model(folder.paths);
    NxMediaItemDelegate delegate;
    auto *look = new NxMediaItemPainter;
    look->setViewMode(NXMEDIALIBRARY::vmMiddleThumbnail);
    delegate.setItemPainter(look);
    const QSize row = look->size();
    Screen screen(row);
    const auto paint = [&](const QModelIndex &index) {
        QStyleOptionViewItem option;
        option.state = QStyle::State_Enabled;
        option.rect = screen.place(index.row());
        screen.paint([&](QPainter *painter) { delegate.paint(painter, option, index); });
    };
    QObject::connect(&delegate, &NxCustomDelegate::sigRepaintAll, &delegate, [&] {
        for (const QPersistentModelIndex &moved : look->takeGifRows())
            paint(moved);
    });
    NxGifPreviewHelper *helper = NxGifPreviewHelper::getInstance();
    QImage frame;
    const auto playing = [&] {
        int count = 0;
        for (int i = 0; i < Gifs; ++i)
            count += helper->getImage(mediaAt(model.index(i)), frame) ? 1 : 0;
        return count;
    };
    while (playing() < Gifs)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    for (int i = 0; i < Gifs; ++i)
        paint(model.index(i));
    const double spent = screen.timeOfFrames();
    helper->stopPlay();
    helper->clear();
    return spent;
}

double bound(const GifFolder &folder)
{
    Screen screen(Cover);
    std::vector<std::unique_ptr<QMovie>> movies;
    for (int i = 0; i < Gifs; ++i) {
        movies.push_back(std::make_unique<QMovie>(folder.paths.at(i)));
        QMovie *movie = movies.back().get();
        QObject::connect(movie, &QMovie::frameChanged, movie, [&screen, movie, i] {
            screen.paint([&](QPainter *painter) {
                painter->setRenderHint(QPainter::SmoothPixmapTransform);
                painter->drawImage(screen.place(i), movie->currentImage());
            });
        });
        movie->start();
    }
    return screen.timeOfFrames();
}

void sixtyGifs(benchmark::State &state)
{
    const GifFolder folder;
    std::vector<double> oursSpent;
    std::vector<double> boundSpent;
    for (auto _ : state) {
        boundSpent.push_back(bound(folder));
        oursSpent.push_back(ours(folder));
        state.SetIterationTime(oursSpent.back() / MillisecondsPerSecond);
    }
    state.counters["ours_ms"] = median(oursSpent);
    state.counters["bound_ms"] = median(boundSpent);
    state.counters["ratio"] = median(oursSpent) / median(boundSpent);
}
BENCHMARK(sixtyGifs)->UseManualTime()->Iterations(Rounds)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
