// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
// What the user does to timelines.
#include "RandomSession.h"

#include <NxVBLEngine/objects/NxClipNode.h>
#include <NxVBLEngine/objects/NxEngineResource.h>
#include <NxVBLEngine/objects/NxTimelineNode.h>
#include <NxVBLModel/INxCompositeTimeline.h>
#include <NxVBLModel/INxSplitScreenClip.h>

using namespace NXVBLMODEL;

INxAbstractMedia *RandomSession::anyShown()
{
    if (below(10) != 0)
        return anyMedia();
    const auto &resources = m_memory->category(mctAudio)->resources();
    return resources[size_t(below(int(resources.size())))].get();
}

INxTimeline *RandomSession::anyTimeline()
{
    const QList<INxTimeline *> all = timelines()->timelines();
    return all.isEmpty() ? nullptr : all.at(below(all.size()));
}

INxClip *RandomSession::anyClip(INxTimeline *timeline)
{
    const QList<INxClip *> clips = timeline ? timeline->clips() : QList<INxClip *>();
    return clips.isEmpty() ? nullptr : clips.at(below(clips.size()));
}

INxSplitScreenClip *RandomSession::anySplitScreen()
{
    QVector<INxSplitScreenClip *> candidates;
    const QList<INxTimeline *> all = timelines()->timelines();
    for (INxTimeline *timeline : all) {
        const QList<INxClip *> clips = timeline->clips();
        for (INxClip *clip : clips) {
            if (auto *split = dynamic_cast<INxSplitScreenClip *>(clip))
                candidates.append(split);
        }
    }
    return candidates.isEmpty() ? nullptr : candidates.at(below(candidates.size()));
}

NxClipPlace RandomSession::anyPlace()
{
    NxClipPlace place;
    place.track = below(4);
    place.position = below(400);
    place.length = 1 + below(20);
    place.inPoint = below(100);
    return place;
}

bool RandomSession::addTimeline()
{
    return timelines()->editor()->addTimeline(name("timeline")) != nullptr;
}

bool RandomSession::addComposite()
{
    return timelines()->editor()->addComposite(anyTimeline(), name("composite"), anyPlace())
           != nullptr;
}

bool RandomSession::addClip()
{
    return timelines()->editor()->addClip(anyTimeline(), anyShown(), anyPlace()) != nullptr;
}

bool RandomSession::addSplitScreen()
{
    return timelines()->editor()->addSplitScreen(anyTimeline(), anyPlace()) != nullptr;
}

bool RandomSession::addInnerClip()
{
    return timelines()->editor()->addInnerClip(anySplitScreen(), anyShown(), below(50)) != nullptr;
}

bool RandomSession::moveClip()
{
    INxClip *clip = anyClip(anyTimeline());
    const NxClipPlace before = clip ? clip->place() : NxClipPlace();
    return timelines()->editor()->moveClip(clip, below(4), below(400)) && clip->place() != before;
}

bool RandomSession::removeClip()
{
    INxTimeline *timeline = anyTimeline();
    INxClip *clip = anyClip(timeline);
    if (!clip)
        return false;
    m_lastRemoved = NxTimelineMemory::nodeOf(clip)->id();
    return timeline->removeClip(clip);
}

bool RandomSession::removeInnerClip()
{
    INxSplitScreenClip *split = anySplitScreen();
    const QList<INxClip *> inner = split ? split->innerClips() : QList<INxClip *>();
    return !inner.isEmpty() && split->removeInnerClip(inner.at(below(inner.size())));
}

bool RandomSession::bringBackClip()
{
    NxClipNode *clip = timelines()->clip(m_lastRemoved);
    NxTimelineNode *timeline = clip ? timelines()->timeline(clip->record().timeline) : nullptr;
    if (!timeline)
        return false;
    const NxClipPlace place = below(2) != 0 ? clip->record().place : anyPlace();
    return timeline->timeline()->insertClip(clip->clip(), place.track, place.position);
}

bool RandomSession::renameTimeline()
{
    return timelines()->editor()->renameTimeline(anyTimeline(), name("film"));
}

bool RandomSession::removeTimeline()
{
    return timelines()->editor()->removeTimeline(anyTimeline());
}
