// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStringList>

struct CommandEntry;

/// The texts that explain the program.
namespace CommandHelp {

/// All commands, one line for each form.
[[nodiscard]] QStringList overview();
/// One command with its options.
[[nodiscard]] QStringList of(const CommandEntry &entry);

} // namespace CommandHelp
