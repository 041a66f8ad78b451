// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/HostSystem.h>

#include <QCoreApplication>

#include <io.h>

void HostSystem::prepareProcess() {}

ProgramArguments HostSystem::programArguments(int, char **)
{
    // The system hands over UTF-16, which Qt has read already; argv is in the code page.
    ProgramArguments arguments;
    const QStringList words = QCoreApplication::arguments().mid(1);
    for (const QString &word : words)
        arguments.append({word, true});
    return arguments;
}

bool HostSystem::isTerminal(std::FILE *stream)
{
    return _isatty(_fileno(stream)) != 0;
}
