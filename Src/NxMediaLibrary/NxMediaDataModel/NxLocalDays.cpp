// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxLocalDays_p.h"

#include <QDateTime>

#include <algorithm>

namespace {

constexpr qint64 MsecPerDay = 24 * 60 * 60 * 1000;

qint64 askForDay(qint64 moment)
{
    return QDateTime::fromMSecsSinceEpoch(moment).date().toJulianDay();
}

// The years for which the system knows the changes of its clocks.
bool isInTableYears(qint64 moment)
{
    static const qint64 first = QDateTime(QDate(1970, 1, 3), QTime(0, 0)).toMSecsSinceEpoch();
    static const qint64 last = QDateTime(QDate(2037, 12, 29), QTime(0, 0)).toMSecsSinceEpoch();
    return moment >= first && moment <= last;
}

// A day that a country skipped has no midnight: it ends when it begins.
std::vector<qint64> midnights(qint64 firstDay, qint64 lastDay)
{
    std::vector<qint64> starts(size_t(lastDay - firstDay) + 2);
    qint64 next = 0;
    for (size_t i = starts.size(); i-- > 0;) {
        const QDateTime start = QDate::fromJulianDay(firstDay + qint64(i)).startOfDay();
        if (start.isValid())
            next = start.toMSecsSinceEpoch();
        starts[i] = next;
    }
    return starts;
}

} // namespace

NxLocalDays::NxLocalDays(const std::vector<qint64> &moments)
{
    qint64 first = 0;
    qint64 last = 0;
    qint64 count = 0;
    for (const qint64 moment : moments) {
        if (!isInTableYears(moment))
            continue;
        first = count == 0 ? moment : std::min(first, moment);
        last = count == 0 ? moment : std::max(last, moment);
        ++count;
    }
    if (count == 0 || (last - first) / MsecPerDay >= count)
        return;
    m_firstDay = askForDay(first);
    m_midnights = midnights(m_firstDay, askForDay(last));
}

qint64 NxLocalDays::julianDay(qint64 moment) const
{
    if (m_midnights.empty() || moment < m_midnights.front() || moment >= m_midnights.back())
        return askForDay(moment);
    const qint64 guess = (moment - m_midnights.front()) / MsecPerDay;
    size_t day = std::min(size_t(guess), m_midnights.size() - 2);
    while (moment < m_midnights[day])
        --day;
    while (moment >= m_midnights[day + 1])
        ++day;
    return m_firstDay + qint64(day);
}
