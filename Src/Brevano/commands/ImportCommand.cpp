// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ImportCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/FolderSteps.h>
#include <Brevano/commands/FootageRun.h>
#include <Brevano/commands/ImportReportText.h>
#include <Brevano/commands/ImportRun.h>
#include <Brevano/commands/ImportedCopies.h>
#include <Brevano/commands/InterruptWatcher.h>
#include <Brevano/commands/ProjectSession.h>
#include <Brevano/commands/Sections.h>
#include <Brevano/commands/ShownText.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/NxFolderPath.h>

int ImportCommand::run(const CommandLine &line, Console *console)
{
    m_console = console;
    m_json = line.has(CommandOptions::json);
    m_reads = !line.has(CommandOptions::noRead);
    const QString fault = Sections::fault(line);
    if (!fault.isEmpty())
        return wrongUsage(console, fault);
    // Alive until the project is closed: an interruption never breaks off what is being written.
    const InterruptWatcher interrupts;
    ProjectSession session(console);
    if (!session.openOrCreate(line.names().constFirst()))
        return ProjectUnusable;
    INxFolderMedia *into = target(&session, line);
    if (!into)
        return session.close(NothingDone);
    takePaths(line);
    for (NxImportReportLine &refused : m_refused)
        refused.folder = NxFolderPath::of(into);
    return session.close(import(&session, into, interrupts));
}

void ImportCommand::takePaths(const CommandLine &line)
{
    for (const ProgramArgument &name : line.names().mid(1)) {
        if (name.isText && !name.text.isEmpty()) {
            m_paths.append(name.text);
            continue;
        }
        NxImportReportLine refused;
        refused.path = name.text;
        refused.reason = name.isText ? QStringLiteral("The name is empty.")
                                     : QStringLiteral("The name is not UTF-8.");
        m_refused.append(refused);
    }
}

INxFolderMedia *ImportCommand::target(ProjectSession *session, const CommandLine &line)
{
    const NxResult<INxFolderMedia *> section = Sections::chosen(line, session->sections());
    const QString path = line.value(CommandOptions::into).value_or(QString());
    const NxResult<INxFolderMedia *> folder =
        section ? FolderSteps::made(session->folders(), session->undoStack(), *section, path)
                : section;
    if (folder)
        return *folder;
    m_console->note(folder.error().message);
    return nullptr;
}

int ImportCommand::import(ProjectSession *session, INxFolderMedia *into,
                          const InterruptWatcher &interrupts)
{
    ImportRun::Outcome outcome;
    if (!m_paths.isEmpty()) {
        ImportRun importRun(session->project(), m_console, interrupts, m_json);
        const std::optional<ImportRun::Outcome> ended =
            importRun.run(session->importer(), into, m_paths);
        if (!ended) {
            m_console->error(session->path(), QStringLiteral("the folder takes no media"));
            return NothingDone;
        }
        outcome = *ended;
    }
    NxImportReport &report = outcome.report;
    report.lines = m_refused + report.lines;
    report.refused += m_refused.size();
    report.found += m_refused.size();
    if (m_reads && outcome.failure.isEmpty() && !outcome.interrupted)
        outcome.interrupted = !read(session, outcome.added, interrupts, &report);
    const bool isWritten = outcome.failure.isEmpty() && session->commit();
    tell(report, outcome.interrupted);
    if (isWritten) {
        const int code = ImportReportText::exitCode(report, outcome.interrupted);
        return code == Done && !m_canRead ? int(SomeRefused) : code;
    }
    if (!outcome.failure.isEmpty())
        session->tellFailure(outcome.failure);
    return ProjectUnusable;
}

bool ImportCommand::read(ProjectSession *session, const QList<INxAbstractMediaItem *> &added,
                         const InterruptWatcher &interrupts, NxImportReport *report)
{
    FootageRun reading(session->footage(), m_console, interrupts);
    const FootageRun::Outcome outcome = reading.run([&added](INxFootageService *service) {
        service->want(added, INxFootageService::wFacts | INxFootageService::wFingerprint);
    });
    m_canRead = outcome.trouble.isEmpty();
    if (!m_canRead)
        m_console->note(outcome.trouble);
    const ImportedCopies copies(*session);
    for (const INxAbstractMediaItem *media : added) {
        const NxFootageState state = session->footage()->state(media);
        const INxAbstractMediaItem *original = copies.originalOf(*media);
        NxImportReportLine line{media->sourcePath(), NxImportVerdict::CopyOf, {},
                                NxFolderPath::of(media->parentFolder())};
        if (state.facts == NxFootageStatus::Failed) {
            line.verdict = NxImportVerdict::Unreadable;
            line.reason = state.reason;
            ++report->unreadable;
        } else if (original) {
            line.reason =
                QStringLiteral("It has the same contents as %1.").arg(original->sourcePath());
        } else {
            continue;
        }
        report->lines.append(line);
    }
    return !outcome.interrupted;
}

void ImportCommand::tell(const NxImportReport &report, bool interrupted)
{
    for (const NxImportReportLine &line : report.lines)
        tellLine(line);
    if (m_json)
        m_console->line(ImportReportText::jsonSummary(report, interrupted));
    else
        m_console->line(ImportReportText::summary(report, interrupted));
}

void ImportCommand::tellLine(const NxImportReportLine &line)
{
    if (ImportReportText::isFailure(line.verdict))
        m_console->error(line.path, line.reason);
    if (m_json) {
        m_console->line(ImportReportText::jsonLine(line));
        return;
    }
    if (ImportReportText::isFailure(line.verdict))
        return;
    const QString reason =
        line.reason.isEmpty() ? ImportReportText::verdictWord(line.verdict) : line.reason;
    m_console->line(ShownText::oneLine(line.path + QLatin1String(": ") + reason));
}
