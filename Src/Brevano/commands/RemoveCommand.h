// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/FolderOrMediaCommand.h>

#include <QList>

/// Takes media, or a folder with all that it holds, out of the project. Asks what the panel asks.
class RemoveCommand final : public FolderOrMediaCommand
{
public:
    /// Removes media wherever they are: one question, one undo step.
    [[nodiscard]] static Outcome removeMedia(ProjectSession *session, const CommandLine &line,
                                             Console *console,
                                             const QList<INxAbstractMedia *> &media);

protected:
    QString fault(const CommandLine &line) const override;
    ProgramArguments mediaNames(const CommandLine &line) const override;
    Outcome changeFolder(ProjectSession *session, const CommandLine &line, INxFolderMedia *section,
                         INxFolderMedia *folder) override;
    Outcome changeMedia(ProjectSession *session, const CommandLine &line, INxFolderMedia *section,
                        const QVector<INxAbstractMedia *> &media) override;
};
