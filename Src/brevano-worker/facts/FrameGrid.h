// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxRational.h>

#include <vector>

extern "C" {
#include <libavutil/rational.h>
}

/// The even grid on which frames would stand at their own average rate.
class FrameGrid
{
public:
    /// `times` rise.
    FrameGrid(const std::vector<qint64> &times, AVRational timeBase);

    /// True when every frame stands within half a frame of its place. Fewer than three do.
    [[nodiscard]] bool isEven() const { return m_isEven; }
    /// Average over the distances of frames; 0/0 for fewer than two.
    [[nodiscard]] NxRational rate() const { return m_rate; }
    /// Ticks from the first frame to the end of the last one, which lasts as long as the average.
    [[nodiscard]] qint64 length() const { return m_length; }

private:
    bool m_isEven = true;
    NxRational m_rate;
    qint64 m_length = 0;
};
