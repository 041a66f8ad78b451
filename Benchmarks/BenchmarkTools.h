// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QElapsedTimer>
#include <QString>

#include <algorithm>
#include <ctime>
#include <vector>

// What several benchmark programs need.

constexpr double NanosecondsPerMillisecond = 1e6;

[[noreturn]] inline void giveUp(const QString &why)
{
    qFatal("%s", qUtf8Printable(why));
}

inline double milliseconds(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / NanosecondsPerMillisecond;
}

/// What this thread has worked so far, ms: what others did meanwhile on its core does not count.
inline double workedMilliseconds()
{
    constexpr double nanosecondsPerSecond = 1e9;
    timespec worked = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &worked);
    return (double(worked.tv_sec) * nanosecondsPerSecond + double(worked.tv_nsec))
           / NanosecondsPerMillisecond;
}

inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}
