// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Resting the pointer on a clip whose film strip lies in the cache folder: how long it takes until
// its first frame is there to be painted (20 ms at most), and for how long one step, with the
// painting of its frame, holds up the GUI thread (2 ms at most).

#include "BenchmarkTools.h"

#include <NxMediaLibrary/delegate/INxPreviewFrameHelper.h>
#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineMedia.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLModel/NxMediaEngineDoor.h>
#include <NxWorkerProtocol/NxPictureFile.h>

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QMetaObject>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

namespace {

constexpr int Clips = 40; // More strips than a helper or an engine meets in one go.
constexpr int Steps = 60;
constexpr int Grain = 60;
constexpr int Grey = 128;
constexpr QSize Cell{240, 135};
constexpr double MostUntilFirstFrame = 20; // ms
constexpr double MostForOneStep = 2; // ms
constexpr double MillisecondsPerSecond = 1'000;

/// A strip with as much grain as footage has, so that it costs as much to decode.
QImage grainyStrip()
{
    QImage strip(NxPictureFile::FrameWidth, NxPictureFile::StripHeight, QImage::Format_RGB32);
    QRandomGenerator random(1);
    for (int y = 0; y < strip.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(strip.scanLine(y));
        for (int x = 0; x < strip.width(); ++x) {
            const int light = Grey + int(random.bounded(Grain));
            line[x] = qRgb(light, (light + x) % 256, (light + y) % 256);
        }
    }
    return strip;
}

/// A project whose film strips were all made before.
class HoverProject
{
public:
    HoverProject()
    {
        NxEmbeddedEngine::Options options;
        options.backups = false;
        options.readsFootage = false;
        options.pictureFolder = m_folder.filePath(QStringLiteral("pictures"));
        m_engine = std::make_unique<NxEmbeddedEngine>(options);
        m_door = std::make_unique<NxMediaEngineDoor>(m_engine.get());
        const auto made = m_engine->createProject(m_folder.filePath(QStringLiteral("a.brevano")));
        if (!made)
            giveUp(made.errorText());
        NxProjectMemory *memory = static_cast<NxEngineProject *>(*made)->memory();
        const QImage strip = grainyStrip();
        for (int i = 0; i < Clips; ++i)
            addClip(memory, i, strip);
    }

    std::vector<NxEngineMedia *> media;

private:
    void addClip(NxProjectMemory *memory, int number, const QImage &strip)
    {
        NxMediaSeed seed;
        seed.path = m_folder.filePath(QStringLiteral("%1.mp4").arg(number));
        NxEngineFolder *section =
            memory->category(NXVBLMODEL::mctMedia)->folder(NXVBLMODEL::fidRoot);
        media.push_back(memory->addNewMedia(section, {seed}).first());
        NxFootageRecord record;
        record.state = NxReadState::Read;
        record.fingerprint = {1 + number, 1, quint64(number)};
        record.cover = record.strip = NxPictureState::Made;
        memory->setFootage(media.back(), record);
        const QString path = media.back()->thumbnailStripPath();
        if (!QDir().mkpath(QFileInfo(path).path()) || !strip.save(path, "jpg"))
            giveUp(path);
    }

    QTemporaryDir m_folder;
    std::unique_ptr<NxEmbeddedEngine> m_engine;
    std::unique_ptr<NxMediaEngineDoor> m_door;
};

double untilFirstFrame(INxPreviewFrameHelper *helper, NxEngineMedia *media)
{
    QElapsedTimer timer;
    timer.start();
    helper->setMedia({}, media);
    helper->playPreviewFrame();
    QImage frame;
    while (!helper->getCurIndexPlayThumbnail(frame))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return milliseconds(timer);
}

/// How long a step takes at most: by the clock, and of work alone.
struct LongestStep
{
    double clock = 0; // ms
    double work = 0; // ms
};

void paint(const QImage &frame, QImage *cell)
{
    QPainter painter(cell);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(cell->rect(), frame);
}

void measureSteps(INxPreviewFrameHelper *helper, QImage *cell, LongestStep *longest)
{
    for (int i = 0; i < Steps; ++i) {
        QElapsedTimer timer;
        timer.start();
        const double before = workedMilliseconds();
        QMetaObject::invokeMethod(helper, "slotPlayThumbnailTimeout");
        QImage frame;
        if (helper->getCurIndexPlayThumbnail(frame))
            paint(frame, cell);
        longest->work = std::max(longest->work, workedMilliseconds() - before);
        longest->clock = std::max(longest->clock, milliseconds(timer));
    }
}

void hover(benchmark::State &state)
{
    HoverProject project;
    QImage cell(Cell, QImage::Format_RGB32);
    paint(grainyStrip(), &cell); // A window has painted before anything in it is hovered.
    std::vector<double> first;
    LongestStep step;
    {
        INxPreviewFrameHelper helper;
        auto next = project.media.begin();
        for (auto _ : state) {
            first.push_back(untilFirstFrame(&helper, *next++));
            measureSteps(&helper, &cell, &step);
            helper.stopPreviewFrame();
            state.SetIterationTime(first.back() / MillisecondsPerSecond);
        }
    }
    state.counters["first_ms"] = median(first);
    state.counters["first_longest_ms"] = *std::max_element(first.begin(), first.end());
    state.counters["first_bound_ms"] = MostUntilFirstFrame;
    state.counters["step_longest_ms"] = step.work;
    state.counters["step_clock_ms"] = step.clock;
    state.counters["step_bound_ms"] = MostForOneStep;
}
BENCHMARK(hover)->UseManualTime()->Iterations(Clips)->Unit(benchmark::kMillisecond);

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
