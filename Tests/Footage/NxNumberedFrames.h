// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxRational.h>

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <optional>

/// Moving pictures that bear their own number, so that whoever sees one knows which it is.
///
/// The number stands in the middle as two rows of eight squares, black for 0 and white for 1. The
/// upper row is a check nibble and the number's upper four bits, the lower row its lower eight,
/// the highest bit on the left. The check nibble is 0xA xor the number's three nibbles: neither
/// all black nor all white is a number, and one square read wrong is none. Around it lies a grey
/// ground that stands still, and below a grey block that wanders two pixels a frame.
class NxNumberedFrames
{
public:
    static constexpr int LargestNumber = 0xFFF;

    /// No pictures.
    NxNumberedFrames() = default;
    /// So many pictures of one size (px, even numbers), numbered from 0.
    NxNumberedFrames(QSize size, int count, NxRational rate);

    [[nodiscard]] QSize size() const { return m_size; }
    [[nodiscard]] int count() const { return m_count; }
    [[nodiscard]] NxRational rate() const { return m_rate; }

    /// What a YUV4MPEG2 stream of them (4:2:0, 8 bits) begins with.
    [[nodiscard]] QByteArray streamHeader() const;
    /// One of them as it stands in the stream.
    [[nodiscard]] QByteArray streamFrame(int number) const;
    /// The same one in grey.
    [[nodiscard]] QImage picture(int number) const;

    /// The number in a picture of any size that shows the whole frame upright; none when there are
    /// no squares in it or they contradict each other.
    [[nodiscard]] static std::optional<int> read(const QImage &picture);
    /// The same for a picture that was mirrored (left and right) and then turned clockwise by
    /// `rotation` degrees, and that lies with the shape of `shown` in the middle of bars.
    [[nodiscard]] static std::optional<int> readFitted(const QImage &picture, QSize shown,
                                                       int rotation = 0, bool mirrored = false);

private:
    [[nodiscard]] QByteArray luma(int number) const;

    QSize m_size;
    int m_count = 0;
    NxRational m_rate;
};
