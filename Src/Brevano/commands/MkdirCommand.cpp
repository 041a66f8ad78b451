// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/MkdirCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/FolderSteps.h>
#include <Brevano/commands/ProjectSession.h>
#include <Brevano/commands/Sections.h>
#include <Brevano/commands/ShownText.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/NxFolderPath.h>

int MkdirCommand::run(const CommandLine &line, Console *console)
{
    const QString fault = Sections::fault(line);
    if (!fault.isEmpty())
        return wrongUsage(console, fault);
    const ProgramArgument wanted = line.names().at(1);
    const QStringList names = NxFolderPath::split(wanted.text);
    if (!wanted.isText || names.isEmpty()) {
        console->error(wanted.text, wanted.isText ? QStringLiteral("a folder needs a name")
                                                  : QStringLiteral("the name is not UTF-8"));
        return NothingDone;
    }
    ProjectSession session(console);
    if (!session.open(line.names().constFirst(), ProjectSession::Access::Change))
        return ProjectUnusable;
    const NxResult<INxFolderMedia *> section = Sections::chosen(line, session.sections());
    const bool isThere = section && NxFolderPath::find(*section, wanted.text);
    const NxResult<INxFolderMedia *> folder =
        section ? FolderSteps::made(session.folders(), session.undoStack(), *section, wanted.text)
                : section;
    if (!folder) {
        console->note(folder.error().message);
        return session.close(NothingDone);
    }
    if (!session.commit())
        return ProjectUnusable;
    const QString path = NxFolderPath::of(*folder);
    console->line((isThere ? QStringLiteral("%1 is there already") : QStringLiteral("Made %1"))
                      .arg(ShownText::oneLine(path)));
    return session.close(Done);
}
