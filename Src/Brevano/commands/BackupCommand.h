// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/Command.h>

/// Writes a copy of the project to a new file; never over one that is there.
class BackupCommand final : public Command
{
public:
    int run(const CommandLine &line, Console *console) override;
};
