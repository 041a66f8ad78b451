// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "BenchmarkTools.h"

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

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

private:
    void beat()
    {
        m_longest = std::max(m_longest, milliseconds(m_last));
        m_last.start();
    }
    QTimer m_timer;
    QElapsedTimer m_last;
    double m_longest = 0;
};
