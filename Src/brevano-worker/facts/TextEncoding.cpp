// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/TextEncoding.h>

#include <QTextCodec>

#include <algorithm>
#include <array>

namespace {

struct Mark
{
    const char *bytes;
    int length;
    const char *encoding;
};

// Those of UTF-32 begin like those of UTF-16.
constexpr std::array<Mark, 5> Marks = {{
    {"\xFF\xFE\x00\x00", 4, "UTF-32LE"},
    {"\x00\x00\xFE\xFF", 4, "UTF-32BE"},
    {"\xEF\xBB\xBF", 3, "UTF-8"},
    {"\xFF\xFE", 2, "UTF-16LE"},
    {"\xFE\xFF", 2, "UTF-16BE"},
}};

/// Times and line ends are ASCII in every language, so this part of the units has a zero byte.
constexpr int UnitsToAZero = 4;

bool isUtf8(const QByteArray &bytes)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

const char *unmarkedUtf16(const QByteArray &bytes)
{
    int high = 0; // Zeros at even places.
    int low = 0;
    for (int i = 0; i + 1 < bytes.size(); i += 2) {
        high += bytes[i] == '\0' ? 1 : 0;
        low += bytes[i + 1] == '\0' ? 1 : 0;
    }
    const int enough = std::max<int>(1, bytes.size() / 2 / UnitsToAZero);
    if (low >= enough && high < low)
        return "UTF-16LE";
    return high >= enough && low < high ? "UTF-16BE" : nullptr;
}

} // namespace

QString TextEncoding::of(const QByteArray &bytes)
{
    for (const Mark &mark : Marks) {
        if (bytes.startsWith(QByteArray::fromRawData(mark.bytes, mark.length)))
            return QString::fromLatin1(mark.encoding);
    }
    if (const char *utf16 = unmarkedUtf16(bytes))
        return QString::fromLatin1(utf16);
    return isUtf8(bytes) ? QStringLiteral("UTF-8") : QStringLiteral("windows-1252");
}

QString TextEncoding::decoded(const QByteArray &bytes, const QString &encoding)
{
    const QTextCodec *codec = QTextCodec::codecForName(encoding.toLatin1());
    QTextCodec::ConverterState state; // Takes the mark away.
    return codec ? codec->toUnicode(bytes.constData(), bytes.size(), &state)
                 : QString::fromLatin1(bytes);
}
