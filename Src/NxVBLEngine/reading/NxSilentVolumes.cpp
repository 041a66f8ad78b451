// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxSilentVolumes.h>

#include <algorithm>

namespace {

constexpr std::chrono::minutes LongestPause{5};

} // namespace

bool NxSilentVolumes::noteSlow(const QString &volume)
{
    const bool isNews = !m_slow.contains(volume);
    m_slow.insert(volume);
    return isNews;
}

void NxSilentVolumes::noteSilent(const QString &volume, Milliseconds now)
{
    m_slow.remove(volume);
    Silence &silence = m_silent[volume];
    silence.pause = silence.pause.count() == 0
        ? m_pause
        : std::min<Milliseconds>(silence.pause * 2, std::max<Milliseconds>(LongestPause, m_pause));
    silence.until = now + silence.pause;
}

bool NxSilentVolumes::noteAnswer(const QString &volume)
{
    const bool wasSlow = m_slow.remove(volume);
    const bool wasSilent = m_silent.remove(volume) > 0;
    return wasSlow || wasSilent;
}

bool NxSilentVolumes::isHeldBack(const QString &volume, Milliseconds now) const
{
    if (m_slow.contains(volume))
        return true;
    const auto silence = m_silent.constFind(volume);
    return silence != m_silent.constEnd() && now < silence->until;
}
