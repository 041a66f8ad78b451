// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QString>

class INxUndoStack;

/// Makes one undo step of everything that changes while this object lives.
///
///     NxUndoRedoCommander step(project->undoStack(), QStringLiteral("Class::method"),
///                              QStringLiteral("deleteFolder"));
///
/// Inside another one it joins the outer step. Without a stack (no project is open) it does
/// nothing. The stack must outlive it.
class NXCORE_EXPORT NxUndoRedoCommander
{
public:
    NxUndoRedoCommander(INxUndoStack *stack, const QString &function, const QString &action);
    ~NxUndoRedoCommander();

private:
    Q_DISABLE_COPY_MOVE(NxUndoRedoCommander)

    INxUndoStack *const m_stack; // Not owned, may be null.
};
