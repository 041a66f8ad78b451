// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxTimelineRowCheck.h>

#include <QCoreApplication>

#include <algorithm>
#include <tuple>
#include <vector>

using namespace NXVBLMODEL;

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("NxProjectStore", text);
}

} // namespace

NxTimelineRowCheck::NxTimelineRowCheck(const NxProjectContents &contents) : m_contents(contents)
{
    for (const NxTimelineRecord &timeline : contents.timelines) {
        m_timelines.insert(timeline.id, &timeline);
        if (timeline.alive && timeline.outerClip != 0)
            m_timelinesByOuter.insert(timeline.outerClip, &timeline);
    }
    for (const NxClipRecord &clip : contents.clips)
        m_clips.insert(clip.id, &clip);
}

void NxTimelineRowCheck::say(const char *text, qint64 id)
{
    m_problems += translated(text).arg(id);
}

QStringList NxTimelineRowCheck::problems()
{
    m_problems.clear();
    checkNumbers();
    checkTimelines();
    checkClips();
    checkRoom();
    return m_problems;
}

void NxTimelineRowCheck::checkNumbers()
{
    for (const NxTimelineRecord &timeline : m_contents.timelines) {
        if (m_timelines.value(timeline.id) != &timeline)
            say("timeline %1 is there twice", timeline.id);
        if (timeline.id >= m_contents.counters.nextTimelineId)
            say("the number of timeline %1 would be given out again", timeline.id);
    }
    for (const NxClipRecord &clip : m_contents.clips) {
        if (m_clips.value(clip.id) != &clip)
            say("clip %1 is there twice", clip.id);
        if (clip.id >= m_contents.counters.nextClipId)
            say("the number of clip %1 would be given out again", clip.id);
    }
}

void NxTimelineRowCheck::checkTimelines()
{
    for (const NxTimelineRecord &timeline : m_contents.timelines) {
        if (timeline.outerClip == 0)
            continue;
        const NxClipRecord *outer = m_clips.value(timeline.outerClip, nullptr);
        const bool isThere =
            outer && outer->kind == ckComposite && (outer->alive || !timeline.alive);
        if (!isThere)
            say("timeline %1 stands for a clip that is not there", timeline.id);
        else if (!leadsToTop(timeline))
            say("timeline %1 stands on itself", timeline.id);
    }
}

bool NxTimelineRowCheck::leadsToTop(const NxTimelineRecord &timeline) const
{
    const NxTimelineRecord *below = &timeline;
    for (int steps = 0; steps <= m_timelines.size(); ++steps) {
        const NxClipRecord *outer = m_clips.value(below->outerClip, nullptr);
        below = outer ? m_timelines.value(outer->timeline, nullptr) : nullptr;
        if (!below)
            return true;
    }
    return false;
}

void NxTimelineRowCheck::checkClips()
{
    for (const NxClipRecord &clip : m_contents.clips) {
        const NxTimelineRecord *home = m_timelines.value(clip.timeline, nullptr);
        if (!home || (clip.alive && !home->alive))
            say("clip %1 stands on a timeline that is not there", clip.id);
        if (clip.split != 0)
            checkInner(clip);
        if (clip.alive && clip.kind == ckComposite && !m_timelinesByOuter.contains(clip.id))
            say("clip %1 stands for a timeline that is not there", clip.id);
    }
}

void NxTimelineRowCheck::checkInner(const NxClipRecord &clip)
{
    const NxClipRecord *split = m_clips.value(clip.split, nullptr);
    const bool isThere = split && split->kind == ckSplitScreen && split->timeline == clip.timeline
                         && (split->alive || !clip.alive);
    if (!isThere)
        say("clip %1 stands inside what is no split screen", clip.id);
}

void NxTimelineRowCheck::checkRoom()
{
    std::vector<const NxClipRecord *> shown;
    for (const NxClipRecord &clip : m_contents.clips) {
        if (clip.alive && clip.split == 0)
            shown.push_back(&clip);
    }
    std::sort(shown.begin(), shown.end(), [](const NxClipRecord *a, const NxClipRecord *b) {
        return std::tie(a->timeline, a->place.track, a->place.position, a->id)
               < std::tie(b->timeline, b->place.track, b->place.position, b->id);
    });
    for (size_t next = 1; next < shown.size(); ++next) {
        const NxClipRecord *left = shown[next - 1];
        const NxClipRecord *right = shown[next];
        const bool isBeside =
            left->timeline == right->timeline && left->place.track == right->place.track;
        if (isBeside && left->place.position + left->place.length > right->place.position) {
            m_problems +=
                translated("clips %1 and %2 cover each other").arg(left->id).arg(right->id);
        }
    }
}
