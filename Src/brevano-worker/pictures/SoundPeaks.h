// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <brevano-worker/pictures/AvHandles.h>

#include <chrono>
#include <functional>
#include <vector>

class FilmReader;
class StreamDecoder;

/// Finds out how loud a sound is over its whole length, in bounded time: of long ones only places
/// are heard, evenly spread.
class SoundPeaks
{
public:
    using Clock = std::function<std::chrono::milliseconds()>;

    static constexpr int Columns = 240;
    /// Longer sounds are heard in places, one for each column.
    static constexpr std::chrono::seconds LongestHeardWhole{120};
    /// After this the rest stays unheard.
    static constexpr std::chrono::milliseconds LongestHearing{1'000};

    /// Not owned. The clock counts from any moment.
    explicit SoundPeaks(FilmReader *sound, Clock clock = {});

    /// The peak of each column, 0 to 1; one that was not heard has that of the nearest. The error
    /// is a sentence for the user.
    [[nodiscard]] NxResult<std::vector<float>> read();

private:
    struct Peak
    {
        qint64 momentUs = 0;
        float loudness = 0;
    };

    void hearWhole(StreamDecoder *decoder);
    void hearPlaces(StreamDecoder *decoder);
    void hearPlace(StreamDecoder *decoder, qint64 momentUs);
    void take(const AVFrame *frame);
    [[nodiscard]] bool isLate() const;
    [[nodiscard]] std::vector<float> columns() const;

    FilmReader *const m_sound;
    const Clock m_clock;
    std::chrono::milliseconds m_begin{0};
    std::vector<Peak> m_peaks;
    qint64 m_place = 0; // The moment after what was heard last.
};
