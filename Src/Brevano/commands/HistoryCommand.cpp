// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/HistoryCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/ProjectSession.h>
#include <Brevano/commands/ShownText.h>
#include <NxCore/INxUndoStack.h>

int HistoryCommand::run(const CommandLine &line, Console *console)
{
    ProjectSession session(console);
    if (!session.open(line.names().constFirst(), ProjectSession::Access::Change))
        return ProjectUnusable;
    const bool isUndo = m_direction == Direction::Undo;
    INxUndoStack *stack = session.undoStack();
    const QString action = isUndo ? stack->undoText() : stack->redoText();
    const bool isDone = isUndo ? stack->undo() : stack->redo();
    if (!isDone) {
        console->error(session.path(), isUndo ? QStringLiteral("there is nothing to undo")
                                              : QStringLiteral("there is nothing to redo"));
        return session.close(NothingDone);
    }
    if (!session.commit())
        return ProjectUnusable;
    console->line((isUndo ? QStringLiteral("Undone: %1") : QStringLiteral("Redone: %1"))
                      .arg(ShownText::oneLine(action)));
    return session.close(Done);
}
