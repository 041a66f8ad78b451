// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/CueTimes.h>

#include <brevano-worker/facts/SaneNumbers.h>

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr qint64 SecondsAMinute = 60;
constexpr qint64 SecondsAnHour = 60 * SecondsAMinute;

/// The four parts of a time, from its first one on.
enum Part { Hours, Minutes, Seconds, Fraction, PartsOfATime };

qint64 fractionUs(const QString &digits)
{
    constexpr int digitsOfMicroseconds = 6;
    return digits.leftJustified(digitsOfMicroseconds, QLatin1Char('0'), true).toLongLong();
}

/// Microseconds.
qint64 timeOf(const QRegularExpressionMatch &match, int firstPart)
{
    const auto number = [&match, firstPart](Part part) {
        return match.captured(firstPart + part).toLongLong();
    };
    const qint64 seconds =
        number(Hours) * SecondsAnHour + number(Minutes) * SecondsAMinute + number(Seconds);
    return seconds * SaneNumbers::MicrosecondsASecond
           + fractionUs(match.captured(firstPart + Fraction));
}

/// A subtitle ends after its beginning: one whose end is cut off is none.
std::optional<qint64> endOfSubtitles(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral("(?:(\\d{1,4}):)?(\\d{1,2}):(\\d{1,2})(?:[,.](\\d{1,9}))?[ \\t]*-->[ \\t]*"
                       "(?:(\\d{1,4}):)?(\\d{1,2}):(\\d{1,2})(?:[,.](\\d{1,9}))?"));
    std::optional<qint64> last;
    QRegularExpressionMatchIterator matches = pattern.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const qint64 end = timeOf(match, 1 + PartsOfATime);
        if (end > timeOf(match, 1))
            last = std::max(last.value_or(0), end);
    }
    return last;
}

std::optional<qint64> endOfLyrics(const QString &text)
{
    // Lyrics know no hours, so the group of hours is always empty.
    static const QRegularExpression pattern(
        QStringLiteral("\\[()(\\d{1,4}):(\\d{1,2})(?:[.:](\\d{1,9}))?\\]"));
    qint64 last = 0;
    QRegularExpressionMatchIterator matches = pattern.globalMatch(text);
    while (matches.hasNext())
        last = std::max(last, timeOf(matches.next(), 1));
    return last > 0 ? std::optional<qint64>(last) : std::nullopt;
}

} // namespace

std::optional<qint64> CueTimes::endUs(const QString &text)
{
    const std::optional<qint64> end = endOfSubtitles(text);
    return end ? end : endOfLyrics(text);
}
