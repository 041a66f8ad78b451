// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/Command.h>

#include <Brevano/commands/Console.h>
#include <Brevano/commands/ExitCode.h>

Command::~Command() = default;

int Command::wrongUsage(Console *console, const QString &text)
{
    console->note(text + QLatin1String(" (\"brevano help\" tells how it is used)"));
    return WrongUsage;
}
