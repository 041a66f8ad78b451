// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/records/NxClipRecord.h>
#include <NxVBLEngine/records/NxFolderRecord.h>
#include <NxVBLEngine/records/NxFootageRow.h>
#include <NxVBLEngine/records/NxResourceRecord.h>
#include <NxVBLEngine/records/NxStoreBatch.h>
#include <NxVBLEngine/records/NxTimelineRecord.h>
#include <NxVBLEngine/records/NxUndoRecord.h>

#include <vector>

/// Everything that a project file holds, as it is read at opening.
struct NxProjectContents
{
    std::vector<NxFolderRecord> folders; ///< By category, then id. Dead ones included.
    /// By category, folder and place, so that what is listed together is read together.
    /// Dead ones included.
    std::vector<NxMediaRecord> media;
    std::vector<NxFootageRow> footage; ///< By media. Files of which nothing is known have none.
    std::vector<NxFootageStreams> streams; ///< What the rows of footage point into.
    /// Rows of footage that make no sense and are left out. Their files are to be read again;
    /// nothing of the user's is lost with them.
    qint64 senselessFootage = 0;
    std::vector<NxResourceRecord> resources;
    std::vector<NxTimelineRecord> timelines; ///< By id. Dead ones included.
    std::vector<NxClipRecord> clips; ///< By id. Dead ones included.
    std::vector<NxUndoRecord> undoSteps; ///< Oldest first.
    int undoDone = 0; ///< How many of the steps are done.
    NxStoreEntry::Counters counters;
    QString projectFolder; ///< Where the project stood when it was last written.
    QString damage; ///< A sentence when not everything could be read; else empty.
};
