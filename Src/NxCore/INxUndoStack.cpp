// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/INxUndoStack.h>

#include <NxCore/NxLog.h>

INxUndoStack::INxUndoStack(QObject *parent) : QObject(parent) {}

INxUndoStack::~INxUndoStack() = default;

void INxUndoStack::beginStep(const QString &function, const QString &action)
{
    ++m_depth;
    if (m_depth == 1)
        openStep(function, action);
}

void INxUndoStack::endStep()
{
    if (m_depth == 0) {
        NX_LOG_ERROR("no step is open");
        return;
    }
    --m_depth;
    if (m_depth == 0)
        closeStep();
}

bool INxUndoStack::isInStep() const
{
    return m_depth > 0;
}

INxUndoStack::ReplayScope::ReplayScope(INxUndoStack *stack) : m_stack(stack)
{
    m_stack->m_isReplaying = true;
}

INxUndoStack::ReplayScope::~ReplayScope()
{
    m_stack->m_isReplaying = false;
}
