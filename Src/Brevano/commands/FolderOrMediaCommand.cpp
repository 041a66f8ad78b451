// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/FolderOrMediaCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/FolderSteps.h>
#include <Brevano/commands/MediaResolver.h>
#include <Brevano/commands/ProjectSession.h>
#include <Brevano/commands/Sections.h>
#include <Brevano/commands/ShownText.h>

int FolderOrMediaCommand::run(const CommandLine &line, Console *console)
{
    m_console = console;
    const QString sectionFault = Sections::fault(line);
    const QString wrong = sectionFault.isEmpty() ? fault(line) : sectionFault;
    if (!wrong.isEmpty())
        return wrongUsage(console, wrong);
    ProjectSession session(console);
    if (!session.open(line.names().constFirst(), ProjectSession::Access::Change))
        return ProjectUnusable;
    const Outcome outcome = change(&session, line, console);
    if (!outcome) {
        console->note(outcome.error().message);
        return session.close(NothingDone);
    }
    if (!session.commit())
        return ProjectUnusable;
    console->line(ShownText::oneLine(*outcome));
    return session.close(Done);
}

FolderOrMediaCommand::Outcome FolderOrMediaCommand::change(ProjectSession *session,
                                                           const CommandLine &line,
                                                           Console *console)
{
    const NxResult<INxFolderMedia *> section = Sections::chosen(line, session->sections());
    if (!section)
        return section.error();
    if (const std::optional<QString> path = line.value(CommandOptions::folder)) {
        const NxResult<INxFolderMedia *> folder = FolderSteps::changeable(*section, *path);
        if (!folder)
            return folder.error();
        return changeFolder(session, line, *section, *folder);
    }
    const auto media = resolve(session, line, console);
    if (!media)
        return NxError{QStringLiteral("nothing was changed")};
    return changeMedia(session, line, *section, *media);
}

std::optional<QVector<INxAbstractMedia *>> FolderOrMediaCommand::resolve(ProjectSession *session,
                                                                         const CommandLine &line,
                                                                         Console *console) const
{
    const MediaResolver::Answer answer =
        MediaResolver(session->sections()).resolve(mediaNames(line));
    if (!MediaResolver::isUnderstood(answer, console))
        return std::nullopt;
    return answer.media;
}
