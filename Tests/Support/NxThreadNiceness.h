// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <algorithm>
#include <sys/resource.h>
#include <unistd.h>

/// How far threads step back for others: 0 not at all, 19 as far as they can.
namespace NxThreadNiceness {

/// That of the calling thread.
inline int own()
{
    return ::getpriority(PRIO_PROCESS, id_t(gettid()));
}

/// That of a thread which steps back so far, if the calling one started it: threads begin like the
/// one that started them, and none comes forward.
inline int atLeast(int niceness)
{
    return std::max(niceness, own());
}

} // namespace NxThreadNiceness
