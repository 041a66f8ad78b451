// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxNumberedFrames.h"

#include <QRect>
#include <QTransform>

namespace {

constexpr int columns = 8;
constexpr int rows = 2;
constexpr int bits = columns * rows;
constexpr int numberBits = 12;
constexpr int nibbleBits = 4;
constexpr int nibbleMask = 0xF;
constexpr int checkSeed = 0xA;

// Of the picture's width and height. At 16:9 they make squares.
constexpr double squareWidth = 0.1;
constexpr double squareHeight = 0.18;
constexpr double gridLeft = (1.0 - columns * squareWidth) / 2;
constexpr double gridTop = (1.0 - rows * squareHeight) / 2;
/// The part of a square's width and height, in its middle, that is read.
constexpr double readPart = 0.5;

constexpr uchar black = 16;
constexpr uchar white = 235;
constexpr uchar neutral = 128;
/// Squares read as 0 are darker everywhere, squares read as 1 brighter than these.
constexpr int darkest1 = 150;
constexpr int brightest0 = 106;

constexpr uchar groundDark = 96;
constexpr uchar groundBright = 112;
constexpr int groundTile = 16; // px
constexpr uchar wandererGrey = 144;
constexpr int wandererSide = 16; // px
constexpr int wandererStep = 2; // px a frame

int checkOf(int number)
{
    int check = checkSeed;
    for (int shift = 0; shift < numberBits; shift += nibbleBits)
        check ^= (number >> shift) & nibbleMask;
    return check;
}

int wordOf(int number)
{
    return checkOf(number) << numberBits | number;
}

/// The place of a bit's square, `part` of it around its middle, in a picture of that size.
QRect square(int bit, QSize size, double part)
{
    const double left = gridLeft + (bit % columns) * squareWidth;
    const double top = gridTop + (bit / columns) * squareHeight;
    const double margin = (1.0 - part) / 2;
    const int x1 = qRound((left + margin * squareWidth) * size.width());
    const int y1 = qRound((top + margin * squareHeight) * size.height());
    const int x2 = qRound((left + (1.0 - margin) * squareWidth) * size.width());
    const int y2 = qRound((top + (1.0 - margin) * squareHeight) * size.height());
    return QRect(x1, y1, x2 - x1, y2 - y1);
}

void fill(QByteArray *plane, int width, const QRect &area, uchar value)
{
    for (int y = area.top(); y <= area.bottom(); ++y)
        std::fill_n(plane->begin() + y * width + area.left(), area.width(), char(value));
}

/// 1 or 0 when all of the area is bright or dark.
std::optional<int> bitIn(const QImage &grey, const QRect &area)
{
    if (area.isEmpty() || !grey.rect().contains(area))
        return std::nullopt;
    int darkest = white;
    int brightest = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const uchar *line = grey.constScanLine(y);
        for (int x = area.left(); x <= area.right(); ++x) {
            darkest = qMin(darkest, int(line[x]));
            brightest = qMax(brightest, int(line[x]));
        }
    }
    if (darkest >= darkest1)
        return 1;
    if (brightest <= brightest0)
        return 0;
    return std::nullopt;
}

} // namespace

NxNumberedFrames::NxNumberedFrames(QSize size, int count, NxRational rate)
    : m_size(size),
      m_count(count),
      m_rate(rate)
{
    Q_ASSERT(size.width() % 2 == 0 && size.height() % 2 == 0);
    Q_ASSERT(count <= LargestNumber + 1);
}

QByteArray NxNumberedFrames::streamHeader() const
{
    return QStringLiteral("YUV4MPEG2 W%1 H%2 F%3:%4 Ip A1:1 C420jpeg\n")
        .arg(m_size.width())
        .arg(m_size.height())
        .arg(m_rate.num)
        .arg(m_rate.den)
        .toLatin1();
}

QByteArray NxNumberedFrames::streamFrame(int number) const
{
    const int chroma = m_size.width() * m_size.height() / 2;
    return QByteArrayLiteral("FRAME\n") + luma(number) + QByteArray(chroma, char(neutral));
}

QImage NxNumberedFrames::picture(int number) const
{
    const QByteArray plane = luma(number);
    const auto *bytes = reinterpret_cast<const uchar *>(plane.constData());
    return QImage(bytes, m_size.width(), m_size.height(), m_size.width(), QImage::Format_Grayscale8)
        .copy();
}

QByteArray NxNumberedFrames::luma(int number) const
{
    const int width = m_size.width();
    const int height = m_size.height();
    QByteArray plane(width * height, Qt::Uninitialized);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool isBright = (x / groundTile + y / groundTile) % 2 != 0;
            plane[y * width + x] = char(isBright ? groundBright : groundDark);
        }
    }
    const int way = qMax(1, width - wandererSide);
    const QRect wanderer(number * wandererStep % way, height - 2 * wandererSide, wandererSide,
                         wandererSide);
    fill(&plane, width, wanderer.intersected(QRect(QPoint(), m_size)), wandererGrey);
    for (int bit = 0; bit < bits; ++bit) {
        const bool isSet = wordOf(number) >> (bits - 1 - bit) & 1;
        fill(&plane, width, square(bit, m_size, 1.0), isSet ? white : black);
    }
    return plane;
}

std::optional<int> NxNumberedFrames::read(const QImage &picture)
{
    if (picture.isNull())
        return std::nullopt;
    const QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
    int word = 0;
    for (int bit = 0; bit < bits; ++bit) {
        const std::optional<int> value = bitIn(grey, square(bit, grey.size(), readPart));
        if (!value)
            return std::nullopt;
        word = word << 1 | *value;
    }
    const int number = word & LargestNumber;
    if (wordOf(number) != word)
        return std::nullopt;
    return number;
}

std::optional<int> NxNumberedFrames::readFitted(const QImage &picture, QSize shown, int rotation,
                                                bool mirrored)
{
    const QSize fitted = shown.scaled(picture.size(), Qt::KeepAspectRatio);
    const QPoint corner((picture.width() - fitted.width()) / 2,
                        (picture.height() - fitted.height()) / 2);
    QTransform upright;
    upright.rotate(-rotation);
    return read(picture.copy(QRect(corner, fitted)).transformed(upright).mirrored(mirrored, false));
}
