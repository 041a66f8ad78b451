// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/ProgramArgument.h>

class Console;
struct CommandEntry;

/// Finds the command that the words name, and runs it.
class CommandRunner
{
public:
    explicit CommandRunner(Console *console) : m_console(console) {}

    /// Whether a first word names a command, the help or the version.
    [[nodiscard]] static bool isCommand(const QString &word);

    /// Answers an ExitCode.
    [[nodiscard]] int run(const ProgramArguments &words);
    /// Says what is wrong with the words; answers WrongUsage.
    [[nodiscard]] int wrongUsage(const QString &text);

private:
    [[nodiscard]] int help(const ProgramArguments &names);
    [[nodiscard]] int runCommand(const CommandEntry &entry, const ProgramArguments &words);
    void print(const QStringList &lines);

    Console *const m_console; // Not owned.
};
