// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/Command.h>
#include <Brevano/commands/CommandTable.h>
#include <Brevano/commands/ProgramArgument.h>

class MainWindow;
class QImage;
struct ShotWords;

/// Draws the window with a project into a picture, without a display. The project is only looked
/// at, and the user's settings are not touched. Needs a QApplication.
class ShotCommand final : public Command
{
public:
    /// Its line of the table of commands.
    [[nodiscard]] static CommandEntry entry();
    /// Whether the words of the program call it.
    [[nodiscard]] static bool isMeant(const ProgramArguments &words);
    /// To be called before the application object is made: nothing is shown on a display, and the
    /// scale is that of the words whatever the surroundings say.
    static void prepareProcess(const ProgramArguments &words);

    int run(const CommandLine &line, Console *console) override;

private:
    [[nodiscard]] int draw(const CommandLine &line, const ShotWords &words);
    [[nodiscard]] bool open(MainWindow *window, const ProgramArgument &project);
    [[nodiscard]] bool arrange(MainWindow *window, const CommandLine &line, const ShotWords &words);
    [[nodiscard]] bool selectNamed(MainWindow *window, const QString &name);
    [[nodiscard]] bool mayWrite(const MainWindow &window, const QString &path);
    [[nodiscard]] bool write(const QImage &picture, const QString &path);

    Console *m_console = nullptr; // Not owned; there while run() is.
};
