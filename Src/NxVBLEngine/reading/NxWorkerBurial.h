// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/reading/NxWorkerProcess.h>

#include <QObject>
#include <QTimer>

#include <memory>
#include <vector>

/// Keeps workers that are of no more use until they have ended, and until nobody is in a slot of
/// theirs any more. Used on the thread it was made on, which needs an event loop.
class NxWorkerBurial final : public QObject
{
    Q_OBJECT
public:
    NxWorkerBurial();
    /// Ends what still runs.
    ~NxWorkerBurial() override;

    /// Kills it if it runs; nobody hears of it any more. May be called from a signal of its own.
    void take(std::unique_ptr<NxWorkerProcess> worker);

private:
    void bury(const NxWorkerProcess *worker);

    std::vector<std::unique_ptr<NxWorkerProcess>> m_dying; // Killed, not yet dead.
    std::vector<std::unique_ptr<NxWorkerProcess>> m_dead; // Until nobody is in a slot of theirs.
    QTimer m_timer;
};
