// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/Command.h>

#include <QList>

class INxAbstractMedia;
class INxFolderMedia;
class ProjectSession;

/// Lists the media that no timeline uses, and removes them when asked to.
class UnusedCommand final : public Command
{
public:
    int run(const CommandLine &line, Console *console) override;

private:
    [[nodiscard]] QList<INxAbstractMedia *> unused(ProjectSession *session,
                                                   const QList<INxFolderMedia *> &folders) const;
    [[nodiscard]] int remove(ProjectSession *session, const CommandLine &line, Console *console,
                             const QList<INxAbstractMedia *> &media) const;
};
