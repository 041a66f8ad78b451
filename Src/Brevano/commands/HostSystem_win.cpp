// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/HostSystem.h>

#include <windows.h>

#include <io.h>
#include <shellapi.h>

void HostSystem::prepareProcess() {}

ProgramArguments HostSystem::programArguments(int, char **)
{
    // The system hands over UTF-16; argv is in the code page.
    ProgramArguments arguments;
    int count = 0;
    wchar_t **const words = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; i < count; ++i)
        arguments.append({QString::fromWCharArray(words[i]), true});
    LocalFree(words);
    return arguments;
}

bool HostSystem::hasDisplay()
{
    return true;
}

bool HostSystem::isTerminal(std::FILE *stream)
{
    return _isatty(_fileno(stream)) != 0;
}
