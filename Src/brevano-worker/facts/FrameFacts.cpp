// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/FrameFacts.h>

#include <brevano-worker/facts/FrameGrid.h>
#include <brevano-worker/facts/FrameTimes.h>
#include <brevano-worker/facts/SaneNumbers.h>
#include <brevano-worker/input/Container.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr double SameRate = 0.001; // Of the rate: 24 and 24000/1001 differ by just this.
constexpr double ClearlySlower = 0.98;

/// Containers whose streams have lengths of their own. In others the length is that of the
/// longest stream, or a guess.
bool haveStreamsLengths(const Container &container)
{
    static constexpr std::array<const char *, 7> readers = {"mov", "avi", "mxf", "ogg",
                                                            "gif", "dv",  "gxf"};
    return std::any_of(readers.begin(), readers.end(),
                       [&container](const char *reader) { return container.isReadBy(reader); });
}

qint64 lengthAt(qint64 frames, NxRational rate)
{
    return rate.isValid() ? SaneNumbers::durationUs(
               av_rescale(frames, rate.den * SaneNumbers::MicrosecondsASecond, rate.num))
                          : 0;
}

/// From an index that has every frame: the last one's own length, which many cameras write
/// wrongly, counts for nothing where the others are even.
NxRational rateOfIndex(NxRational told, const FrameGrid &grid)
{
    if (!told.isValid())
        return grid.rate();
    const double own = grid.rate().toDouble();
    const bool differs = std::abs(own - told.toDouble()) > SameRate * told.toDouble();
    return own > 0.0 && grid.isEven() && differs ? grid.rate() : told;
}

/// From packets: a header tells the rate that was meant, and programs that record screens leave
/// out what did not change. Twice as many packets as frames are fields.
NxRational rateOfPackets(NxRational told, const FrameGrid &grid)
{
    const double own = grid.rate().toDouble();
    const bool isOther = own > 0.0 && (!grid.isEven() || own < ClearlySlower * told.toDouble());
    return told.isValid() && !isOther ? told : grid.rate();
}

void readIndex(AVStream *stream, NxFootageFacts *facts)
{
    const FrameTimes times = FrameTimes::inIndex(stream);
    const FrameGrid grid(times.shown, stream->time_base);
    facts->streams.variableRate = !grid.isEven();
    if (times.isComplete) {
        facts->frames = times.count;
        facts->rate = rateOfIndex(facts->rate, grid);
    }
}

/// 0 for times of damaged packets that lie too far apart to be true.
qint64 span(qint64 from, qint64 to)
{
    qint64 ticks = 0;
    return __builtin_sub_overflow(to, from, &ticks) ? 0 : ticks;
}

/// Ticks from the first frame to the beginning of the last one; 0 when they are not found.
qint64 measuredSpan(Container *container, AVStream *stream, const FrameTimes &beginning)
{
    constexpr int bitsOfAClock = 64;
    const auto last = FrameTimes::last(container, stream, beginning.areDecodingTimes);
    if (!last || !beginning.first)
        return 0;
    const bool hasBegunAnew = *last < *beginning.first && stream->pts_wrap_bits < bitsOfAClock - 1;
    return span(*beginning.first,
                hasBegunAnew ? *last + (qint64(1) << stream->pts_wrap_bits) : *last);
}

/// Ticks from the first frame to the end of the last one; 0 when the file does not tell.
qint64 measuredLength(Container *container, AVStream *stream, const FrameTimes &beginning,
                      const FrameGrid &grid, NxRational rate)
{
    if (beginning.isComplete)
        return grid.length();
    const qint64 measured = measuredSpan(container, stream, beginning);
    const AVRational frame = {rate.den, rate.num};
    if (measured > 0)
        return measured + (rate.isValid() ? av_rescale_q(1, frame, stream->time_base) : 0);
    const AVFormatContext *format = container->format();
    if (format->duration > 0 && format->duration_estimation_method != AVFMT_DURATION_FROM_BITRATE)
        return av_rescale_q(format->duration, AVRational{1, AV_TIME_BASE}, stream->time_base);
    return beginning.likelyLength;
}

void readPackets(Container *container, AVStream *stream, NxFootageFacts *facts)
{
    const FrameTimes beginning = FrameTimes::atBeginning(container, stream);
    const FrameGrid grid(beginning.shown, stream->time_base);
    facts->streams.variableRate = !grid.isEven();
    facts->rate = rateOfPackets(facts->rate, grid);
    const qint64 length = measuredLength(container, stream, beginning, grid, facts->rate);
    facts->durationUs = SaneNumbers::durationUs(length, stream->time_base);
    if (beginning.isComplete && (facts->streams.variableRate || beginning.count == 1))
        facts->frames = beginning.count;
    container->rewind();
}

/// What is not known follows from what is.
void complete(NxFootageFacts *facts)
{
    if (facts->frames <= 0)
        facts->frames = SaneNumbers::frames(facts->durationUs, facts->rate);
    if (facts->durationUs <= 0)
        facts->durationUs = lengthAt(facts->frames, facts->rate);
}

} // namespace

void FrameFacts::read(Container *container, NxFootageFacts *facts)
{
    AVStream *stream = container->video();
    facts->rate = SaneNumbers::rate(stream->avg_frame_rate);
    facts->frames = std::max<qint64>(stream->nb_frames, 0);
    const qint64 own = SaneNumbers::durationUs(stream->duration, stream->time_base);
    if (haveStreamsLengths(*container) && (own > 0 || facts->frames > 0)) {
        facts->durationUs = own;
        if (container->isReadBy("mov"))
            readIndex(stream, facts);
    } else {
        readPackets(container, stream, facts);
    }
    complete(facts);
}

void FrameFacts::readGif(Container *container, NxFootageFacts *facts)
{
    AVStream *stream = container->video();
    const FrameTimes times = FrameTimes::atBeginning(container, stream);
    const FrameGrid grid(times.shown, stream->time_base);
    container->rewind();
    const bool isCounted = !times.isComplete && stream->nb_frames > 0;
    facts->frames = isCounted ? stream->nb_frames : times.count;
    if (facts->frames < 2)
        return;
    const qint64 measured =
        times.shown.empty() ? 0 : span(times.shown.front(), times.shown.back()) + times.lastLength;
    const qint64 length = isCounted && stream->duration > 0 ? stream->duration : measured;
    facts->durationUs = SaneNumbers::durationUs(length, stream->time_base);
    AVRational average = {};
    av_reduce(&average.num, &average.den, facts->frames * SaneNumbers::MicrosecondsASecond,
              std::max<qint64>(facts->durationUs, 1), std::numeric_limits<int>::max());
    facts->rate = grid.isEven() ? grid.rate() : SaneNumbers::rate(average);
    facts->streams.variableRate = !grid.isEven();
    complete(facts);
}
