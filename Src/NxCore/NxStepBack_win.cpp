// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxStepBack.h>

#include <NxCore/NxLog.h>

#include <windows.h>

void nxStepBack()
{
    const HANDLE thread = GetCurrentThread();
    constexpr int priority = THREAD_PRIORITY_BELOW_NORMAL;
    if (GetThreadPriority(thread) > priority && !SetThreadPriority(thread, priority))
        NX_LOG_INFO("a thread keeps its priority: error %lu", GetLastError());
}
