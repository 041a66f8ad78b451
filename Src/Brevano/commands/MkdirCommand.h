// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/Command.h>

/// Makes a folder with those above it. A folder that is there already is done.
class MkdirCommand final : public Command
{
public:
    int run(const CommandLine &line, Console *console) override;
};
