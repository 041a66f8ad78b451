// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxProject.h>

#include <NxVBLModel/NxTimelineUse.h>

INxProject::~INxProject() = default;

QString INxProject::path() const
{
    return {};
}

bool INxProject::isReadOnly() const
{
    return false;
}

QString INxProject::readOnlyReason() const
{
    return {};
}

INxUndoStack *INxProject::undoStack()
{
    return nullptr;
}

INxFootageService *INxProject::footageService()
{
    return nullptr;
}

INxRelinkSearch *INxProject::relinkSearch()
{
    return nullptr;
}

QList<NxTimelineUse> INxProject::timelineUses(const QString &)
{
    return {};
}

QList<INxTimeline *> INxProject::timelines()
{
    return {};
}

INxTimelineEditor *INxProject::timelineEditor()
{
    return nullptr;
}

void INxProject::requestCommit(std::function<void(const NxResult<void> &)> done)
{
    if (done)
        done({}); // Nothing is kept on disk, so nothing is missing there.
}

void INxProject::saveCopy(const QString &path, std::function<void(const NxResult<void> &)> done)
{
    if (done)
        done(NxError{QStringLiteral("%1: this project cannot be saved as a file").arg(path)});
}
