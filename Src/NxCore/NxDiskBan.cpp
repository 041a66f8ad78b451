// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxDiskBan.h>

#include <NxCore/NxLog.h>

#include <utility>

namespace {

thread_local NxDiskBan *innermost = nullptr;

} // namespace

NxDiskBan::NxDiskBan() : m_outer(std::exchange(innermost, this)) {}

NxDiskBan::~NxDiskBan()
{
    innermost = m_outer;
}

void NxDiskBan::note(const char *function)
{
    if (!innermost)
        return;
    innermost->m_breaches.append(QString::fromLatin1(function));
    NX_LOG_ERROR("%s was called where nothing may wait", function);
}
