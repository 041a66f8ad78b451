// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/Command.h>
#include <Brevano/commands/ProgramArgument.h>
#include <NxCore/NxResult.h>

#include <QVector>

#include <optional>

class INxAbstractMedia;
class INxFolderMedia;
class ProjectSession;

/// A command that changes media that are named, or the folder that --folder names.
///
/// All or nothing: when one name does not fit, nothing is changed.
class FolderOrMediaCommand : public Command
{
public:
    /// What a change came to: a line for the user, or the reason why it was refused.
    using Outcome = NxResult<QString>;

    int run(const CommandLine &line, Console *console) final;

protected:
    /// While the command runs. Not owned.
    [[nodiscard]] Console *console() const { return m_console; }

    /// What is wrong with the words; empty when all is well.
    [[nodiscard]] virtual QString fault(const CommandLine &line) const = 0;
    /// The names, after the project, that are media.
    [[nodiscard]] virtual ProgramArguments mediaNames(const CommandLine &line) const = 0;
    /// Makes one undo step at most.
    [[nodiscard]] virtual Outcome changeFolder(ProjectSession *session, const CommandLine &line,
                                               INxFolderMedia *section, INxFolderMedia *folder) = 0;
    [[nodiscard]] virtual Outcome changeMedia(ProjectSession *session, const CommandLine &line,
                                              INxFolderMedia *section,
                                              const QVector<INxAbstractMedia *> &media) = 0;

private:
    [[nodiscard]] Outcome change(ProjectSession *session, const CommandLine &line,
                                 Console *console);
    [[nodiscard]] std::optional<QVector<INxAbstractMedia *>> resolve(ProjectSession *session,
                                                                     const CommandLine &line,
                                                                     Console *console) const;

    Console *m_console = nullptr;
};
