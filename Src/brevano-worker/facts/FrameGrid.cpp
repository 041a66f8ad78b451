// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/FrameGrid.h>

#include <brevano-worker/facts/SaneNumbers.h>

#include <cmath>
#include <limits>

FrameGrid::FrameGrid(const std::vector<qint64> &times, AVRational timeBase)
{
    if (times.size() < 2)
        return;
    const qint64 gaps = qint64(times.size()) - 1;
    qint64 span = 0;
    if (__builtin_sub_overflow(times.back(), times.front(), &span) || span <= 0
        || span > std::numeric_limits<qint64>::max() / 2)
        return;
    const double step = double(span) / double(gaps);
    for (size_t i = 0; i < times.size() && m_isEven; ++i)
        m_isEven = std::abs(double(times[i] - times.front()) - double(i) * step) <= step / 2;

    // Ticks a gap first: the product of both numbers may be too long.
    AVRational ticksAGap = {};
    av_reduce(&ticksAGap.num, &ticksAGap.den, span, gaps, std::numeric_limits<int>::max());
    m_rate = SaneNumbers::rate(av_inv_q(av_mul_q(ticksAGap, timeBase)));
    m_length = span + qint64(std::llround(step));
}
