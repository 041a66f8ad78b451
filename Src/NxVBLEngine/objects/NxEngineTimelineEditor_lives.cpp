// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
// How clips and timelines go and come back.
#include <NxVBLEngine/objects/NxEngineTimelineEditor.h>

#include <NxCore/NxLog.h>
#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLEngine/objects/NxEngineSplitScreenClip.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxTimelineMemory.h>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace NXVBLMODEL;

namespace {

bool holdsOthers(const NxClipNode *clip)
{
    return clip->record().kind == ckComposite || clip->record().kind == ckSplitScreen;
}

} // namespace

// Taking away

bool NxEngineTimelineEditor::removeClip(NxTimelineNode *timeline, INxClip *clip)
{
    NxClipNode *removed = changeable(clip);
    if (!removed)
        return false;
    if (removed->home() != timeline || removed->isInner()) {
        NX_LOG_INFO("the timeline \"%s\" does not hold the clip",
                    qUtf8Printable(timeline->record().name));
        return false;
    }
    const NxUndoRedoCommander scope = step("removeClip");
    removeWithContents(removed);
    return true;
}

bool NxEngineTimelineEditor::removeInnerClip(NxClipNode *split, INxClip *clip)
{
    NxClipNode *removed = changeable(clip);
    if (!removed)
        return false;
    if (!removed->isInner() || removed->record().split != split->id()) {
        NX_LOG_INFO("the split screen does not hold the clip");
        return false;
    }
    const NxUndoRedoCommander scope = step("removeInnerClip");
    project()->perform(changeOf(NxChangeKind::ClipRemove, {removed->id()}));
    return true;
}

void NxEngineTimelineEditor::removeWithContents(NxClipNode *clip)
{
    std::vector<NxChange> changes;
    emptyClip(clip, clip->id(), &changes);
    changes.push_back(changeOf(NxChangeKind::ClipRemove, {clip->id()}));
    performAll(changes);
}

void NxEngineTimelineEditor::emptyClip(const NxClipNode *clip, qint64 goesWith,
                                       std::vector<NxChange> *changes) const
{
    if (clip->record().kind == ckComposite) {
        emptyTimeline(m_memory->timelineOf(clip), goesWith, changes);
        return;
    }
    if (clip->record().kind != ckSplitScreen)
        return;
    NxChange inner = changeOf(NxChangeKind::ClipRemove, {});
    inner.after.number = goesWith;
    auto *split = static_cast<NxEngineSplitScreenClip *>(m_memory->clip(clip->id()));
    for (INxClip *one : split->innerClips())
        inner.ids.append(NxTimelineMemory::nodeOf(one)->id());
    if (!inner.ids.isEmpty())
        changes->push_back(std::move(inner));
}

void NxEngineTimelineEditor::emptyTimeline(const NxTimelineNode *timeline, qint64 goesWith,
                                           std::vector<NxChange> *changes) const
{
    NxChange clips = changeOf(NxChangeKind::ClipRemove, {});
    clips.after.number = goesWith;
    for (INxClip *shown : timeline->shownClips()) {
        const NxClipNode *node = NxTimelineMemory::nodeOf(shown);
        emptyClip(node, goesWith, changes);
        clips.ids.append(node->id());
    }
    if (!clips.ids.isEmpty())
        changes->push_back(std::move(clips));
    changes->push_back(changeOf(NxChangeKind::TimelineRemove, {timeline->id()}));
}

void NxEngineTimelineEditor::performAll(const std::vector<NxChange> &changes)
{
    for (const NxChange &change : changes)
        project()->perform(change);
}

// Bringing back

bool NxEngineTimelineEditor::insertClip(NxTimelineNode *timeline, INxClip *clip, int track,
                                        qint64 position)
{
    const NxClipNode *inserted = NxTimelineMemory::nodeOf(clip);
    const bool wasHere = inserted && inserted->memory() == m_memory && !inserted->isAlive()
                         && !inserted->isInner() && inserted->record().timeline == timeline->id();
    if (!wasHere) {
        NX_LOG_INFO("the clip was not removed from the timeline \"%s\"",
                    qUtf8Printable(timeline->record().name));
        return false;
    }
    NxClipPlace place = inserted->record().place;
    place.track = track;
    place.position = position;
    if (!changeable(timeline->timeline()) || !isKept(inserted)
        || !hasRoom(timeline, place, nullptr))
        return false;
    const NxUndoRedoCommander scope = step("insertClip");
    if (place != inserted->record().place)
        move(inserted, track, position);
    project()->perform(changeOf(NxChangeKind::ClipAdd, {inserted->id()}));
    bringBackContents(inserted);
    return true;
}

void NxEngineTimelineEditor::bringBackContents(const NxClipNode *clip)
{
    // From the outside to the inside: each clip needs what it stands on.
    std::vector<NxClipNode *> waiting;
    for (const qint64 id : m_memory->clipsGoneWith(clip->id()))
        waiting.push_back(m_memory->clip(id));
    std::vector<const NxClipNode *> frames = {clip};
    while (!frames.empty()) {
        const NxClipNode *frame = frames.back();
        frames.pop_back();
        NxTimelineNode *shown = m_memory->timelineOf(frame);
        if (shown)
            project()->perform(changeOf(NxChangeKind::TimelineAdd, {shown->id()}));
        const auto standsOnFrame = [frame, shown](const NxClipNode *one) {
            return shown ? one->record().timeline == shown->id() && !one->isInner()
                         : one->record().split == frame->id();
        };
        const auto rest = std::stable_partition(
            waiting.begin(), waiting.end(),
            [&standsOnFrame](const NxClipNode *one) { return !standsOnFrame(one); });
        NxChange back = changeOf(NxChangeKind::ClipAdd, {});
        for (auto one = rest; one != waiting.end(); ++one)
            back.ids.append((*one)->id());
        std::copy_if(rest, waiting.end(), std::back_inserter(frames), holdsOthers);
        waiting.erase(rest, waiting.end());
        if (!back.ids.isEmpty())
            project()->perform(back);
    }
}
