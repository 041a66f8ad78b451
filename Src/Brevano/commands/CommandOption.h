// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// An option that a command takes.
struct CommandOption
{
    const char *name; ///< With its dashes: "--into".
    const char *valueName; ///< What follows it, for the help; null for an option without a value.
    const char *help;
};

/// The options of all commands; each command takes some of them.
namespace CommandOptions {

constexpr CommandOption into{"--into", "FOLDER", "the folder that takes them"};
constexpr CommandOption folder{"--folder", "FOLDER", "the folder that is meant"};
constexpr CommandOption section{"--section", "SECTION",
                                "where folders are: \"project\" (without it) or \"shared\""};
constexpr CommandOption json{"--json", nullptr, "one JSON object a line"};
constexpr CommandOption help{"--help", nullptr, "how the command is used"};

} // namespace CommandOptions
