// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>
#include <QTimer>

/// Passes on that something changed, at once, but never more often than once in an interval: what
/// comes in between is told together when the interval is over.
class Throttle : public QObject
{
    Q_OBJECT
public:
    /// @param interval in ms.
    explicit Throttle(int interval, QObject *parent = nullptr);

    /// Something changed.
    void note();

Q_SIGNALS:
    void sigNow();

private:
    void onTimeout();

    QTimer m_pause; // Runs while nothing may be told.
    bool m_isSomethingNew = false;
};
