// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "BenchmarkTools.h"

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <vector>

/// Measures the longest time between two turns of the event loop.
class Heartbeat
{
public:
    Heartbeat()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { beat(); });
        m_timer.setTimerType(Qt::PreciseTimer);
        m_last.start();
        m_timer.start(1);
    }
    /// ms
    [[nodiscard]] double longest() const { return m_longest; }
    /// ms that this thread worked between two turns, whatever others did on its core.
    [[nodiscard]] double longestWorked() const { return m_longestWorked; }
    /// ms; that part of all turns took no longer.
    [[nodiscard]] double quantile(double part) const
    {
        std::vector<double> turns = m_turns;
        if (turns.empty())
            return 0;
        const auto at = turns.begin() + qint64(part * double(turns.size() - 1));
        std::nth_element(turns.begin(), at, turns.end());
        return *at;
    }

private:
    void beat()
    {
        m_turns.push_back(milliseconds(m_last));
        m_longest = std::max(m_longest, m_turns.back());
        const double worked = workedMilliseconds();
        m_longestWorked = std::max(m_longestWorked, worked - m_worked);
        m_worked = worked;
        m_last.start();
    }
    QTimer m_timer;
    QElapsedTimer m_last;
    std::vector<double> m_turns;
    double m_longest = 0;
    double m_worked = workedMilliseconds();
    double m_longestWorked = 0;
};
