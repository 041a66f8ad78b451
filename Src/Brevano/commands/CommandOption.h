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
constexpr CommandOption category{"--category", "N", "what the panel shows: 0 (media) to 10"};
constexpr CommandOption sort{"--sort", "KEY", "what the rows are sorted by"};
constexpr CommandOption desc{"--desc", nullptr, "sorted the other way round"};
constexpr CommandOption group{"--group", "KEY", "what the rows are put together by"};
constexpr CommandOption groupDesc{"--group-desc", nullptr, "groups the other way round"};
constexpr CommandOption type{"--type", "VALUE", "only what is of this type or licence"};
constexpr CommandOption search{"--search", "TEXT", "only names with this text"};
constexpr CommandOption out{"--out", "FILE.png", "where the picture goes"};
constexpr CommandOption size{"--size", "WxH", "of the window in points: 1280x800 without it"};
constexpr CommandOption scale{"--scale", "N", "pixels of the picture for each point: 1 or 2"};
constexpr CommandOption view{"--view", "MODE", "how the media are shown"};
constexpr CommandOption selected{"--select", "NAME", "the media of this name is selected"};
constexpr CommandOption skin{"--skin", "SKIN", "the colours of the window"};
constexpr CommandOption language{"--lang", "CODE", "the language of its texts"};
constexpr CommandOption columns{"--columns", nullptr, "with the columns of the list view"};
constexpr CommandOption noRead{"--no-read", nullptr, "do not look into the files now"};
constexpr CommandOption to{"--to", "FILE", "the file that takes the place of the media's"};
constexpr CommandOption searchFolder{"--search", "FOLDER",
                                     "where missing files are looked for, folders in it included"};
constexpr CommandOption removeUnused{"--remove", nullptr, "take them out of the project"};
constexpr CommandOption yes{"--yes", nullptr, "every question is answered by yes"};
constexpr CommandOption no{"--no", nullptr, "every question is answered by no"};
constexpr CommandOption json{"--json", nullptr, "one JSON object a line"};
constexpr CommandOption help{"--help", nullptr, "how the command is used"};

} // namespace CommandOptions
