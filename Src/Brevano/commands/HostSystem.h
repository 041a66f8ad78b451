// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/ProgramArgument.h>

#include <cstdio>

/// What the program needs of the system it runs on; one source file per system.
namespace HostSystem {

/// Called first in main(): a reader who goes away is an error of the write, not the end of the
/// process, and file names are UTF-8 whatever the locale says.
void prepareProcess();

/// The words after the program's name.
[[nodiscard]] ProgramArguments programArguments(int argc, char **argv);

/// Whether windows can be shown, as far as the surroundings tell: a display may be named that is
/// not there.
[[nodiscard]] bool hasDisplay();

/// Whether somebody watches this stream.
[[nodiscard]] bool isTerminal(std::FILE *stream);

} // namespace HostSystem
