// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineTimelineEditor.h>

#include <NxCore/NxLog.h>
#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineCompositeTimeline.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineSplitScreenClip.h>
#include <NxVBLEngine/objects/NxEngineUndoStack.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxTimelineMemory.h>

using namespace NXVBLMODEL;

namespace {

NxClipRecord recordOn(const NxTimelineNode *timeline, int kind, const NxClipPlace &place)
{
    NxClipRecord record;
    record.timeline = timeline->id();
    record.kind = kind;
    record.place = place;
    return record;
}

/// The item, if it stands in this project; else null, and the log tells.
const NxEngineItem *usable(INxAbstractMedia *media, const NxProjectMemory *project)
{
    const auto *item = dynamic_cast<const NxEngineItem *>(media);
    if (item && item->folder() && item->folder()->category()->memory() == project)
        return item;
    NX_LOG_INFO("the media does not stand in this project");
    return nullptr;
}

void show(NxClipRecord *record, const NxEngineItem *item)
{
    record->media = item->mediaId().toLongLong();
    record->kind = item->mediaType() == mtAudio ? ckAudio : ckVideo;
}

} // namespace

NxEngineTimelineEditor::NxEngineTimelineEditor(NxTimelineMemory *memory) : m_memory(memory) {}

NxEngineTimelineEditor::~NxEngineTimelineEditor() = default;

NxProjectMemory *NxEngineTimelineEditor::project() const
{
    return m_memory->project();
}

NxUndoRedoCommander NxEngineTimelineEditor::step(const char *action) const
{
    const QString name = QString::fromLatin1(action);
    return {project()->undoStack(), QStringLiteral("NxEngineTimelineEditor::") + name, name};
}

NxChange NxEngineTimelineEditor::changeOf(NxChangeKind what, const QVector<qint64> &ids)
{
    NxChange change;
    change.what = what;
    change.ids = ids;
    return change;
}

// What may be done

bool NxEngineTimelineEditor::mayChange() const
{
    if (!project()->isReadOnly())
        return true;
    NX_LOG_INFO("the project cannot be changed");
    return false;
}

QString NxEngineTimelineEditor::usableName(const QString &name) const
{
    const QString trimmed = name.trimmed();
    if (!trimmed.isEmpty() && trimmed.size() <= MaximumNameLength)
        return trimmed;
    NX_LOG_INFO("a timeline cannot be called \"%s\"", qUtf8Printable(name.left(MaximumNameLength)));
    return {};
}

NxTimelineNode *NxEngineTimelineEditor::changeable(INxTimeline *timeline) const
{
    NxTimelineNode *mine = NxTimelineMemory::nodeOf(timeline);
    if (mine && mine->memory() == m_memory && mine->isAlive())
        return mayChange() ? mine : nullptr;
    NX_LOG_INFO("the timeline does not stand in this project");
    return nullptr;
}

NxClipNode *NxEngineTimelineEditor::changeable(INxClip *clip) const
{
    NxClipNode *mine = NxTimelineMemory::nodeOf(clip);
    if (mine && mine->memory() == m_memory && mine->isAlive())
        return mayChange() ? mine : nullptr;
    NX_LOG_INFO("the clip does not stand in this project");
    return nullptr;
}

bool NxEngineTimelineEditor::hasRoom(const NxTimelineNode *timeline, const NxClipPlace &place,
                                     INxClip *except) const
{
    if (!isPossible(place)) {
        NX_LOG_INFO("no clip can stand on track %d at %lld, %lld frames long from %lld",
                    place.track, place.position, place.length, place.inPoint);
        return false;
    }
    if (timeline->hasRoom(place, except))
        return true;
    NX_LOG_INFO("track %d has no room at %lld for %lld frames", place.track, place.position,
                place.length);
    return false;
}

bool NxEngineTimelineEditor::isKept(const NxClipNode *removed) const
{
    // A clip whose making was taken back goes with the steps that could make it again.
    if (project()->undoStack()->keeps(NxObjectKind::Clip, removed->id()))
        return true;
    NX_LOG_INFO("the making of the clip was taken back");
    return false;
}

// Timelines

NxTimelineNode *NxEngineTimelineEditor::makeTimeline(const QString &name, qint64 outerClip)
{
    NxTimelineRecord record;
    record.id = project()->takeTimelineId();
    record.name = name;
    record.outerClip = outerClip;
    m_memory->make(record);
    project()->introduce(changeOf(NxChangeKind::TimelineAdd, {record.id}),
                         NxStoreEntry::NewTimeline{record});
    return m_memory->timeline(record.id);
}

INxTimeline *NxEngineTimelineEditor::addTimeline(const QString &name)
{
    const QString usable = usableName(name);
    if (usable.isEmpty() || !mayChange())
        return nullptr;
    const NxUndoRedoCommander scope = step("addTimeline");
    return makeTimeline(usable, 0)->timeline();
}

bool NxEngineTimelineEditor::removeTimeline(INxTimeline *timeline)
{
    NxTimelineNode *removed = changeable(timeline);
    if (!removed)
        return false;
    const NxUndoRedoCommander scope = step("removeTimeline");
    if (NxClipNode *outer = removed->outer()) {
        removeWithContents(outer);
        return true;
    }
    std::vector<NxChange> changes;
    emptyTimeline(removed, 0, &changes);
    performAll(changes);
    return true;
}

bool NxEngineTimelineEditor::renameTimeline(INxTimeline *timeline, const QString &name)
{
    const NxTimelineNode *renamed = changeable(timeline);
    const QString usable = renamed ? usableName(name) : QString();
    if (usable.isEmpty())
        return false;
    if (usable == renamed->record().name)
        return true;
    const NxUndoRedoCommander scope = step("renameTimeline");
    NxChange change = changeOf(NxChangeKind::TimelineRename, {renamed->id()});
    change.before.text = renamed->record().name;
    change.after.text = usable;
    project()->perform(change);
    return true;
}

// Clips

NxClipNode *NxEngineTimelineEditor::makeClip(NxClipRecord record)
{
    record.id = project()->takeClipId();
    m_memory->make(record);
    project()->introduce(changeOf(NxChangeKind::ClipAdd, {record.id}),
                         NxStoreEntry::NewClips{{record}});
    return m_memory->clip(record.id);
}

INxClip *NxEngineTimelineEditor::addClip(INxTimeline *timeline, INxAbstractMedia *media,
                                         const NxClipPlace &place)
{
    const NxTimelineNode *shownOn = changeable(timeline);
    const NxEngineItem *item = shownOn ? usable(media, project()) : nullptr;
    if (!item || !hasRoom(shownOn, place, nullptr))
        return nullptr;
    NxClipRecord record = recordOn(shownOn, ckVideo, place);
    show(&record, item);
    const NxUndoRedoCommander scope = step("addClip");
    return makeClip(record)->clip();
}

INxSplitScreenClip *NxEngineTimelineEditor::addSplitScreen(INxTimeline *timeline,
                                                           const NxClipPlace &place)
{
    const NxTimelineNode *shownOn = changeable(timeline);
    if (!shownOn || !hasRoom(shownOn, place, nullptr))
        return nullptr;
    const NxUndoRedoCommander scope = step("addSplitScreen");
    return static_cast<NxEngineSplitScreenClip *>(
        makeClip(recordOn(shownOn, ckSplitScreen, place)));
}

INxClip *NxEngineTimelineEditor::addInnerClip(INxSplitScreenClip *split, INxAbstractMedia *media,
                                              qint64 inPoint)
{
    const NxClipNode *frame = changeable(split);
    const NxEngineItem *item = frame ? usable(media, project()) : nullptr;
    if (!item)
        return nullptr;
    if (inPoint < 0) {
        NX_LOG_INFO("no media begins at frame %lld", inPoint);
        return nullptr;
    }
    NxClipPlace place;
    place.inPoint = inPoint;
    NxClipRecord record = recordOn(frame->home(), ckVideo, place);
    record.split = frame->id();
    show(&record, item);
    const NxUndoRedoCommander scope = step("addInnerClip");
    return makeClip(record)->clip();
}

INxCompositeTimeline *NxEngineTimelineEditor::addComposite(INxTimeline *outer, const QString &name,
                                                           const NxClipPlace &place)
{
    const NxTimelineNode *shownOn = changeable(outer);
    const QString usable = shownOn ? usableName(name) : QString();
    if (usable.isEmpty() || !hasRoom(shownOn, place, nullptr))
        return nullptr;
    const NxUndoRedoCommander scope = step("addComposite");
    const NxClipNode *clip = makeClip(recordOn(shownOn, ckComposite, place));
    return static_cast<NxEngineCompositeTimeline *>(makeTimeline(usable, clip->id()));
}

bool NxEngineTimelineEditor::moveClip(INxClip *clip, int track, qint64 position)
{
    const NxClipNode *moved = changeable(clip);
    if (!moved)
        return false;
    if (moved->isInner()) {
        NX_LOG_INFO("the clip stands where its split screen stands");
        return false;
    }
    NxClipPlace place = moved->record().place;
    if (place.track == track && place.position == position)
        return true;
    place.track = track;
    place.position = position;
    if (!hasRoom(moved->home(), place, clip))
        return false;
    const NxUndoRedoCommander scope = step("moveClip");
    move(moved, track, position);
    return true;
}

void NxEngineTimelineEditor::move(const NxClipNode *clip, int track, qint64 position)
{
    const NxClipPlace &place = clip->record().place;
    NxChange change = changeOf(NxChangeKind::ClipMove, {clip->id()});
    change.before.folder = place.track;
    change.before.place = place.position;
    change.after.folder = track;
    change.after.place = position;
    project()->perform(change);
}
