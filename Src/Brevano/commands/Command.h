// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

class CommandLine;
class Console;

/// One command of the program.
class Command
{
public:
    virtual ~Command();

    /// Does it and answers an ExitCode. The number of names fits the table of commands.
    [[nodiscard]] virtual int run(const CommandLine &line, Console *console) = 0;

protected:
    Command() = default;
    Q_DISABLE_COPY_MOVE(Command)

    /// Says what is wrong with the words; answers WrongUsage.
    [[nodiscard]] static int wrongUsage(Console *console, const QString &text);
};
