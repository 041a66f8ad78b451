// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/Command.h>

#include <QList>

#include <optional>

class INxAbstractMediaItem;
class InterruptWatcher;
class ProjectSession;

/// Reads files once more: those that are named, or all that failed or were never read.
class RereadCommand final : public Command
{
public:
    int run(const CommandLine &line, Console *console) override;

private:
    [[nodiscard]] std::optional<QList<INxAbstractMediaItem *>> chosen(const ProjectSession &session,
                                                                      const CommandLine &line);
    [[nodiscard]] int reread(ProjectSession *session, const QList<INxAbstractMediaItem *> &media,
                             const InterruptWatcher &interrupts);
    void tell(const ProjectSession &session, const INxAbstractMediaItem &media);

    Console *m_console = nullptr; // Not owned; there while run() is.
    bool m_json = false;
    int m_failed = 0;
};
