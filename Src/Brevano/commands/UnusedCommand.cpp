// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/UnusedCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/DialogAnswers.h>
#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/JsonLine.h>
#include <Brevano/commands/ListedFolders.h>
#include <Brevano/commands/MediaFacts.h>
#include <Brevano/commands/ProjectSession.h>
#include <Brevano/commands/RemoveCommand.h>
#include <Brevano/commands/ShownText.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>

namespace {

void tell(const INxAbstractMedia *media, bool asJson, Console *console)
{
    if (!asJson) {
        console->line(ShownText::oneLine(media->sourcePath()));
        return;
    }
    JsonLine line;
    if (const auto *item = dynamic_cast<const INxAbstractMediaItem *>(media))
        MediaFacts::addIdentity(&line, *item);
    console->line(line.text());
}

QString faultOf(const CommandLine &line)
{
    const QString contradiction = DialogAnswers::fault(line);
    if (!contradiction.isEmpty())
        return QStringLiteral("unused: ") + contradiction;
    const bool answersNothing = !line.has(CommandOptions::removeUnused)
                                && (line.has(CommandOptions::yes) || line.has(CommandOptions::no));
    if (answersNothing)
        return QStringLiteral("unused: without --remove nothing is asked");
    return ListedFolders::fault(line, NXVBLMODEL::mctMedia);
}

} // namespace

int UnusedCommand::run(const CommandLine &line, Console *console)
{
    const QString fault = faultOf(line);
    if (!fault.isEmpty())
        return wrongUsage(console, fault);
    const bool removes = line.has(CommandOptions::removeUnused);
    const auto access = removes ? ProjectSession::Access::Change : ProjectSession::Access::Look;
    ProjectSession session(console);
    if (!session.open(line.names().constFirst(), access))
        return ProjectUnusable;
    const NxResult<QList<INxFolderMedia *>> folders =
        ListedFolders::chosen(line, NXVBLMODEL::mctMedia, session.folders());
    if (!folders) {
        console->note(folders.error().message);
        return session.close(NothingDone);
    }
    const QList<INxAbstractMedia *> media = unused(&session, *folders);
    const bool asJson = line.has(CommandOptions::json);
    for (const INxAbstractMedia *one : media)
        tell(one, asJson, console);
    if (!asJson)
        console->line(
            QStringLiteral("%1 not used").arg(ShownText::count(media.size(), "media", "media")));
    const int code = removes && !media.isEmpty() ? remove(&session, line, console, media)
                     : session.isDamaged()       ? int(SomeRefused)
                                                 : int(Done);
    return session.close(code);
}

QList<INxAbstractMedia *> UnusedCommand::unused(ProjectSession *session,
                                                const QList<INxFolderMedia *> &folders) const
{
    QList<INxAbstractMedia *> media;
    for (INxFolderMedia *folder : folders)
        session->itemPresenter()->getUnusedMedias(folder, media);
    return media;
}

int UnusedCommand::remove(ProjectSession *session, const CommandLine &line, Console *console,
                          const QList<INxAbstractMedia *> &media) const
{
    const RemoveCommand::Outcome outcome =
        RemoveCommand::removeMedia(session, line, console, media);
    if (!outcome) {
        console->note(outcome.error().message);
        return NothingDone;
    }
    if (!session->commit())
        return ProjectUnusable;
    if (!line.has(CommandOptions::json))
        console->line(*outcome);
    return Done;
}
