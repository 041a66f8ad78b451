// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/Command.h>

/// Takes back the last change, or does again what was taken back last.
class HistoryCommand final : public Command
{
public:
    enum class Direction { Undo, Redo };

    explicit HistoryCommand(Direction direction) : m_direction(direction) {}

    int run(const CommandLine &line, Console *console) override;

private:
    const Direction m_direction;
};
