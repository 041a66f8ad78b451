// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/TimelineDesk.h>

#include <NxCore/INxUndoStack.h>
#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxClip.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/INxTimeline.h>
#include <NxVBLModel/INxTimelineEditor.h>
#include <NxVBLModel/NxClipPlace.h>

namespace {

constexpr int FramesPerSecond = 25; // Of the timeline.
constexpr qint64 StillFrames = 5 * FramesPerSecond; // Of what has no length of its own.
constexpr qint64 MsecPerSecond = 1000;

qint64 lengthOf(const INxAbstractMediaItem &item)
{
    const INxMediaInfo *info = item.mediaInfo();
    const qint64 msecs = info && item.hasDuration() ? info->duration() : 0;
    return msecs > 0 ? qMax<qint64>(1, msecs * FramesPerSecond / MsecPerSecond) : StillFrames;
}

qint64 endOf(INxTimeline *timeline)
{
    qint64 end = 0;
    const QList<INxClip *> clips = timeline->clips();
    for (const INxClip *clip : clips) {
        if (clip->place().track == 0)
            end = qMax(end, clip->place().position + clip->place().length);
    }
    return end;
}

} // namespace

NxResult<QString> TimelineDesk::append(INxProject *project, const QList<INxAbstractMedia *> &medias)
{
    INxTimelineEditor *editor = project ? project->timelineEditor() : nullptr;
    if (!editor)
        return NxError{tr("There is no timeline to add to.")};
    if (project->isReadOnly())
        return NxError{project->readOnlyReason()};
    const NxUndoRedoCommander step(project->undoStack(), QStringLiteral("TimelineDesk::append"),
                                   QStringLiteral("addClip"));
    const QList<INxTimeline *> timelines = project->timelines();
    INxTimeline *timeline =
        timelines.isEmpty() ? editor->addTimeline(tr("Timeline 1")) : timelines.constFirst();
    if (!timeline)
        return NxError{tr("No timeline can be made.")};
    qint64 position = endOf(timeline);
    for (INxAbstractMedia *media : medias) {
        const auto *item = dynamic_cast<const INxAbstractMediaItem *>(media);
        const qint64 length = item ? lengthOf(*item) : 0;
        if (length == 0)
            continue;
        if (!editor->addClip(timeline, media, {0, position, length, 0}))
            return NxError{
                tr("\"%1\" cannot be added to \"%2\".").arg(media->name(), timeline->name())};
        position += length;
    }
    return timeline->name();
}
