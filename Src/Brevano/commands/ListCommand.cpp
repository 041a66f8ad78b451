// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ListCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/ListJson.h>
#include <Brevano/commands/ListText.h>
#include <Brevano/commands/ListedFolders.h>
#include <Brevano/commands/ListedRows.h>
#include <Brevano/commands/ProjectSession.h>
#include <Brevano/commands/ViewChoice.h>

int ListCommand::run(const CommandLine &line, Console *console)
{
    const NxResult<ViewChoice> choice = ViewChoice::of(line);
    if (!choice)
        return wrongUsage(console, choice.error().message);
    const QString fault = ListedFolders::fault(line, choice->category);
    if (!fault.isEmpty())
        return wrongUsage(console, fault);
    ProjectSession session(console);
    if (!session.open(line.names().constFirst(), ProjectSession::Access::Look))
        return ProjectUnusable;
    const NxResult<QList<INxFolderMedia *>> folders =
        ListedFolders::chosen(line, choice->category, session.folders(choice->category));
    if (!folders) {
        console->note(folders.error().message);
        return session.close(NothingDone);
    }
    if (choice->category == NXVBLMODEL::mctMedia)
        session.engine().refreshExistence();
    print(ListedRows(*folders, *choice), *choice, line, console);
    return session.close(session.isDamaged() ? SomeRefused : Done);
}

void ListCommand::print(const ListedRows &rows, const ViewChoice &choice, const CommandLine &line,
                        Console *console)
{
    const bool withColumns = line.has(CommandOptions::columns);
    if (line.has(CommandOptions::json)) {
        const ListJson json(choice.category,
                            withColumns ? ListJson::Columns::With : ListJson::Columns::Without);
        for (int row = 0; row < rows.rows().size() && console->isRead(); ++row)
            console->line(json.lineOf(rows, row));
        return;
    }
    const ListText text(choice.category,
                        withColumns ? ListText::Columns::ListView : ListText::Columns::Files);
    const QStringList lines = text.table(rows);
    for (const QString &shown : lines)
        console->line(shown);
    console->line(ListText::sums(rows));
}
