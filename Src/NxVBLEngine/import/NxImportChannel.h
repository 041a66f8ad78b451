// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxDoorbell.h>
#include <NxCore/NxQueue.h>
#include <NxVBLEngine/import/NxDirectoryWalker.h>

#include <QElapsedTimer>

#include <atomic>
#include <vector>

class NxDiskPulse;

/// A walk on the disk thread, and the way of what it finds to the GUI thread.
///
/// The walk goes in steps of a moment each, so that other tasks of the disk thread get their
/// turn, and rests while too much waits to be taken. Shared by both threads; a channel whose
/// thread was left behind is simply replaced by a new one.
class NxImportChannel final : public INxWalkListener
{
public:
    /// The walk rests while more entries wait than this.
    static constexpr size_t MostWaiting = 10'000;

    NxImportChannel(
        QVector<NxDirectoryWalker::Named> named, NxDoorbellRope bell, const NxFileLook &look);

    /// Disk thread: walks for a moment.
    void walkOn(NxDiskPulse &pulse);

    /// GUI thread: what was found since the last call.
    [[nodiscard]] std::vector<NxWalkEntry> take() { return m_walked.drain(); }
    void cancel() { m_cancelled = true; }
    /// Marks the channel as handed to the disk thread again.
    void resume() { m_resting = false; }
    /// The walk rests; call resume() and walkOn() again.
    [[nodiscard]] bool isResting() const { return m_resting; }
    /// The walk came to its end. What take() answers after that is the rest.
    [[nodiscard]] bool isOver() const { return m_over; }

    void onWalked(NxWalkEntry entry) override;
    bool isCancelled() override;
    bool wantsPause() override;

private:
    NxDirectoryWalker m_walker; // Disk thread only, as are the next two.
    NxDiskPulse *m_pulse = nullptr;
    QElapsedTimer m_step;
    const NxDoorbellRope m_bell;
    NxQueue<NxWalkEntry> m_walked;
    std::atomic<bool> m_cancelled{false};
    std::atomic<bool> m_resting{true};
    std::atomic<bool> m_over{false};
};
