// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxRational.h>

#include <QtGlobal>

extern "C" {
#include <libavutil/avutil.h>
#include <libavutil/mathematics.h>
}

/// What damaged files claim and nobody means: such numbers count as not known.
namespace SaneNumbers {

constexpr int MostPixelsASide = 65'535;
constexpr qint64 MostPixels = qint64(1) << 31;
constexpr qint64 MostFramesASecond = 1'000'000;
constexpr qint64 MicrosecondsASecond = 1'000'000;
constexpr qint64 LongestUs = 1'000LL * 366 * 24 * 60 * 60 * MicrosecondsASecond; ///< 1000 years.
constexpr int MostSampleRate = 100'000'000; ///< Hz.
constexpr int MostChannels = 1'024;

[[nodiscard]] constexpr bool isSize(qint64 width, qint64 height)
{
    return width > 0 && height > 0 && width <= MostPixelsASide && height <= MostPixelsASide
           && width * height <= MostPixels;
}

/// 0/0 when nothing moves at that rate.
[[nodiscard]] constexpr NxRational rate(AVRational rate)
{
    const bool isSane = rate.num > 0 && rate.den > 0 && rate.num / rate.den <= MostFramesASecond;
    return isSane ? NxRational{rate.num, rate.den} : NxRational();
}

/// 0 when nothing lasts so long.
[[nodiscard]] constexpr qint64 durationUs(qint64 microseconds)
{
    return microseconds > 0 && microseconds <= LongestUs ? microseconds : 0;
}

/// Ticks of a time base as a length; 0 when they are none.
[[nodiscard]] inline qint64 durationUs(int64_t ticks, AVRational timeBase)
{
    if (ticks <= 0 || timeBase.num <= 0 || timeBase.den <= 0)
        return 0;
    return durationUs(av_rescale_q(ticks, timeBase, AVRational{1, AV_TIME_BASE}));
}

/// The frames of a length at a rate, rounded to the nearest.
[[nodiscard]] inline qint64 frames(qint64 durationUs, NxRational rate)
{
    return rate.isValid() ? av_rescale(durationUs, rate.num, rate.den * MicrosecondsASecond) : 0;
}

} // namespace SaneNumbers
