// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <brevano-worker/pictures/StripFrames.h>

#include <chrono>
#include <functional>

class FilmReader;
class KeyPictures;

/// Makes the film strip of moving pictures.
///
/// Where the container's index lists enough key frames, the strip shows those; where every picture
/// is one, those of the moments. Other films are decoded once from the beginning, each moment
/// showing the first picture at or after it that other pictures need. That takes two seconds at
/// most: what it does not reach in one and a half shows the key frames at or before the moments,
/// as far as they lie further on, and what is missing then shows the nearest picture there is.
class StripMaker
{
public:
    using Clock = std::function<std::chrono::milliseconds()>;

    static constexpr std::chrono::milliseconds LongestPass{1'500};
    static constexpr std::chrono::milliseconds LongestAll{2'000};

    /// Neither is owned. The clock counts from any moment.
    StripMaker(FilmReader *film, KeyPictures *keys, Clock clock = {});

    /// The error is a sentence for the user.
    [[nodiscard]] NxResult<QImage> make();
    /// Of the pictures.
    [[nodiscard]] AVPixelFormat format() const { return m_frames.format(); }

private:
    /// Times from which the index leads to the key frame of each moment; empty when key frames
    /// cannot serve the film.
    [[nodiscard]] std::vector<int64_t> waysToKeyFrames() const;
    void showKeyFrames(const std::vector<int64_t> &ways);
    void showMoments();
    [[nodiscard]] NxResult<void> passForward();
    /// False when the pass has what it wants, or no time is left for it.
    [[nodiscard]] bool passOver(FrameHandle frame);
    void leap();

    FilmReader *const m_film;
    KeyPictures *const m_keys;
    const Clock m_clock;
    std::chrono::milliseconds m_begin{0};
    StripFrames m_frames;
    FrameHandle m_last; // Of the pass.
    int64_t m_lastTime = 0;
    int m_next = 0; // The moment that the pass goes for.
};
