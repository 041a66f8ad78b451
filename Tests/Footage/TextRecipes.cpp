// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFootageRecipes.h"

namespace {

constexpr qint64 second = 1000000; // us
constexpr int rateOfText = 25;

constexpr char16_t subtitles[] =
    u"1\r\n00:00:01,000 --> 00:00:02,500\r\nGr\u00FC\u00DFe aus K\u00F6ln\r\n\r\n"
    u"2\r\n00:00:03,000 --> 00:00:04,000\r\nC\u2019est l\u2019\u00E9t\u00E9\r\n\r\n";
constexpr qint64 endOfSubtitles = 4 * second;

constexpr char lyrics[] = "[ti:Two lines]\n[00:01.00]First line\n[00:05.50]Second line\n";
constexpr qint64 endOfLyrics = 5 * second + second / 2;

/// The letters of the subtitles in windows-1252, where that differs from their code point.
constexpr char32_t rightQuote = 0x2019;
constexpr char rightQuoteByte = '\x92';

QString subtitleText()
{
    return QString::fromUtf16(subtitles);
}

QByteArray inWindows1252(const QString &text)
{
    QByteArray bytes;
    for (const QChar letter : text)
        bytes += letter == QChar(rightQuote) ? rightQuoteByte : letter.toLatin1();
    return bytes;
}

QByteArray inUtf16(const QString &text)
{
    QByteArray bytes("\xFF\xFE");
    for (const QChar letter : text) {
        bytes += char(letter.cell());
        bytes += char(letter.row());
    }
    return bytes;
}

NxFootageRecipe text(const char *name, const QByteArray &content, const char *encoding, qint64 end)
{
    NxFootageRecipe recipe;
    recipe.name = QLatin1String(name);
    recipe.content = content;
    recipe.truth.kind = NxFootageKind::Subtitle;
    recipe.truth.rate = {rateOfText, 1};
    recipe.truth.frames = qRound64(double(end) * rateOfText / second);
    recipe.truth.durationUs = end;
    recipe.truth.textEncoding = QLatin1String(encoding);
    return recipe;
}

} // namespace

std::vector<NxFootageRecipe> NxFootageRecipes::texts()
{
    const QString content = subtitleText();
    return {
        text("utf-8.srt", content.toUtf8(), "UTF-8", endOfSubtitles),
        text("utf-8 marked.srt", "\xEF\xBB\xBF" + content.toUtf8(), "UTF-8", endOfSubtitles),
        text("utf-16.srt", inUtf16(content), "UTF-16LE", endOfSubtitles),
        text("windows.srt", inWindows1252(content), "windows-1252", endOfSubtitles),
        text("lyrics.lrc", QByteArray(lyrics), "UTF-8", endOfLyrics),
    };
}
