// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxWorkerBurial.h>

#include <algorithm>
#include <utility>

NxWorkerBurial::NxWorkerBurial()
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, [this] { m_dead.clear(); });
}

NxWorkerBurial::~NxWorkerBurial() = default;

void NxWorkerBurial::take(std::unique_ptr<NxWorkerProcess> worker)
{
    NxWorkerProcess *taken = worker.get();
    taken->disconnect();
    m_dying.push_back(std::move(worker));
    connect(taken, &NxWorkerProcess::gone, this, [this, taken] { bury(taken); });
    if (taken->isRunning())
        taken->kill();
    else
        bury(taken);
}

void NxWorkerBurial::bury(const NxWorkerProcess *worker)
{
    const auto dead = std::find_if(m_dying.begin(), m_dying.end(),
                                   [worker](const auto &one) { return one.get() == worker; });
    if (dead == m_dying.end())
        return;
    m_dead.push_back(std::move(*dead));
    m_dying.erase(dead);
    m_timer.start();
}
