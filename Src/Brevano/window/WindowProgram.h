// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/ProgramArgument.h>

#include <memory>

class Console;
class MainWindow;
class QApplication;
struct WindowRequest;

/// One run of the program: its words decide whether there is a window, and what kind of
/// application object is made.
///
/// A command needs none. A project or files are shown in a window; without a display they are
/// imported all the same, the panel is drawn into a picture, and the listing is printed.
class WindowProgram
{
public:
    /// @param console not owned.
    /// @param argv of main(), for the application object.
    WindowProgram(ProgramArguments words, Console *console, char **argv);

    /// Answers an ExitCode.
    [[nodiscard]] int run();

private:
    [[nodiscard]] int runCommand();
    [[nodiscard]] int showWindow(const WindowRequest &request);
    [[nodiscard]] int drawPicture(const WindowRequest &request);
    [[nodiscard]] std::unique_ptr<QApplication> makeApplication();
    [[nodiscard]] int wordsToCommand(const char *command, const ProgramArguments &words);

    const ProgramArguments m_words;
    Console *const m_console; // Not owned.
    // Qt keeps a reference. Of the words it gets none: they are all ours.
    int m_argc = 1;
    char **const m_argv;
};
