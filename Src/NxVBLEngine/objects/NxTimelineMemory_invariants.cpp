// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineSplitScreenClip.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxTimelineMemory.h>
#include <NxVBLEngine/objects/NxTimelineNode.h>

#include <algorithm>

using namespace NXVBLMODEL;

QString NxTimelineMemory::brokenTimeline(const NxTimelineNode *timeline) const
{
    if (timeline->id() >= m_project->counters().nextTimelineId)
        return QStringLiteral("timeline %1 is ahead of the counters").arg(timeline->id());
    if (!timeline->isAlive() && !timeline->shownClips().isEmpty())
        return QStringLiteral("the removed timeline %1 shows clips").arg(timeline->id());
    const NxClipNode *outer = timeline->outer();
    const bool isComposite = timeline->record().outerClip != 0;
    if (isComposite && (!outer || timelineOf(outer) != timeline))
        return QStringLiteral("timeline %1 and its clip disagree").arg(timeline->id());
    if (isComposite && outer->isAlive() != timeline->isAlive())
        return QStringLiteral("timeline %1 lives without its clip").arg(timeline->id());

    NxClipPlace last;
    for (INxClip *shown : timeline->shownClips()) {
        const NxClipNode *node = nodeOf(shown);
        if (!node->isAlive() || node->home() != timeline || node->isInner())
            return QStringLiteral("clip %1 is shown where it does not stand").arg(node->id());
        const NxClipPlace place = shown->place();
        const bool isFree =
            place.track > last.track
            || (place.track == last.track && place.position >= last.position + last.length);
        if (!isPossible(place) || !isFree)
            return QStringLiteral("clip %1 covers another").arg(node->id());
        last = place;
    }
    return {};
}

QString NxTimelineMemory::brokenClip(const NxClipNode *clip) const
{
    if (clip->id() >= m_project->counters().nextClipId)
        return QStringLiteral("clip %1 is ahead of the counters").arg(clip->id());
    if (!clip->isAlive())
        return {};
    const NxTimelineNode *home = clip->home();
    if (!home || !home->isAlive())
        return QStringLiteral("clip %1 stands on no timeline").arg(clip->id());
    const bool isOuter = clip->record().kind == ckComposite;
    const NxTimelineNode *standsFor = timelineOf(clip);
    if (isOuter != (standsFor && standsFor->isAlive()))
        return QStringLiteral("clip %1 and what it stands for disagree").arg(clip->id());

    INxClip *shown = m_clips.at(clip->id())->clip();
    if (!clip->isInner()) {
        return home->shownClips().contains(shown)
                   ? QString()
                   : QStringLiteral("clip %1 is not shown").arg(clip->id());
    }
    auto *split = dynamic_cast<NxEngineSplitScreenClip *>(this->clip(clip->record().split));
    const bool isKnown =
        split && split->isAlive() && split->home() == home && split->innerClips().count(shown) == 1;
    return isKnown ? QString()
                   : QStringLiteral("clip %1 and its split screen disagree").arg(clip->id());
}

QString NxTimelineMemory::brokenUses() const
{
    UsesByMedia walked;
    for (const auto &[id, clip] : m_clips) {
        if (clip->isAlive() && clip->record().media != 0)
            walked[clip->record().media].push_back(clip.get());
    }
    for (auto &clips : walked) {
        std::sort(clips.begin(), clips.end(),
                  [](const NxClipNode *a, const NxClipNode *b) { return a->id() < b->id(); });
    }
    if (walked != m_uses)
        return QStringLiteral("the uses of media are not what the timelines show");
    return {};
}

QString NxTimelineMemory::brokenInvariant() const
{
    qint64 shown = 0;
    int composites = 0;
    for (const auto &[id, timeline] : m_timelines) {
        const QString broken = brokenTimeline(timeline.get());
        if (!broken.isEmpty())
            return broken;
        shown += timeline->shownClips().size();
        composites += timeline->record().outerClip != 0 ? 1 : 0;
    }
    if (composites != m_timelinesByOuter.size())
        return QStringLiteral("timelines are known by clips that are not there");
    qint64 living = 0;
    for (const auto &[id, clip] : m_clips) {
        const QString broken = brokenClip(clip.get());
        if (!broken.isEmpty())
            return broken;
        living += clip->isAlive() && !clip->isInner() ? 1 : 0;
    }
    if (living != shown)
        return QStringLiteral("%1 clips live, %2 are shown").arg(living).arg(shown);
    return brokenUses();
}
