// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/ProgramArgument.h>
#include <NxCore/NxResult.h>

/// What the words ask for that the program is started with, where they are no command.
struct WindowRequest
{
    QString project; ///< The path of a project; empty: the page with which the window begins.
    ProgramArguments files; ///< Files and folders that are imported into it.

    /// Whether the words name a project, files, or nothing at all. A word that is a command and
    /// the name of a file is the command. Looks at the disk.
    [[nodiscard]] static bool isMeant(const ProgramArguments &words);
    /// What such words say: "PROJECT.brevano [FILE...]", or files for the project "Media.brevano"
    /// of the current folder. After "--" every word is a name. An option is an error.
    [[nodiscard]] static NxResult<WindowRequest> of(const ProgramArguments &words);
};
