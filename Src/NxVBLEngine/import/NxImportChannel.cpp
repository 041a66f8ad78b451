// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/import/NxImportChannel.h>

#include <NxVBLEngine/disk/NxDiskThread.h>

#include <utility>

namespace {

constexpr qint64 LongestStep = 50; // ms

} // namespace

NxImportChannel::NxImportChannel(
    QVector<NxDirectoryWalker::Named> named, NxDoorbellRope bell, const NxFileLook &look)
    : m_walker(std::move(named), look)
    , m_bell(std::move(bell))
{
}

void NxImportChannel::walkOn(NxDiskPulse &pulse)
{
    m_pulse = &pulse;
    m_step.start();
    const NxDirectoryWalker::Outcome outcome = m_walker.walk(this);
    m_pulse = nullptr;
    if (outcome == NxDirectoryWalker::Outcome::Paused)
        m_resting = true;
    else
        m_over = true;
    m_bell.ring();
}

void NxImportChannel::onWalked(NxWalkEntry entry)
{
    if (m_pulse->isAbandoned())
        return;
    m_walked.push(std::move(entry));
    m_bell.ring();
}

bool NxImportChannel::isCancelled()
{
    m_pulse->beat();
    return m_cancelled || m_pulse->isAbandoned();
}

bool NxImportChannel::wantsPause()
{
    return m_walked.size() >= MostWaiting || m_step.hasExpired(LongestStep);
}
