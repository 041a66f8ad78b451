// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/CommandTable.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/HostSystem.h>
#include <Brevano/window/ShotCommand.h>
#include <Brevano/window/WindowProgram.h>
#include <NxCore/NxQtMessageLog.h>

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    HostSystem::prepareProcess();
    QCoreApplication::setApplicationName(QStringLiteral("Brevano"));
    QCoreApplication::setApplicationVersion(QLatin1String(NX_VERSION));
    const NxQtMessageLog qtMessages;
    CommandTable::add(ShotCommand::entry());

    Console console(stdout, stderr);
    const ProgramArguments words = HostSystem::programArguments(argc, argv);
    return console.finish(WindowProgram(words, &console, argv).run());
}
