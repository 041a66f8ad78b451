// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/CheckCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/JsonLine.h>
#include <Brevano/commands/MediaFacts.h>
#include <Brevano/commands/ProjectSession.h>
#include <Brevano/commands/ShownText.h>
#include <NxVBLModel/INxAbstractMediaItem.h>

int CheckCommand::run(const CommandLine &line, Console *console)
{
    m_console = console;
    m_json = line.has(CommandOptions::json);
    ProjectSession session(console);
    if (!session.open(line.names().constFirst(), ProjectSession::Access::Look))
        return ProjectUnusable;
    checkFile(&session);
    checkMedia(&session);
    tellSums();
    return session.close(isAllWell() ? Done : SomeRefused);
}

bool CheckCommand::isAllWell() const
{
    return m_missing == 0 && m_unreadable == 0 && m_faults == 0;
}

void CheckCommand::checkFile(ProjectSession *session)
{
    QStringList faults = session->engine().integrityProblems();
    const QString damage = session->engine().damage();
    if (!damage.isEmpty() && !faults.contains(damage))
        faults.prepend(damage);
    m_faults = faults.size();
    for (const QString &fault : qAsConst(faults))
        tellProblem("integrity", fault, nullptr);
}

void CheckCommand::checkMedia(ProjectSession *session)
{
    session->engine().refreshExistence();
    const QList<INxAbstractMediaItem *> all = session->media();
    for (const INxAbstractMediaItem *media : all) {
        ++m_media;
        const QString reason = MediaFacts::unreadableReason(*media);
        if (MediaFacts::isMissing(*media)) {
            ++m_missing;
            tellProblem("missing", media->unavailableReason(), media);
        } else if (!reason.isEmpty()) {
            ++m_unreadable;
            tellProblem("unreadable", reason, media);
        }
    }
}

void CheckCommand::tellProblem(const char *kind, const QString &text,
                               const INxAbstractMediaItem *media)
{
    const QString path = media ? media->sourcePath() : QString();
    if (!m_json) {
        const QString subject = media ? path : QStringLiteral("project file");
        m_console->line(ShownText::oneLine(
            QStringLiteral("%1: %2: %3").arg(QLatin1String(kind), subject, text)));
        return;
    }
    JsonLine line;
    line.addText("event", QStringLiteral("problem"));
    line.addText("problem", QLatin1String(kind));
    line.addText("text", text);
    line.addTextOrNull("path", path);
    line.addTextOrNull("name", media ? media->name() : QString());
    line.addTextOrNull("section", media ? MediaFacts::section(*media) : QString());
    if (media)
        line.addText("folder", MediaFacts::folder(*media));
    else
        line.addNull("folder");
    m_console->line(line.text());
}

void CheckCommand::tellSums()
{
    if (!m_json) {
        const QString media = ShownText::count(m_media, "media", "media");
        m_console->line(
            isAllWell() ? QStringLiteral("%1, all is well").arg(media)
                        : QStringLiteral("%1, %2 missing, %3 unreadable, %4 in the project file")
                              .arg(media)
                              .arg(m_missing)
                              .arg(m_unreadable)
                              .arg(ShownText::count(m_faults, "problem", "problems")));
        return;
    }
    JsonLine line;
    line.addText("event", QStringLiteral("summary"));
    line.addNumber("media", m_media);
    line.addNumber("missing", m_missing);
    line.addNumber("unreadable", m_unreadable);
    line.addNumber("integrity", m_faults);
    m_console->line(line.text());
}
