// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/input/ReadingLimit.h>

#include <brevano-worker/input/Container.h>

#include <algorithm>
#include <utility>

ReadingLimit::ReadingLimit(Container *container, qint64 bytes)
    : m_container(container),
      m_outer(std::exchange(container->m_allowance, std::min(container->m_allowance, bytes)))
{
}

ReadingLimit::~ReadingLimit()
{
    m_container->m_allowance = m_outer;
    // The end of the file that FFmpeg remembers may have been the limit.
    m_container->m_io->eof_reached = 0;
    m_container->m_io->error = 0;
}

bool ReadingLimit::wasReached() const
{
    return m_container->m_allowance <= 0;
}
