// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QColor>
#include <QSize>
#include <QVector>

#include <algorithm>

/// Animated GIFs, each frame of one colour.
namespace GifMaker {

constexpr int TableSize = 128;

inline void putWord(QByteArray *bytes, int word)
{
    bytes->append(char(word & 0xff));
    bytes->append(char(word >> 8 & 0xff));
}

/// One frame without compression: the table of codes is cleared before it can grow.
inline void putFrame(QByteArray *bytes, const QSize &size, int colour, int hundredths)
{
    constexpr char clear = char(0x80);
    constexpr char end = char(0x81);
    constexpr int mostPixels = 120; // Between two clearings.
    bytes->append("\x21\xf9\x04\x00", 4);
    putWord(bytes, hundredths);
    bytes->append("\x00\x00\x2c\x00\x00\x00\x00", 7);
    putWord(bytes, size.width());
    putWord(bytes, size.height());
    bytes->append('\x00');
    bytes->append('\x07'); // Bits of a pixel.
    int left = size.width() * size.height();
    while (left > 0) {
        const int pixels = std::min(left, mostPixels);
        bytes->append(char(pixels + 1));
        bytes->append(clear);
        bytes->append(QByteArray(pixels, char(colour)));
        left -= pixels;
    }
    bytes->append('\x01');
    bytes->append(end);
    bytes->append('\x00');
}

/// A GIF that runs for ever, frames in the order of `colours`, at most 128 of them; each is shown
/// longer than a test waits between two looks, unless it says otherwise.
[[nodiscard]] inline QByteArray gif(const QVector<QColor> &colours, int hundredths = 7,
                                    const QSize &size = {16, 9})
{
    QByteArray bytes("GIF89a");
    putWord(&bytes, size.width());
    putWord(&bytes, size.height());
    bytes.append("\xf6\x00\x00", 3);
    for (int i = 0; i < TableSize; ++i) {
        const QColor colour = colours.value(i, Qt::black);
        bytes.append(char(colour.red()));
        bytes.append(char(colour.green()));
        bytes.append(char(colour.blue()));
    }
    bytes.append("\x21\xff\x0bNETSCAPE2.0\x03\x01\x00\x00\x00", 19);
    for (int i = 0; i < colours.size(); ++i)
        putFrame(&bytes, size, i, hundredths);
    bytes.append(';');
    return bytes;
}

} // namespace GifMaker
