// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxText.h>

#include <QDateTime>

namespace {

/// The shape of a UTF-8 sequence by its first byte; lowest is the smallest code point that needs
/// this many bytes.
struct Shape
{
    int length;
    char32_t firstBits;
    char32_t lowest;
};

Shape shapeOf(uchar first)
{
    if (first < 0x80)
        return {1, first, 0};
    if (first >= 0xC2 && first <= 0xDF)
        return {2, first & 0x1Fu, 0x80};
    if (first >= 0xE0 && first <= 0xEF)
        return {3, first & 0x0Fu, 0x800};
    if (first >= 0xF0 && first <= 0xF4)
        return {4, first & 0x07u, 0x10000};
    return {0, 0, 0};
}

/// How many bytes from `at` on are one well-formed character; 0 when they are none.
int characterLength(const QByteArray &bytes, int at)
{
    const Shape shape = shapeOf(uchar(bytes.at(at)));
    if (shape.length == 0 || shape.length > bytes.size() - at)
        return 0;
    char32_t code = shape.firstBits;
    for (int i = 1; i < shape.length; ++i) {
        const auto next = uchar(bytes.at(at + i));
        if ((next & 0xC0) != 0x80)
            return 0;
        code = (code << 6) | (next & 0x3Fu);
    }
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    if (code < shape.lowest || code > 0x10FFFF || isSurrogate)
        return 0;
    return shape.length;
}

} // namespace

QString NxText::isoUtc(qint64 msecsSinceEpoch)
{
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(msecsSinceEpoch, Qt::UTC);
    const bool wholeSeconds = msecsSinceEpoch % 1000 == 0;
    return time.toString(wholeSeconds ? Qt::ISODate : Qt::ISODateWithMs);
}

std::optional<qint64> NxText::parseIsoUtc(const QString &text)
{
    const QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs);
    const bool namesZone = time.timeSpec() != Qt::LocalTime;
    if (!time.isValid() || !namesZone)
        return std::nullopt;
    return time.toMSecsSinceEpoch();
}

bool NxText::isUtf8(const QByteArray &bytes)
{
    for (int at = 0; at < bytes.size();) {
        const int length = characterLength(bytes, at);
        if (length == 0)
            return false;
        at += length;
    }
    return true;
}

QString NxText::displayBytes(const QByteArray &bytes)
{
    QString text;
    text.reserve(bytes.size());
    for (int at = 0; at < bytes.size();) {
        const int length = characterLength(bytes, at);
        if (length == 0) {
            const auto byte = uchar(bytes.at(at));
            text += QStringLiteral("\\x%1").arg(uint(byte), 2, 16, QLatin1Char('0'));
            ++at;
            continue;
        }
        text += QString::fromUtf8(bytes.constData() + at, length);
        at += length;
    }
    return text;
}
