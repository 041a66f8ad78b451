// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <cstddef>
#include <functional>
#include <thread>

/// Starts a thread, or throws std::system_error when the system gives none.
using NxThreadStart = std::function<std::thread(const std::function<void()> &work)>;

NXMEDIALIBRARY_TEST_EXPORT std::thread nxStartThread(const std::function<void()> &work);

/// Does the parts 0, 1, ... of some work, on this thread and on others beside it, and returns when
/// all are done. Where no thread can be had, this one does it all. What a part throws is thrown
/// here, one of them if there are several, and parts that were not begun by then are left out.
NXMEDIALIBRARY_TEST_EXPORT void nxDoParts(size_t parts,
                                          const std::function<void(size_t part)> &work,
                                          const NxThreadStart &start = nxStartThread);
