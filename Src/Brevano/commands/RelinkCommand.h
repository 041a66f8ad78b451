// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/Command.h>
#include <NxVBLModel/NxRelinkReport.h>

#include <QList>
#include <QStringList>

#include <optional>

class INxAbstractMediaItem;
class InterruptWatcher;
class ProjectSession;

/// Gives media the files again that were moved: one by a file that is named, or all that are
/// missing by a folder in which they are found.
class RelinkCommand final : public Command
{
public:
    int run(const CommandLine &line, Console *console) override;

private:
    [[nodiscard]] int relinkOne(ProjectSession *session, const CommandLine &line,
                                const InterruptWatcher &interrupts);
    [[nodiscard]] int relinkFound(ProjectSession *session, const CommandLine &line,
                                  const InterruptWatcher &interrupts);
    /// The media that are named, or all; nothing when a name does not fit.
    [[nodiscard]] std::optional<QList<INxAbstractMediaItem *>> named(ProjectSession *session,
                                                                     const CommandLine &line);
    /// Reads the files, unless the user does not want that. An ExitCode.
    [[nodiscard]] int readAll(ProjectSession *session, const CommandLine &line,
                              const QList<INxAbstractMediaItem *> &media,
                              const InterruptWatcher &interrupts);
    void tell(const NxRelinkFinding &finding, const QString &path);

    Console *m_console = nullptr; // Not owned; while the command runs.
    bool m_json = false;
};
