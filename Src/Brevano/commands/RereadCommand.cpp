// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/RereadCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/FootageRun.h>
#include <Brevano/commands/InfoText.h>
#include <Brevano/commands/InterruptWatcher.h>
#include <Brevano/commands/JsonLine.h>
#include <Brevano/commands/MediaFacts.h>
#include <Brevano/commands/MediaResolver.h>
#include <Brevano/commands/ProjectSession.h>
#include <Brevano/commands/ShownText.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFootageService.h>

namespace {

bool hasFailed(const NxFootageState &state)
{
    return state.facts == NxFootageStatus::Failed || state.cover == NxFootageStatus::Failed
           || state.strip == NxFootageStatus::Failed;
}

/// Failed before, or never tried, be it that an import was interrupted. What is missing waits.
bool isToBeRead(const INxAbstractMediaItem &media, const NxFootageState &state)
{
    return hasFailed(state)
           || (state.facts == NxFootageStatus::Waiting && !MediaFacts::isMissing(media));
}

QList<INxAbstractMediaItem *> mediaToBeRead(const ProjectSession &session)
{
    QList<INxAbstractMediaItem *> found;
    const QList<INxAbstractMediaItem *> all = session.media();
    for (INxAbstractMediaItem *media : all) {
        if (isToBeRead(*media, session.footage()->state(media)))
            found.append(media);
    }
    return found;
}

/// The first reason there is; without one nobody could read it.
QString reasonOf(const NxFootageState &state)
{
    for (const QString &reason : {state.reason, state.coverReason, state.stripReason}) {
        if (!reason.isEmpty())
            return reason;
    }
    return QStringLiteral("The file was not read.");
}

} // namespace

int RereadCommand::run(const CommandLine &line, Console *console)
{
    m_console = console;
    m_json = line.has(CommandOptions::json);
    const InterruptWatcher interrupts;
    ProjectSession session(console);
    if (!session.open(line.names().constFirst(), ProjectSession::Access::Change))
        return ProjectUnusable;
    session.engine().refreshExistence();
    const std::optional<QList<INxAbstractMediaItem *>> media = chosen(session, line);
    if (!media)
        return session.close(NothingDone);
    return session.close(reread(&session, *media, interrupts));
}

std::optional<QList<INxAbstractMediaItem *>> RereadCommand::chosen(const ProjectSession &session,
                                                                   const CommandLine &line)
{
    if (line.names().size() == 1)
        return mediaToBeRead(session);
    const MediaResolver::Answer answer =
        MediaResolver(session.sections()).resolve(line.names().mid(1));
    if (!MediaResolver::isUnderstood(answer, m_console))
        return std::nullopt;
    QList<INxAbstractMediaItem *> media;
    for (INxAbstractMedia *item : answer.media) {
        if (auto *found = dynamic_cast<INxAbstractMediaItem *>(item))
            media.append(found);
    }
    return media;
}

int RereadCommand::reread(ProjectSession *session, const QList<INxAbstractMediaItem *> &media,
                          const InterruptWatcher &interrupts)
{
    FootageRun reading(session->footage(), m_console, interrupts);
    const FootageRun::Outcome outcome = reading.run([&media](INxFootageService *service) {
        service->read(media, INxFootageService::wFacts | INxFootageService::wPictures);
    });
    if (!outcome.trouble.isEmpty())
        m_console->note(outcome.trouble);
    if (!session->commit())
        return ProjectUnusable;
    if (outcome.interrupted)
        return Interrupted;
    for (const INxAbstractMediaItem *item : media)
        tell(*session, *item);
    if (!m_json)
        m_console->line(QStringLiteral("%1 read, %2 failed")
                            .arg(ShownText::count(media.size() - m_failed, "media", "media"))
                            .arg(m_failed));
    return m_failed > 0 ? SomeRefused : Done;
}

void RereadCommand::tell(const ProjectSession &session, const INxAbstractMediaItem &media)
{
    const NxFootageState state = session.footage()->state(&media);
    const bool isRead = state.facts == NxFootageStatus::Done && !hasFailed(state);
    m_failed += isRead ? 0 : 1;
    if (!isRead)
        m_console->error(media.sourcePath(), media.isUnavailable() ? media.unavailableReason()
                                                                   : reasonOf(state));
    if (m_json)
        m_console->line(InfoText::json(media, state));
}
