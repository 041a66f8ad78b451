// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <atomic>
#include <functional>
#include <mutex>

class QObject;

/// What a doorbell and its ropes share; the last of them deletes it.
struct NxDoorbellState
{
    /// Posts the bell's event, unless one is on its way or the bell is gone. From any thread.
    void ring();

    std::function<void()> handler; // Touched on the bell's thread alone.
    std::atomic<bool> rung{false}; // Whether an event is on its way.
    std::mutex mutex;
    QObject *bell = nullptr; // Guarded by the mutex; null once the bell is going.
};
