// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/CommandRunner.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/HostSystem.h>
#include <NxCore/NxQtMessageLog.h>

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    HostSystem::prepareProcess();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Brevano"));
    QCoreApplication::setApplicationVersion(QLatin1String(NX_VERSION));
    const NxQtMessageLog qtMessages;

    Console console(stdout, stderr);
    const int code = CommandRunner(&console).run(HostSystem::programArguments(argc, argv));
    return console.finish(code);
}
