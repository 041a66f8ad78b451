// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/Command.h>
#include <Brevano/commands/ProgramArgument.h>

class INxAbstractMediaItem;
class ProjectSession;

/// Checks the project file, and looks for the files of its media.
class CheckCommand final : public Command
{
public:
    int run(const CommandLine &line, Console *console) override;

private:
    void checkFile(ProjectSession *session);
    void checkMedia(ProjectSession *session);
    void tellProblem(const char *kind, const QString &text, const INxAbstractMediaItem *media);
    void tellSums();
    [[nodiscard]] bool isAllWell() const;

    Console *m_console = nullptr; // Not owned; there while run() is.
    bool m_json = false;
    qint64 m_media = 0;
    qint64 m_missing = 0;
    qint64 m_unreadable = 0;
    qint64 m_faults = 0;
};
