// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/FolderOrMediaCommand.h>

/// Gives a media or a folder another name. The file on disk keeps its own.
class RenameCommand final : public FolderOrMediaCommand
{
protected:
    QString fault(const CommandLine &line) const override;
    ProgramArguments mediaNames(const CommandLine &line) const override;
    Outcome changeFolder(ProjectSession *session, const CommandLine &line, INxFolderMedia *section,
                         INxFolderMedia *folder) override;
    Outcome changeMedia(ProjectSession *session, const CommandLine &line, INxFolderMedia *section,
                        const QVector<INxAbstractMedia *> &media) override;
};
