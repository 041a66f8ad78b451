// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxForkGuard.h>

#ifdef __linux__

#include <NxCore/NxLog.h>

#include <csignal>
#include <cstring>
#include <pthread.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

constexpr pid_t Nobody = 0;

/// Our process, while this thread starts another one.
thread_local pid_t t_starter = Nobody;

// In the child, where only what a signal handler may call is safe.
void followStarter()
{
    if (t_starter == Nobody)
        return;
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != t_starter)
        ::_exit(1); // It was gone before.
}

} // namespace

NxForkGuard::NxForkGuard()
{
    static const int trouble = ::pthread_atfork(nullptr, nullptr, &followStarter);
    if (trouble != 0)
        NX_LOG_INFO("what is started may outlive this process: %s", std::strerror(trouble));
    t_starter = ::getpid();
}

NxForkGuard::~NxForkGuard()
{
    t_starter = Nobody;
}

#else

NxForkGuard::NxForkGuard() = default;
NxForkGuard::~NxForkGuard() = default;

#endif
