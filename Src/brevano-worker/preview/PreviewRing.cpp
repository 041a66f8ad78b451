// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/preview/PreviewRing.h>

#include <algorithm>

namespace {

constexpr qint64 MostAhead = NxPreviewSlots::Count - 1;
/// Frames; what is further behind was not too late, something else was chosen to be shown.
constexpr qint64 LongestDelay = 50;

} // namespace

std::optional<quint32> PreviewRing::freeSlot() const
{
    const auto free = std::find(m_lent.begin(), m_lent.end(), std::nullopt);
    if (free == m_lent.end())
        return std::nullopt;
    return quint32(free - m_lent.begin());
}

void PreviewRing::lend(const NxPreviewFrame &picture)
{
    m_lent[picture.slot] = picture;
    m_newest = picture;
}

void PreviewRing::takeBack(quint32 slots)
{
    for (int slot = 0; slot < NxPreviewSlots::Count; ++slot) {
        if (slots & NxPreviewSlots::bit(slot))
            m_lent[size_t(slot)].reset();
    }
}

void PreviewRing::keepUp(const NxPreviewShow &shown, qint64 frames)
{
    const bool isSame =
        m_newest && m_newest->number == shown.number && m_newest->size == shown.size;
    if (!isSame || shown.frame >= frames) {
        m_lead = 0;
        return;
    }
    const qint64 behind = (shown.frame - m_newest->frame + frames) % frames;
    const bool isInTime = NxPreviewSlots::isWanted(m_newest->frame, shown.frame, frames);
    if (isInTime && (m_newest->frame - shown.frame + frames) % frames > MostAhead / 2)
        m_lead = std::max<qint64>(m_lead - 1, 0);
    else if (!isInTime)
        m_lead = behind < LongestDelay ? std::min(2 * m_lead + 1, MostAhead) : 0;
}

std::optional<qint64> PreviewRing::missing(const NxPreviewShow &shown, qint64 frames) const
{
    if (shown.frame >= frames)
        return std::nullopt;
    const qint64 most = std::min<qint64>(NxPreviewSlots::Count, frames);
    for (qint64 i = 0; i < most; ++i) {
        const qint64 frame = (shown.frame + (m_lead + i) % most) % frames;
        if (NxPreviewSlots::isWanted(frame, shown.frame, frames) && !isLent(shown, frame))
            return frame;
    }
    return std::nullopt;
}

bool PreviewRing::isLent(const NxPreviewShow &shown, qint64 frame) const
{
    return std::any_of(m_lent.begin(), m_lent.end(),
                       [&shown, frame](const std::optional<NxPreviewFrame> &lent) {
                           return lent && lent->number == shown.number && lent->frame == frame
                                  && lent->size == shown.size;
                       });
}
