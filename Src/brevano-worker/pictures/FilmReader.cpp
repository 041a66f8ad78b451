// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/pictures/FilmReader.h>

#include <brevano-worker/input/Container.h>
#include <brevano-worker/input/ReadingLimit.h>

#include <algorithm>
#include <utility>

namespace {

constexpr qint64 MostBytesOfSeek = 64 * 1024 * 1024;
constexpr AVRational Microseconds = {1, AV_TIME_BASE};

constexpr int64_t FurthestTime = int64_t(1) << 60;
constexpr qint64 LongestUs = 100LL * 366 * 24 * 3600 * AV_TIME_BASE;

/// The first of the lengths that somebody told and that can be.
qint64 durationOf(qint64 givenUs, const AVFormatContext *format, const AVStream *stream)
{
    const qint64 streamUs = av_rescale_q(stream->duration, stream->time_base, Microseconds);
    for (const qint64 us : {givenUs, streamUs, qint64(format->duration)})
        if (us > 0 && us <= LongestUs)
            return us;
    return 0;
}

int64_t limited(int64_t time)
{
    return std::clamp(time, -FurthestTime, FurthestTime);
}

} // namespace

FilmReader::FilmReader(Container *container, AVStream *stream, qint64 durationUs)
    : m_container(container),
      m_format(container->format()),
      m_stream(stream),
      m_packet(av_packet_alloc()),
      m_durationUs(durationOf(durationUs, m_format, stream))
{
    for (unsigned i = 0; i < m_format->nb_streams; ++i) {
        AVStream *other = m_format->streams[i];
        m_discards.push_back(other->discard);
        other->discard = other == m_stream ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    }
    findStart();
}

FilmReader::~FilmReader()
{
    // Streams may have joined meanwhile.
    for (size_t i = 0; i < m_discards.size(); ++i)
        m_format->streams[i]->discard = m_discards[i];
}

void FilmReader::findStart()
{
    constexpr int mostUnshown = 1'000;
    rewind();
    bool isFirst = true;
    for (int i = 0; i < mostUnshown; ++i) {
        const AVPacket *packet = next();
        const int64_t time = packet ? shownAt(packet) : AV_NOPTS_VALUE;
        if (!packet || time == AV_NOPTS_VALUE)
            break;
        if (std::exchange(isFirst, false))
            m_firstTime = time;
        m_start = time;
        if (!(packet->flags & AV_PKT_FLAG_DISCARD))
            break;
    }
    // Known after an analysis alone.
    if (isBelievable(m_stream->start_time))
        m_start = m_stream->start_time;
}

int64_t FilmReader::timeOf(qint64 momentUs) const
{
    // A moment within a picture is that picture's, not the next one's.
    return m_start
           + limited(av_rescale_q_rnd(momentUs, Microseconds, m_stream->time_base, AV_ROUND_DOWN));
}

qint64 FilmReader::momentUsOf(int64_t time) const
{
    return limited(av_rescale_q(time - m_start, m_stream->time_base, Microseconds));
}

bool FilmReader::isBelievable(int64_t time)
{
    return time >= -FurthestTime && time <= FurthestTime;
}

int64_t FilmReader::shownAt(const AVPacket *packet)
{
    const int64_t time = packet->pts != AV_NOPTS_VALUE ? packet->pts : packet->dts;
    return isBelievable(time) ? time : AV_NOPTS_VALUE;
}

std::vector<int64_t> FilmReader::listedKeyFrames() const
{
    // Those gather their index while they are read: it lists what was met, key frame or not.
    if (m_format->iformat->flags & (AVFMT_GENERIC_INDEX | AVFMT_TS_DISCONT))
        return {};
    std::vector<int64_t> times;
    const int entries = avformat_index_get_entries_count(m_stream);
    for (int i = 0; i < entries; ++i) {
        const AVIndexEntry *entry = avformat_index_get_entry(m_stream, i);
        if (entry && (entry->flags & AVINDEX_KEYFRAME) && isBelievable(entry->timestamp))
            times.push_back(entry->timestamp);
    }
    std::sort(times.begin(), times.end());
    times.erase(std::unique(times.begin(), times.end()), times.end());
    // Some indexes count in decoding order, which is ahead of what is shown.
    const int64_t longest = av_rescale_q(AV_TIME_BASE, Microseconds, m_stream->time_base);
    const int64_t ahead = times.empty() ? 0 : m_firstTime - times.front();
    if (ahead > 0 && ahead <= longest)
        std::for_each(times.begin(), times.end(), [ahead](int64_t &time) { time += ahead; });
    return times;
}

bool FilmReader::seeksRoughly() const
{
    return (m_format->iformat->flags & AVFMT_TS_DISCONT) != 0;
}

bool FilmReader::isIntraOnly() const
{
    const AVCodecDescriptor *codec = avcodec_descriptor_get(m_stream->codecpar->codec_id);
    return codec && (codec->props & AV_CODEC_PROP_INTRA_ONLY) != 0;
}

bool FilmReader::hasOnePacket()
{
    rewind();
    return next() && !next();
}

bool FilmReader::seek(int64_t time)
{
    const ReadingLimit limit(m_container, MostBytesOfSeek);
    return av_seek_frame(m_format, m_stream->index, time, AVSEEK_FLAG_BACKWARD) >= 0;
}

bool FilmReader::rewind()
{
    const bool canSeekBytes = (m_format->iformat->flags & AVFMT_NO_BYTE_SEEK) == 0;
    const auto toFirstByte = [this] {
        return av_seek_frame(m_format, -1, 0, AVSEEK_FLAG_BYTE) >= 0;
    };
    if (seeksRoughly() && canSeekBytes && toFirstByte())
        return true;
    const AVIndexEntry *entry = avformat_index_get_entry(m_stream, 0);
    const int64_t stated = m_stream->start_time != AV_NOPTS_VALUE ? m_stream->start_time : 0;
    const int64_t first = entry ? std::min(entry->timestamp, stated) : stated;
    return seek(first) || av_seek_frame(m_format, m_stream->index, first, 0) >= 0
           || (canSeekBytes && toFirstByte());
}

AVPacket *FilmReader::next()
{
    if (!m_packet)
        return nullptr;
    do {
        av_packet_unref(m_packet.get());
        if (av_read_frame(m_format, m_packet.get()) < 0)
            return nullptr;
    } while (m_packet->stream_index != m_stream->index);
    return m_packet.get();
}

AVPacket *FilmReader::nextKey()
{
    constexpr int mostPackets = 5'000;
    constexpr qint64 mostBytes = 256 * 1024 * 1024;
    qint64 bytes = 0;
    for (int i = 0; i < mostPackets && bytes < mostBytes; ++i) {
        AVPacket *packet = next();
        if (!packet || (packet->flags & AV_PKT_FLAG_KEY))
            return packet;
        bytes += packet->size;
    }
    return nullptr;
}

AVPacket *FilmReader::nextReference()
{
    constexpr int mostBetween = 32;
    for (int i = 0; i < mostBetween; ++i) {
        AVPacket *packet = next();
        const bool isBetween = packet && packet->pts != AV_NOPTS_VALUE && packet->pts == packet->dts
                               && !(packet->flags & AV_PKT_FLAG_KEY);
        if (!isBetween)
            return packet;
    }
    return nullptr;
}
