// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxStepBack.h>

#ifdef __linux__

#include <NxCore/NxLog.h>

#include <cerrno>
#include <cstring>
#include <sys/resource.h>
#include <unistd.h>

// Linux takes the number of a thread for one of a process here; others would slow all of it down.
void nxStepBack()
{
    constexpr int niceness = 5; // Before the workers, which nobody waits for.
    const auto thread = id_t(gettid());
    if (::getpriority(PRIO_PROCESS, thread) >= niceness)
        return;
    if (::setpriority(PRIO_PROCESS, thread, niceness) != 0)
        NX_LOG_INFO("a thread keeps its priority: %s", std::strerror(errno));
}

#else

void nxStepBack() {}

#endif
