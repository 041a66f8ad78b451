// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/Command.h>
#include <NxVBLModel/NxImportReport.h>

#include <QList>
#include <QStringList>

class INxAbstractMediaItem;
class INxFolderMedia;
class InterruptWatcher;
class ProjectSession;

/// Brings files and folders into a project.
class ImportCommand final : public Command
{
public:
    int run(const CommandLine &line, Console *console) override;

private:
    void takePaths(const CommandLine &line);
    [[nodiscard]] INxFolderMedia *target(ProjectSession *session, const CommandLine &line);
    [[nodiscard]] int import(ProjectSession *session, INxFolderMedia *into,
                             const InterruptWatcher &interrupts);
    /// Looks into the files that were added, and reports what is wrong with them.
    [[nodiscard]] bool read(ProjectSession *session, const QList<INxAbstractMediaItem *> &added,
                            const InterruptWatcher &interrupts, NxImportReport *report);
    void tell(const NxImportReport &report, bool interrupted);
    void tellLine(const NxImportReportLine &line);

    Console *m_console = nullptr; // Not owned; there while run() is.
    bool m_json = false;
    bool m_reads = true;
    bool m_canRead = true; // False when no file at all could be read.
    QStringList m_paths;
    /// Names that are no names of files as Qt can hold them.
    QVector<NxImportReportLine> m_refused;
};
