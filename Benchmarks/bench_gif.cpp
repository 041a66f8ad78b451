// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Sixty animated GIFs on screen. Ours hands out their frames as it does for the views; the bound
// is as many bare QMovies, each painted whenever it shows another frame. Both paint each frame into
// a picture of cells in the same way. CPU time of the whole program, for as many painted frames.

#include "BenchmarkTools.h"

#include <NxMediaLibrary/delegate/NxGifPreviewHelper.h>
#include <NxVBLModel/INxAbstractMediaItem.h>

#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QMovie>
#include <QPainter>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <ctime>
#include <functional>
#include <memory>
#include <vector>

namespace {

constexpr int Gifs = 60;
constexpr int Columns = 10;
constexpr QSize Cell{160, 90};
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
    void paint(int gif, const QImage &frame)
    {
        const QPoint place(gif % Columns * Cell.width(), gif / Columns * Cell.height());
        QPainter painter(&m_picture);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRect(place, Cell), frame);
        ++painted;
    }
    /// CPU time of that many more frames, ms.
    double timeOfFrames()
    {
        const int end = painted + Frames;
        const std::clock_t start = std::clock();
        while (painted < end)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return double(std::clock() - start) * MillisecondsPerSecond / CLOCKS_PER_SEC;
    }

    int painted = 0;

private:
    QImage m_picture{Columns * Cell.width(), Gifs / Columns *Cell.height(), QImage::Format_RGB32};
};

double ours(const GifFolder &folder)
{
    std::vector<std::unique_ptr<Gif>> media;
    for (const QString &path : folder.paths)
        media.push_back(std::make_unique<Gif>(path));
    NxGifPreviewHelper *helper = NxGifPreviewHelper::getInstance();
    Screen screen;
    QImage frame;
    QObject view;
    const auto paintAll = [&] {
        for (int i = 0; i < Gifs; ++i) {
            if (helper->hasNewFrame(media[size_t(i)].get())
                && helper->getImage(media[size_t(i)].get(), frame))
                screen.paint(i, frame);
        }
    };
    QObject::connect(helper, &NxGifPreviewHelper::sigUpdate, &view, paintAll);
    const auto playing = [&] {
        int count = 0;
        for (const auto &each : media)
            count += helper->getImage(each.get(), frame) ? 1 : 0;
        return count;
    };
    while (playing() < Gifs)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double spent = screen.timeOfFrames();
    helper->stopPlay();
    helper->clear();
    return spent;
}

double bound(const GifFolder &folder)
{
    Screen screen;
    std::vector<std::unique_ptr<QMovie>> movies;
    for (int i = 0; i < Gifs; ++i) {
        movies.push_back(std::make_unique<QMovie>(folder.paths.at(i)));
        QMovie *movie = movies.back().get();
        QObject::connect(movie, &QMovie::frameChanged, movie,
                         [&screen, movie, i] { screen.paint(i, movie->currentImage()); });
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
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
