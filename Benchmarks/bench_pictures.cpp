// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Covers and film strips of films as cameras and editors write them. Ours opens the file as the
// worker does, makes the picture and writes it into a cache folder. The bounds do nothing but what
// no maker of such pictures can do without: open the file, and decode each picture that is shown
// once (where there are no key frames for it, all pictures that others need), scaled roughly and
// thrown away. Besides, what one call of ffmpegthumbnailer a file costs, where that program is.

#include "BenchmarkTools.h"

#include <NxWorkerProtocol/NxPictureFile.h>
#include <brevano-worker/input/Container.h>
#include <brevano-worker/input/FootageFile.h>
#include <brevano-worker/pictures/AvHandles.h>
#include <brevano-worker/pictures/PictureMaker.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <vector>

namespace {

using namespace NxPictureFile;

constexpr int Rounds = 5;
constexpr double MillisecondsPerSecond = 1'000;
constexpr QSize CoverBox(CoverWidth, CoverHeight);
constexpr QSize FrameBox(FrameWidth, FrameHeight);

double timeOf(const std::function<void()> &job)
{
    QElapsedTimer timer;
    timer.start();
    job();
    return double(timer.nsecsElapsed()) / NanosecondsPerMillisecond;
}

// The clips

struct Clip
{
    const char *name;
    const char *arguments;
};

/// Enough key frames for a strip.
constexpr Clip KeyClips[] = {
    {"avc.mp4", "-c:v libx264 -preset veryfast -b:v 12M -g 24 -bf 2"},
    {"hevc.mkv", "-c:v libx265 -preset ultrafast -x265-params keyint=24:log-level=error"},
    {"prores.mov", "-c:v prores -profile:v 1 -t 4"},
    {"mjpeg.avi", "-c:v mjpeg -q:v 4 -t 4"},
};
/// Few key frames, or no index of them.
constexpr Clip PassClips[] = {
    {"avc long.mp4", "-c:v libx264 -preset veryfast -b:v 12M -g 250 -bf 2"},
    {"mpeg2.ts", "-c:v mpeg2video -b:v 20M -g 15 -bf 2"},
};

QStringList made(const Clip *begin, const Clip *end)
{
    const QDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/../clips"));
    if (!QDir().mkpath(folder.path()))
        giveUp(folder.path());
    QStringList paths;
    for (const Clip *clip = begin; clip != end; ++clip) {
        paths += folder.filePath(QLatin1String(clip->name));
        if (QFile::exists(paths.last()))
            continue;
        const QString part = folder.filePath(QStringLiteral("part ") + QLatin1String(clip->name));
        const QString line =
            QStringLiteral("-v error -y -f lavfi -i testsrc2=s=1920x1080:r=25:d=12 "
                           "-vf noise=alls=12:allf=t -pix_fmt %1 ")
                .arg(QLatin1String(qstrcmp(clip->name, "prores.mov") == 0 ? "yuv422p10le"
                                                                          : "yuv420p"))
            + QLatin1String(clip->arguments);
        if (QProcess::execute(QStringLiteral("ffmpeg"),
                              line.split(QLatin1Char(' ')) + QStringList{part})
                != 0
            || !QFile::rename(part, paths.last()))
            giveUp(QStringLiteral("ffmpeg cannot make ") + paths.last());
    }
    return paths;
}

const QStringList &keyClips()
{
    static const QStringList paths = made(std::begin(KeyClips), std::end(KeyClips));
    return paths;
}

const QStringList &passClips()
{
    static const QStringList paths = made(std::begin(PassClips), std::end(PassClips));
    return paths;
}

// The bounds

/// A film opened and decoded in the shortest way.
class BareFilm
{
public:
    BareFilm(const QString &path, int threads)
        : m_name(path),
          m_packet(av_packet_alloc()),
          m_frame(av_frame_alloc())
    {
        const QByteArray name = QFile::encodeName(path);
        if (avformat_open_input(&m_format, name.constData(), nullptr, nullptr) < 0)
            giveUp(path);
        if (m_format->nb_streams == 0 || m_format->streams[0]->codecpar->width == 0)
            avformat_find_stream_info(m_format, nullptr);
        m_stream = m_format->streams[0];
        const AVCodec *decoder = avcodec_find_decoder(m_stream->codecpar->codec_id);
        m_codec.reset(avcodec_alloc_context3(decoder));
        avcodec_parameters_to_context(m_codec.get(), m_stream->codecpar);
        m_codec->thread_count = threads;
        if (threads > 1) {
            m_codec->skip_frame = AVDISCARD_NONREF;
            m_codec->skip_loop_filter = AVDISCARD_ALL;
        }
        if (avcodec_open2(m_codec.get(), decoder, nullptr) < 0)
            giveUp(path);
    }
    ~BareFilm() { avformat_close_input(&m_format); }

    [[nodiscard]] int64_t at(qint64 us) const
    {
        const int64_t start = m_stream->start_time == AV_NOPTS_VALUE ? 0 : m_stream->start_time;
        return start + av_rescale_q(us, {1, AV_TIME_BASE}, m_stream->time_base);
    }

    /// The key frame before a time.
    void showKey(int64_t time, QSize box)
    {
        if (av_seek_frame(m_format, m_stream->index, time, AVSEEK_FLAG_BACKWARD) < 0)
            giveUp(QStringLiteral("cannot seek in %1").arg(m_name));
        do {
            av_packet_unref(m_packet.get());
            if (av_read_frame(m_format, m_packet.get()) < 0)
                giveUp(QStringLiteral("no key frame in %1").arg(m_name));
        } while (m_packet->stream_index != m_stream->index || !(m_packet->flags & AV_PKT_FLAG_KEY));
        avcodec_send_packet(m_codec.get(), m_packet.get());
        avcodec_send_packet(m_codec.get(), nullptr);
        if (avcodec_receive_frame(m_codec.get(), m_frame.get()) < 0)
            giveUp(QStringLiteral("no picture in %1").arg(m_name));
        avcodec_flush_buffers(m_codec.get());
        scale(box);
    }

    /// All moments in one pass.
    void showMoments(qint64 durationUs, QSize box)
    {
        int moment = 0;
        bool more = true;
        while (more && moment < Moments) {
            av_packet_unref(m_packet.get());
            more = av_read_frame(m_format, m_packet.get()) >= 0;
            if (more && m_packet->stream_index != m_stream->index)
                continue;
            avcodec_send_packet(m_codec.get(), more ? m_packet.get() : nullptr);
            while (avcodec_receive_frame(m_codec.get(), m_frame.get()) >= 0) {
                if (moment < Moments
                    && m_frame->best_effort_timestamp >= at(momentUs(moment, durationUs))) {
                    scale(box);
                    ++moment;
                }
            }
        }
    }

    [[nodiscard]] qint64 durationUs() const
    {
        return m_format->duration > 0
                   ? m_format->duration
                   : av_rescale_q(m_stream->duration, m_stream->time_base, {1, AV_TIME_BASE});
    }

private:
    Q_DISABLE_COPY_MOVE(BareFilm)

    void scale(QSize box)
    {
        m_scaler.reset(sws_getCachedContext(m_scaler.release(), m_frame->width, m_frame->height,
                                            AVPixelFormat(m_frame->format), box.width(),
                                            box.height(), AV_PIX_FMT_RGB32, SWS_FAST_BILINEAR,
                                            nullptr, nullptr, nullptr));
        m_pixels.resize(size_t(box.width()) * size_t(box.height() + 1));
        uint8_t *const data[] = {reinterpret_cast<uint8_t *>(m_pixels.data())};
        const int lines[] = {box.width() * int(sizeof(QRgb))};
        sws_scale(m_scaler.get(), m_frame->data, m_frame->linesize, 0, m_frame->height, data,
                  lines);
    }

    const QString m_name;
    AVFormatContext *m_format = nullptr;
    AVStream *m_stream = nullptr; // Not owned.
    CodecHandle m_codec;
    PacketHandle m_packet;
    FrameHandle m_frame;
    ScalerHandle m_scaler;
    std::vector<QRgb> m_pixels;
};

void coverBare(const QString &path)
{
    BareFilm film(path, 1);
    film.showKey(film.at(coverMomentUs(film.durationUs())), CoverBox);
}

void keyStripBare(const QString &path)
{
    BareFilm film(path, 1);
    for (int moment = 0; moment < Moments; ++moment)
        film.showKey(film.at(momentUs(moment, film.durationUs())), FrameBox);
}

void passStripBare(const QString &path)
{
    constexpr int threads = 2;
    BareFilm film(path, threads);
    film.showMoments(film.durationUs(), FrameBox);
}

/// Measured once for each film.
qint64 lengthOf(const QString &path)
{
    static QHash<QString, qint64> lengths;
    const auto known = lengths.constFind(path);
    return known != lengths.constEnd() ? *known
                                       : *lengths.insert(path, BareFilm(path, 1).durationUs());
}

// Ours

/// The length is known by then: facts are read before pictures are made.
void makeOurs(const QString &path, NxReadWish wish)
{
    const qint64 durationUs = lengthOf(path);
    static const QTemporaryDir cache;
    NxReadRequest request;
    request.path = QFile::encodeName(path);
    request.wishes = quint8(wish | rwAnew);
    const NxResult<std::unique_ptr<FootageFile>> file = FootageFile::open(request.path);
    if (!file)
        giveUp(path);
    NxReadAnswer answer;
    answer.fingerprint = fingerprintOf(**file);
    const NxResult<std::unique_ptr<Container>> container = Container::open(file->get());
    if (!container)
        giveUp(container.errorText());
    PictureMaker(cache.path()).makeOfStream(request, container->get(), durationUs, &answer);
    const NxPictureAnswer &picture = wish == rwCover ? answer.cover : answer.strip;
    if (picture.outcome != NxPictureOutcome::Made)
        giveUp(path + picture.reason);
}

// Side by side

void compare(benchmark::State &state, const QStringList &paths, NxReadWish wish,
             void (*bound)(const QString &))
{
    for (const QString &path : paths)
        static_cast<void>(lengthOf(path));
    std::vector<double> ours;
    std::vector<double> bounds;
    for (auto _ : state) {
        double spent = 0;
        double least = 0;
        for (const QString &path : paths) {
            least += timeOf([&] { bound(path); });
            spent += timeOf([&] { makeOurs(path, wish); });
        }
        ours.push_back(spent);
        bounds.push_back(least);
        state.SetIterationTime(spent / MillisecondsPerSecond);
    }
    state.counters["ours_ms"] = median(ours);
    state.counters["bound_ms"] = median(bounds);
    state.counters["ratio"] = median(ours) / median(bounds);
}

void covers(benchmark::State &state)
{
    compare(state, keyClips() + passClips(), rwCover, &coverBare);
}
BENCHMARK(covers)->UseManualTime()->Iterations(Rounds)->Unit(benchmark::kMillisecond);

void stripsOfKeyFrames(benchmark::State &state)
{
    compare(state, keyClips(), rwStrip, &keyStripBare);
}
BENCHMARK(stripsOfKeyFrames)->UseManualTime()->Iterations(Rounds)->Unit(benchmark::kMillisecond);

void stripsOfOnePass(benchmark::State &state)
{
    compare(state, QStringList{passClips().at(int(state.range(0)))}, rwStrip, &passStripBare);
    state.SetLabel(PassClips[size_t(state.range(0))].name);
}
BENCHMARK(stripsOfOnePass)
    ->DenseRange(0, int(std::size(PassClips)) - 1)
    ->UseManualTime()
    ->Iterations(Rounds)
    ->Unit(benchmark::kMillisecond);

void coversByProgram(benchmark::State &state)
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("ffmpegthumbnailer"));
    if (program.isEmpty()) {
        state.SkipWithError("ffmpegthumbnailer is not on this machine");
        return;
    }
    const QTemporaryDir folder;
    const QString target = folder.filePath(QStringLiteral("cover.jpg"));
    const QStringList paths = keyClips() + passClips();
    std::vector<double> ours;
    std::vector<double> theirs;
    for (auto _ : state) {
        double spent = 0;
        double other = 0;
        for (const QString &path : paths) {
            other += timeOf([&] {
                if (QProcess::execute(program,
                                      {QStringLiteral("-i"), path, QStringLiteral("-o"), target,
                                       QStringLiteral("-s"), QString::number(CoverWidth)})
                    != 0)
                    giveUp(path);
            });
            spent += timeOf([&] { makeOurs(path, rwCover); });
        }
        ours.push_back(spent);
        theirs.push_back(other);
        state.SetIterationTime(spent / MillisecondsPerSecond);
    }
    state.counters["ours_ms"] = median(ours);
    state.counters["program_ms"] = median(theirs);
    state.counters["times_faster"] = median(theirs) / median(ours);
}
BENCHMARK(coversByProgram)->UseManualTime()->Iterations(Rounds)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QCoreApplication application(argc, argv);
    av_log_set_level(AV_LOG_QUIET);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
