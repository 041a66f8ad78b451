// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

#include <optional>
#include <vector>

extern "C" {
#include <libavformat/avformat.h>
}

class Container;

/// When the frames of a stream are shown, in ticks of its time base, without decoding one.
struct FrameTimes
{
    std::vector<qint64> shown; ///< Rising.
    std::optional<qint64> first; ///< The earliest, also where too few are known for `shown`.
    qint64 count = 0; ///< Frames, those included whose time is not among the others.
    bool isComplete = false; ///< No frame of the file is missing in the count.
    /// The times at which the frames are decoded stand for those at which they are shown.
    bool areDecodingTimes = false;
    qint64 lastLength = 0; ///< Ticks that the last of them stands; 0 when its packet does not say.
    /// Ticks that the whole film lasts when all of the file is like its beginning.
    qint64 likelyLength = 0;

    /// From the container's index, which needs no reading. Frames that an edit list hides do not
    /// count; of a film of several cuts, the times are those of the longest one.
    [[nodiscard]] static FrameTimes inIndex(AVStream *stream);
    /// From the packets at the beginning: a bounded part of the file, which is all of it where
    /// it is small.
    [[nodiscard]] static FrameTimes atBeginning(Container *container, AVStream *stream);
    /// The latest time in the last part of the file, of the kind of time that is asked for;
    /// nothing when the end cannot be reached by reading a bounded part.
    [[nodiscard]] static std::optional<qint64> last(Container *container, AVStream *stream,
                                                    bool decodingTime);
};
