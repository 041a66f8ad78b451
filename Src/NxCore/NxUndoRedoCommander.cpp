// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxUndoRedoCommander.h>

#include <NxCore/INxUndoStack.h>

NxUndoRedoCommander::NxUndoRedoCommander(INxUndoStack *stack, const QString &function,
                                         const QString &action)
    : m_stack(stack)
{
    if (m_stack)
        m_stack->beginStep(function, action);
}

NxUndoRedoCommander::~NxUndoRedoCommander()
{
    if (m_stack)
        m_stack->endStep();
}
