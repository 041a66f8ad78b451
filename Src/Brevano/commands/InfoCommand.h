// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/Command.h>

class INxAbstractMediaItem;
class ProjectSession;

/// Shows what a media is.
class InfoCommand final : public Command
{
public:
    int run(const CommandLine &line, Console *console) override;

private:
    [[nodiscard]] int show(ProjectSession *session, INxAbstractMediaItem *media,
                           const CommandLine &line);
    [[nodiscard]] static bool lacksPicture(const ProjectSession &session,
                                           const INxAbstractMediaItem *media);

    Console *m_console = nullptr; // Not owned; there while run() is.
};
