// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxPictureFile.h>
#include <brevano-worker/pictures/PictureScaler.h>

#include <array>
#include <vector>

/// Gathers the pictures of a film strip.
class StripFrames
{
public:
    /// `times`: the moments, rising.
    StripFrames(PictureScaler scaler, std::array<int64_t, NxPictureFile::Moments> times);

    [[nodiscard]] int64_t timeOf(int moment) const { return m_times[size_t(moment)]; }
    [[nodiscard]] bool has(int moment) const { return !m_rows[size_t(moment)].isNull(); }
    [[nodiscard]] bool isEmpty() const { return m_there.empty(); }

    /// Shows a frame at a moment; false when the frame cannot be shown.
    bool put(int moment, int64_t time, const AVFrame *frame);
    /// A frame for the moments next to it that get none of their own.
    void putSpare(int64_t time, const AVFrame *frame);
    /// Format and bits a channel of what was put last.
    [[nodiscard]] AVPixelFormat format() const { return m_format; }

    /// All of them below each other, each for its rows. A moment without a picture shows the
    /// nearest in time that is there. Null when none is.
    [[nodiscard]] QImage stacked() const;

private:
    struct Shown
    {
        int64_t time = 0;
        QImage picture;
    };
    [[nodiscard]] QImage shown(int64_t time, const AVFrame *frame);
    [[nodiscard]] QImage nearest(int64_t time) const;

    PictureScaler m_scaler;
    std::array<int64_t, NxPictureFile::Moments> m_times;
    std::array<QImage, NxPictureFile::Moments> m_rows;
    std::vector<Shown> m_there;
    AVPixelFormat m_format = AV_PIX_FMT_NONE;
};
