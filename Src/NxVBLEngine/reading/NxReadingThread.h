// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/reading/NxReadOutcome.h>
#include <NxVBLEngine/reading/NxWorkerSettings.h>

#include <NxCore/NxDoorbellRope.h>

#include <memory>
#include <thread>
#include <vector>

/// The thread that speaks with the workers, so that starting one, or ending one, never holds up
/// the window. Used from one thread.
class NXVBLENGINE_TEST_EXPORT NxReadingThread
{
    Q_DISABLE_COPY_MOVE(NxReadingThread)
public:
    /// `bell` is rung when outcomes wait to be taken.
    NxReadingThread(NxWorkerSettings settings, NxDoorbellRope bell);
    /// Ends the workers and waits for them, for one that waits for a dead disk only a moment.
    ~NxReadingThread();

    void add(std::vector<NxReadRequest> requests);
    /// All outcomes since the last call.
    [[nodiscard]] std::vector<NxReadOutcome> take();
    /// Process ids of the workers that run; asks the thread and waits for its answer.
    [[nodiscard]] std::vector<qint64> processIds();

private:
    struct Shared;
    static void work(const std::shared_ptr<Shared> &shared);
    void ring();

    const std::shared_ptr<Shared> m_shared;
    NxDoorbellRope m_orderBell;
    bool m_isUp = false; // The bell is there.
    std::thread m_thread;
};
