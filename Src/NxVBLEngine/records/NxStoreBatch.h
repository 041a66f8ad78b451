// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/records/NxChange.h>
#include <NxVBLEngine/records/NxClipRecord.h>
#include <NxVBLEngine/records/NxFolderRecord.h>
#include <NxVBLEngine/records/NxFootageRecord.h>
#include <NxVBLEngine/records/NxMediaRecord.h>
#include <NxVBLEngine/records/NxTimelineRecord.h>

#include <QVector>

#include <variant>
#include <vector>

/// What can be written to a project file. One of these is applied after the other.
namespace NxStoreEntry {

/// New media, as they stand. Their MediaAdd change need not be applied.
struct NewMedia
{
    QVector<NxMediaRecord> media;
};
struct NewFolder
{
    NxFolderRecord folder;
};
struct NewTimeline
{
    NxTimelineRecord timeline;
};
/// New clips, as they stand. Their ClipAdd change need not be applied.
struct NewClips
{
    QVector<NxClipRecord> clips;
};
/// A change of what stands: rows are updated to the state after it.
struct Apply
{
    NxChange change;
};
/// Facts about media that no undo concerns: size and times from the disk, paths after the
/// project and its footage moved together.
struct Facts
{
    QVector<NxMediaRecord>
        media; ///< id, path, canonicalPath, relativePath, size, created, modified.
};
/// What was read of files, in place of what was known before. A record that knows nothing takes
/// away what was known.
struct Footage
{
    QVector<NxFootageRecord> footage;
};
/// A new undo step begins; steps after the current position are dropped before it.
struct StepBegin
{
    qint64 serial = 0;
    QString function;
    QString action;
};
/// A change belongs to a step. Several of one step keep their order.
struct StepChange
{
    qint64 serial = 0;
    NxChange change;
};
/// How many of the steps, oldest first, are done.
struct StepPosition
{
    int done = 0;
};
/// Steps are forgotten, and what only they kept is deleted for good.
struct StepDrop
{
    QVector<qint64> serials;
    QVector<qint64> deadMedia;
    QVector<qint64> deadFolders;
    QVector<qint64> deadTimelines = {};
    QVector<qint64> deadClips = {};
};
/// The counters of the project: the next values to be given out.
struct Counters
{
    qint64 nextMediaId = 1;
    qint64 nextPlace = 1;
    int nextFolderId = 1001;
    qint64 nextStepSerial = 1;
    qint64 nextTimelineId = 1;
    qint64 nextClipId = 1;
};

using Any = std::variant<NewMedia, NewFolder, NewTimeline, NewClips, Apply, Facts, Footage,
                         StepBegin, StepChange, StepPosition, StepDrop, Counters>;

} // namespace NxStoreEntry

/// Entries that reach the project file together or not at all.
using NxStoreBatch = std::vector<NxStoreEntry::Any>;
