// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <atomic>
#include <mutex>

/// The place of one class's instance, shared by all libraries of the process.
struct NxLazySingletonSlot
{
    std::atomic<void *> instance{nullptr}; // A T, or null.
    std::mutex mutex; // Held while the instance is made or taken away.
};
