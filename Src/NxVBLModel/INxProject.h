// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QList>
#include <QString>

#include <functional>

class INxFootageService;
class INxMediaLibrary;
class INxRelinkSearch;
class INxTimeline;
class INxTimelineEditor;
class INxUndoStack;
struct NxTimelineUse;

/// An open project. Owned by the engine that opened it.
class NXVBLMODEL_EXPORT INxProject
{
public:
    virtual ~INxProject();

    /// Path of the project file; empty for a project that lives in memory alone.
    [[nodiscard]] virtual QString path() const;
    /// True when nothing can be changed; readOnlyReason() says why.
    [[nodiscard]] virtual bool isReadOnly() const;
    /// A sentence for the user; empty when the project can be changed.
    [[nodiscard]] virtual QString readOnlyReason() const;
    [[nodiscard]] virtual INxMediaLibrary *mediaLibrary() = 0;
    /// Owned by the project; null when changes cannot be undone.
    [[nodiscard]] virtual INxUndoStack *undoStack();
    /// What reads the project's files; owned by the project, null when nothing does.
    [[nodiscard]] virtual INxFootageService *footageService();
    /// What finds files that were moved; owned by the project, null when nothing does.
    [[nodiscard]] virtual INxRelinkSearch *relinkSearch();
    /// Where timelines use a media, composite ones included; empty when nowhere. The use of a clip
    /// inside a split screen names the timeline that shows the split screen.
    [[nodiscard]] virtual QList<NxTimelineUse> timelineUses(const QString &mediaId);
    /// Every timeline, composite ones included, each behind the one it stands on.
    [[nodiscard]] virtual QList<INxTimeline *> timelines();
    /// Builds timelines; owned by the project, null when the project's timelines are the host's.
    [[nodiscard]] virtual INxTimelineEditor *timelineEditor();

    /// Asks for everything done so far to be on disk, and returns at once. `done` is called on the
    /// GUI thread after the commit, or with the reason why there is none; it may be empty.
    virtual void requestCommit(std::function<void(const NxResult<void> &)> done);
    /// Writes a copy of the project, as it stands at the call, to a new file. `done` as above.
    virtual void saveCopy(const QString &path, std::function<void(const NxResult<void> &)> done);
};
