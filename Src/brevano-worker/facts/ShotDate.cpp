// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/ShotDate.h>

#include <NxWorkerProtocol/NxFootageFacts.h>

#include <QDateTime>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int SecondsAMinute = 60;
constexpr int SecondsAnHour = 60 * SecondsAMinute;
constexpr qint64 MillisecondsADay = 24LL * SecondsAnHour * 1'000;

/// Date, time, fraction and zone, in either way of writing.
const QRegularExpression &pattern()
{
    static const QRegularExpression made(QStringLiteral(
        "^\\s*(\\d{4})[-:](\\d{2})[-:](\\d{2})[T ](\\d{2}):(\\d{2})(?::(\\d{2})(?:[.,](\\d+))?)?"
        "\\s*(Z|[+-]\\d{2}:?\\d{2}|[+-]\\d{2})?\\s*$"));
    return made;
}

enum Part { Year = 1, Month, Day, Hour, Minute, Second, Fraction, Zone };

int millisecondsOf(const QString &fraction)
{
    constexpr int digits = 3;
    return fraction.leftJustified(digits, QLatin1Char('0'), true).toInt();
}

/// Seconds east of Greenwich of "+0200", "+02:00", "-05" or "Z".
int secondsOf(QString zone)
{
    constexpr int placeOfHours = 1;
    constexpr int placeOfMinutes = 3;
    constexpr int digits = 2;
    if (zone == QLatin1String("Z"))
        return 0;
    zone.remove(QLatin1Char(':'));
    const int seconds = zone.mid(placeOfHours, digits).toInt() * SecondsAnHour
                        + zone.mid(placeOfMinutes, digits).toInt() * SecondsAMinute;
    return zone.startsWith(QLatin1Char('-')) ? -seconds : seconds;
}

qint64 msOf(const QString &text, Qt::TimeSpec withoutZone)
{
    const QRegularExpressionMatch match = pattern().match(text);
    const auto number = [&match](Part part) { return match.captured(part).toInt(); };
    const QDate date(number(Year), number(Month), number(Day));
    const QTime time(number(Hour), number(Minute), number(Second),
                     millisecondsOf(match.captured(Fraction)));
    if (!match.hasMatch() || !date.isValid() || !time.isValid())
        return NxNoFootageTime;
    const QString zone = match.captured(Zone);
    const QDateTime moment = zone.isEmpty()
                                 ? QDateTime(date, time, withoutZone)
                                 : QDateTime(date, time, Qt::OffsetFromUTC, secondsOf(zone));
    return moment.isValid() ? moment.toMSecsSinceEpoch() : NxNoFootageTime;
}

} // namespace

qint64 ShotDate::ofContainer(const QString &text)
{
    return msOf(text, Qt::UTC);
}

qint64 ShotDate::ofExif(const QString &text, const QString &offset)
{
    return msOf(text.trimmed() + offset.trimmed(), Qt::LocalTime);
}

qint64 ShotDate::firstSane(std::initializer_list<qint64> dates)
{
    const qint64 tomorrow = QDateTime::currentMSecsSinceEpoch() + MillisecondsADay;
    const auto *found = std::find_if(dates.begin(), dates.end(), [tomorrow](qint64 date) {
        return date >= 0 && date <= tomorrow;
    });
    return found == dates.end() ? NxNoFootageTime : *found;
}
