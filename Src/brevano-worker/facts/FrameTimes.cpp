// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/FrameTimes.h>

#include <brevano-worker/input/Container.h>
#include <brevano-worker/input/FootageFile.h>
#include <brevano-worker/input/ReadingLimit.h>

#include <algorithm>
#include <array>
#include <functional>
#include <limits>
#include <memory>

namespace {

constexpr qint64 KiB = 1'024;
constexpr qint64 BeginningBytes = 2'048 * KiB;
constexpr qint64 EndBytes = 8'192 * KiB;
// Streams that are cut anywhere are looked into byte by byte, which costs more; their beginning
// was kept while they were analysed.
constexpr qint64 MoreOfCutBeginning = 256 * KiB;
constexpr std::array<qint64, 3> CutEnds = {512 * KiB, 2'048 * KiB, EndBytes};
/// Frames are stored this far from their place at most; nearer to where reading stopped, some
/// that are shown earlier may be missing.
constexpr size_t MostReordered = 16;

struct FreePacket
{
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
};

/// Containers that hand out frame by frame, each with its time: nobody needs to look into them.
bool tellsEachFrame(const Container &container)
{
    static constexpr std::array<const char *, 5> readers = {"matroska", "flv", "asf", "nut", "ivf"};
    return std::any_of(readers.begin(), readers.end(),
                       [&container](const char *reader) { return container.isReadBy(reader); });
}

/// While it lives, packets of one stream alone are read, and not looked into where that is
/// needless.
class OnlyStream
{
    Q_DISABLE_COPY_MOVE(OnlyStream)
public:
    OnlyStream(const Container &container, const AVStream *stream)
        : m_format(container.format()),
          m_flags(m_format->flags)
    {
        if (tellsEachFrame(container))
            m_format->flags |= AVFMT_FLAG_NOPARSE | AVFMT_FLAG_NOFILLIN;
        for (unsigned i = 0; i < m_format->nb_streams; ++i) {
            m_before.push_back(m_format->streams[i]->discard);
            if (m_format->streams[i] != stream)
                m_format->streams[i]->discard = AVDISCARD_ALL;
        }
    }
    ~OnlyStream()
    {
        m_format->flags = m_flags;
        for (size_t i = 0; i < m_before.size(); ++i)
            m_format->streams[i]->discard = m_before[i];
    }

private:
    AVFormatContext *const m_format; // Not owned.
    const int m_flags;
    std::vector<AVDiscard> m_before;
};

/// Hands over each packet of the stream, up to the end of what may be read.
void forEachPacket(Container *container, const AVStream *stream,
                   const std::function<void(const AVPacket &)> &take)
{
    const OnlyStream only(*container, stream);
    const std::unique_ptr<AVPacket, FreePacket> packet(av_packet_alloc());
    while (packet && av_read_frame(container->format(), packet.get()) >= 0) {
        if (packet->stream_index == stream->index && !(packet->flags & AV_PKT_FLAG_DISCARD))
            take(*packet);
        av_packet_unref(packet.get());
    }
}

/// Both kinds of times, while it is not known which of them every packet has.
struct PacketTimes
{
    std::vector<qint64> shown;
    std::vector<qint64> decoded;
    size_t packets = 0;
    qint64 lastShown = std::numeric_limits<qint64>::min();
    qint64 lastLength = 0; ///< Of the frame that is shown last.
    qint64 place = 0; ///< Byte of the file at which the last of them begins.

    void take(const AVPacket &packet)
    {
        ++packets;
        place = std::max<qint64>(place, packet.pos);
        if (packet.pts != AV_NOPTS_VALUE && packet.pts > lastShown) {
            lastShown = packet.pts;
            lastLength = packet.duration;
        }
        if (packet.pts != AV_NOPTS_VALUE)
            shown.push_back(packet.pts);
        if (packet.dts != AV_NOPTS_VALUE)
            decoded.push_back(packet.dts);
    }
    /// Containers that time groups of frames leave most frames without a time to be shown at.
    [[nodiscard]] bool haveDecodingAlone() const { return shown.size() < decoded.size(); }
};

bool isCutAnywhere(const Container &container)
{
    return (container.format()->iformat->flags & AVFMT_TS_DISCONT) != 0;
}

PacketTimes timesFromHere(Container *container, const AVStream *stream)
{
    PacketTimes packets;
    forEachPacket(container, stream, [&packets](const AVPacket &packet) { packets.take(packet); });
    return packets;
}

/// The packets behind the last key frame that the container knows.
PacketTimes timesFromLastKeyFrame(Container *container, const AVStream *stream)
{
    AVFormatContext *format = container->format();
    const int64_t end =
        av_rescale_q(format->duration, AVRational{1, AV_TIME_BASE}, stream->time_base);
    const bool isThere = format->duration > 0
                         && av_seek_frame(format, stream->index, end, AVSEEK_FLAG_BACKWARD) >= 0;
    return isThere ? timesFromHere(container, stream) : PacketTimes();
}

/// The packets of the last bytes, of more of them where too few frames are in the very last: the
/// one that is shown last need not come last.
PacketTimes timesOfLastBytes(Container *container, const AVStream *stream)
{
    PacketTimes packets;
    for (const qint64 bytes : CutEnds) {
        const qint64 place = std::max<qint64>(0, container->file()->size() - bytes);
        if (av_seek_frame(container->format(), -1, place, AVSEEK_FLAG_BYTE) < 0)
            return {};
        packets = timesFromHere(container, stream);
        if (packets.packets > MostReordered)
            break;
    }
    return packets;
}

qint64 lengthIfAlike(const std::vector<qint64> &times, qint64 placeOfLast, qint64 bytes)
{
    if (times.empty() || placeOfLast <= 0)
        return 0;
    const double span = double(times.back()) - double(times.front());
    const double length = span * double(bytes) / double(placeOfLast);
    return length < double(std::numeric_limits<qint64>::max()) ? qint64(length) : 0;
}

} // namespace

FrameTimes FrameTimes::inIndex(AVStream *stream)
{
    FrameTimes times;
    std::vector<qint64> cut;
    const auto endCut = [&times, &cut] {
        if (cut.size() > times.shown.size())
            times.shown.swap(cut);
        cut.clear();
    };
    const int entries = avformat_index_get_entries_count(stream);
    for (int i = 0; i < entries; ++i) {
        const AVIndexEntry *entry = avformat_index_get_entry(stream, i);
        // Hidden frames belong to the times all the same: those that are shown are decoded
        // between them.
        times.count += entry->flags & AVINDEX_DISCARD_FRAME ? 0 : 1;
        if (!cut.empty() && entry->timestamp < cut.back())
            endCut();
        cut.push_back(entry->timestamp);
    }
    endCut();
    times.isComplete = times.count > 0 && stream->nb_frames > 0;
    times.areDecodingTimes = true;
    return times;
}

FrameTimes FrameTimes::atBeginning(Container *container, AVStream *stream)
{
    PacketTimes packets;
    FrameTimes times;
    {
        const ReadingLimit limit(container,
                                 isCutAnywhere(*container) ? MoreOfCutBeginning : BeginningBytes);
        packets = timesFromHere(container, stream);
        times.isComplete = !limit.wasReached();
    }
    times.areDecodingTimes = packets.haveDecodingAlone();
    times.shown = times.areDecodingTimes ? packets.decoded : packets.shown;
    times.isComplete = times.isComplete && times.shown.size() == packets.packets;
    times.count = qint64(packets.packets);
    times.lastLength = packets.lastLength;
    std::sort(times.shown.begin(), times.shown.end());
    times.likelyLength = lengthIfAlike(times.shown, packets.place, container->file()->size());
    if (!times.shown.empty())
        times.first = times.shown.front();
    if (!times.isComplete)
        times.shown.resize(times.shown.size() - std::min(times.shown.size(), MostReordered));
    return times;
}

std::optional<qint64> FrameTimes::last(Container *container, AVStream *stream, bool decodingTime)
{
    const ReadingLimit limit(container, 2 * EndBytes);
    const PacketTimes packets = isCutAnywhere(*container)
                                    ? timesOfLastBytes(container, stream)
                                    : timesFromLastKeyFrame(container, stream);
    const std::vector<qint64> &times = decodingTime ? packets.decoded : packets.shown;
    if (times.empty() || limit.wasReached())
        return {};
    return *std::max_element(times.begin(), times.end());
}
