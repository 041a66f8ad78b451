// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/records/NxProjectContents.h>

#include <QHash>
#include <QStringList>

/// Checks the timelines and clips of one project against each other. That a clip shows a media
/// which is gone is no fault: the media may come back.
class NxTimelineRowCheck
{
public:
    /// The contents must live as long as the check.
    explicit NxTimelineRowCheck(const NxProjectContents &contents);

    /// Sentences for a user; empty when all is well.
    [[nodiscard]] QStringList problems();
    [[nodiscard]] bool knowsTimeline(qint64 id) const { return m_timelines.contains(id); }
    [[nodiscard]] bool knowsClip(qint64 id) const { return m_clips.contains(id); }

private:
    void checkNumbers();
    void checkTimelines();
    void checkClips();
    void checkInner(const NxClipRecord &clip);
    void checkRoom();
    [[nodiscard]] bool leadsToTop(const NxTimelineRecord &timeline) const;
    void say(const char *text, qint64 id);

    const NxProjectContents &m_contents;
    QHash<qint64, const NxTimelineRecord *> m_timelines;
    QHash<qint64, const NxClipRecord *> m_clips;
    QHash<qint64, const NxTimelineRecord *> m_timelinesByOuter; // Living ones.
    QStringList m_problems;
};
