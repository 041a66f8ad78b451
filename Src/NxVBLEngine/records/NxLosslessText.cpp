// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/records/NxLosslessText.h>

#include <cstring>

namespace {

constexpr uchar SurrogateLead = 0xED; // First byte of the range that holds the surrogates.
constexpr uchar SurrogateSecondByte = 0xA0; // From here on the second byte means one.

char *encodeUnit(char *to, uint unit)
{
    if (unit < 0x80) {
        *to++ = char(unit);
        return to;
    }
    if (unit < 0x800) {
        *to++ = char(0xC0 | (unit >> 6));
        *to++ = char(0x80 | (unit & 0x3F));
        return to;
    }
    *to++ = char(0xE0 | (unit >> 12));
    *to++ = char(0x80 | ((unit >> 6) & 0x3F));
    *to++ = char(0x80 | (unit & 0x3F));
    return to;
}

char *encodePair(char *to, ushort high, ushort low)
{
    const uint code = QChar::surrogateToUcs4(high, low);
    *to++ = char(0xF0 | (code >> 18));
    *to++ = char(0x80 | ((code >> 12) & 0x3F));
    *to++ = char(0x80 | ((code >> 6) & 0x3F));
    *to++ = char(0x80 | (code & 0x3F));
    return to;
}

bool isContinuation(uchar byte)
{
    return (byte & 0xC0) == 0x80;
}

/// The first lone surrogate at or after `from`, or `end`.
const char *findSurrogate(const char *from, const char *end)
{
    while (from < end) {
        from = static_cast<const char *>(std::memchr(from, SurrogateLead, size_t(end - from)));
        if (!from)
            return end;
        if (end - from >= 3 && uchar(from[1]) >= SurrogateSecondByte
            && isContinuation(uchar(from[1])) && isContinuation(uchar(from[2])))
            return from;
        ++from;
    }
    return end;
}

/// Text without lone surrogates. Qt drops a byte order mark at the beginning; a name may have one.
QString plainText(const char *bytes, const char *end)
{
    constexpr int markSize = 3;
    QString marks;
    while (end - bytes >= markSize && std::memcmp(bytes, "\xEF\xBB\xBF", markSize) == 0) {
        marks += QChar(QChar::ByteOrderMark);
        bytes += markSize;
    }
    const QString text = QString::fromUtf8(bytes, int(end - bytes));
    return marks.isEmpty() ? text : marks + text;
}

} // namespace

char *NxLosslessText::encodeTo(char *to, const QString &text)
{
    const ushort *unit = text.utf16();
    const ushort *const end = unit + text.size();
    while (unit < end) {
        const bool isPair =
            QChar::isHighSurrogate(*unit) && unit + 1 < end && QChar::isLowSurrogate(unit[1]);
        if (isPair) {
            to = encodePair(to, unit[0], unit[1]);
            unit += 2;
        } else {
            to = encodeUnit(to, *unit++);
        }
    }
    return to;
}

QByteArray NxLosslessText::encoded(const QString &text)
{
    QByteArray bytes(maximumBytes(text.size()), Qt::Uninitialized);
    bytes.truncate(int(encodeTo(bytes.data(), text) - bytes.constData()));
    return bytes;
}

QString NxLosslessText::decoded(const char *bytes, int size)
{
    const char *const end = bytes + size;
    const char *surrogate = findSurrogate(bytes, end);
    if (surrogate == end)
        return plainText(bytes, end);

    QString text;
    while (bytes < end) {
        text += plainText(bytes, surrogate);
        if (surrogate == end)
            break;
        const uint unit = 0xD000u | ((uint(uchar(surrogate[1])) & 0x3F) << 6)
                          | (uint(uchar(surrogate[2])) & 0x3F);
        text += QChar(unit);
        bytes = surrogate + 3;
        surrogate = findSurrogate(bytes, end);
    }
    return text;
}
