// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/Throttle.h>

#include <utility>

Throttle::Throttle(int interval, QObject *parent) : QObject(parent)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(interval);
    connect(&m_pause, &QTimer::timeout, this, &Throttle::onTimeout);
}

void Throttle::note()
{
    if (m_pause.isActive()) {
        m_isSomethingNew = true;
        return;
    }
    m_pause.start();
    Q_EMIT sigNow();
}

void Throttle::onTimeout()
{
    if (std::exchange(m_isSomethingNew, false))
        note();
}
