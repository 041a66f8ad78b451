// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// What the program ends with. Scripts rely on these: never renumber one.
enum ExitCode : int {
    Done = 0, ///< Everything; what was there already counts as done.
    NothingDone = 1,
    WrongUsage = 2,
    SomeRefused = 3, ///< Done, but for some files that were refused or cannot be read.
    ProjectUnusable = 4, ///< The project cannot be opened or written.
    Interrupted = 130, ///< Ctrl-C; what was added stays.
};
