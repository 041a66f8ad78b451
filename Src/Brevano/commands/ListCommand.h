// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/Command.h>

class ListedRows;
struct ViewChoice;

/// Lists what the panel shows of a project: media, group headers and tiles.
class ListCommand final : public Command
{
public:
    int run(const CommandLine &line, Console *console) override;

private:
    static void print(const ListedRows &rows, const ViewChoice &choice, const CommandLine &line,
                      Console *console);
};
