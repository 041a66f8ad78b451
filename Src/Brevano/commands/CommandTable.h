// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/Command.h>
#include <Brevano/commands/CommandOption.h>

#include <QVector>

#include <memory>

/// One line of the table of commands.
struct CommandEntry
{
    static constexpr int AnyNumber = -1;

    const char *name;
    QVector<const char *> synopses; ///< What follows the name, one for each form.
    const char *help;
    QVector<CommandOption> options;
    int fewestNames; ///< The project counts as one.
    int mostNames; ///< Or AnyNumber.
    std::unique_ptr<Command> (*make)();
};

/// Every command that the program has, in the order of the help.
namespace CommandTable {

[[nodiscard]] const QVector<CommandEntry> &entries();
/// A command that stands in another library than the others; before the first is looked for.
void add(const CommandEntry &entry);
/// Null when there is none of this name.
[[nodiscard]] const CommandEntry *find(const QString &name);

} // namespace CommandTable
