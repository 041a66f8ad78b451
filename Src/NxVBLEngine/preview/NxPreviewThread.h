// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/preview/NxPreviewNews.h>
#include <NxVBLEngine/preview/NxPreviewOrder.h>
#include <NxVBLEngine/preview/NxPreviewSettings.h>

#include <NxCore/NxDoorbellRope.h>

#include <memory>
#include <thread>
#include <vector>

/// The thread that speaks with the worker that plays films, so that neither its start nor its end
/// nor a full pipe holds up the window. Used from one thread.
class NXVBLENGINE_TEST_EXPORT NxPreviewThread
{
    Q_DISABLE_COPY_MOVE(NxPreviewThread)
public:
    /// `bell` is rung when news wait to be taken.
    NxPreviewThread(NxPreviewSettings settings, NxDoorbellRope bell);
    /// Ends the worker and waits for it, for one that waits for a dead disk only a moment.
    ~NxPreviewThread();

    /// Never waits.
    void add(NxPreviewOrder order);
    /// All news since the last call, the oldest first. Never waits.
    [[nodiscard]] std::vector<NxPreviewNews> take();
    /// Of the worker, 0 while none runs; asks the thread and waits for its answer.
    [[nodiscard]] qint64 processId();

private:
    struct Shared;
    static void work(const std::shared_ptr<Shared> &shared);
    void ring();

    const std::shared_ptr<Shared> m_shared;
    NxDoorbellRope m_orderBell;
    bool m_isUp = false; // The bell is there.
    std::thread m_thread;
};
