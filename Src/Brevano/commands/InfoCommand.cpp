// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/InfoCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/FootageRun.h>
#include <Brevano/commands/InfoText.h>
#include <Brevano/commands/InterruptWatcher.h>
#include <Brevano/commands/MediaFacts.h>
#include <Brevano/commands/MediaResolver.h>
#include <Brevano/commands/ProjectSession.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/INxProject.h>

#include <QFile>

namespace {

bool isGone(NxFootageStatus status, const QString &path)
{
    return status == NxFootageStatus::Done && !QFile::exists(path);
}

} // namespace

int InfoCommand::run(const CommandLine &line, Console *console)
{
    m_console = console;
    const InterruptWatcher interrupts;
    ProjectSession session(console);
    if (!session.open(line.names().constFirst(), ProjectSession::Access::ChangeIfFree))
        return ProjectUnusable;
    const MediaResolver::Answer answer =
        MediaResolver(session.sections()).resolve(line.names().mid(1));
    if (!MediaResolver::isUnderstood(answer, console) || answer.media.isEmpty())
        return session.close(NothingDone);
    auto *media = dynamic_cast<INxAbstractMediaItem *>(answer.media.constFirst());
    if (!media)
        return session.close(NothingDone);

    session.engine().refreshExistence();
    const bool anew = lacksPicture(session, media);
    FootageRun reading(session.footage(), console, interrupts);
    const FootageRun::Outcome outcome = reading.run([media, anew](INxFootageService *service) {
        constexpr int all = INxFootageService::wFacts | INxFootageService::wPictures;
        anew ? service->read({media}, all) : service->want({media}, all);
    });
    if (!outcome.trouble.isEmpty())
        console->note(outcome.trouble);
    if (!session.project()->isReadOnly() && !session.commit())
        return ProjectUnusable;
    return session.close(outcome.interrupted ? int(Interrupted) : show(&session, media, line));
}

bool InfoCommand::lacksPicture(const ProjectSession &session, const INxAbstractMediaItem *media)
{
    const NxFootageState state = session.footage()->state(media);
    return isGone(state.cover, state.coverPath) || isGone(state.strip, state.stripPath);
}

int InfoCommand::show(ProjectSession *session, INxAbstractMediaItem *media,
                      const CommandLine &line)
{
    const NxFootageState state = session->footage()->state(media);
    if (line.has(CommandOptions::json)) {
        m_console->line(InfoText::json(*media, state));
    } else {
        for (const QString &text : InfoText::lines(*media, state))
            m_console->line(text);
    }
    const bool isFine = !MediaFacts::isMissing(*media) && state.facts == NxFootageStatus::Done;
    return isFine ? Done : SomeRefused;
}
