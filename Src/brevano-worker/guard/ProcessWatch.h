// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

#include <atomic>
#include <thread>

/// Ends the process when it holds too much memory, or when the editor that started it is gone.
///
/// A thread of its own, because a decoder that runs wild does not come back to be asked.
class ProcessWatch
{
    Q_DISABLE_COPY_MOVE(ProcessWatch)
public:
    /// Bytes that may be resident.
    static constexpr qint64 DefaultLimit = 512LL * 1024 * 1024;

    explicit ProcessWatch(qint64 limit = DefaultLimit);
    ~ProcessWatch();

    /// Bytes of this process that are resident; 0 when the system does not tell.
    [[nodiscard]] static qint64 residentBytes();

private:
    void watch() const;

    const qint64 m_limit;
    const qint64 m_parent;
    std::atomic<bool> m_stopping{false};
    std::thread m_thread;
};
