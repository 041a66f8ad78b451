// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/HostSystem.h>

#include <NxCore/NxText.h>

#include <QFile>
#include <QTextCodec>

#include <algorithm>
#include <csignal>
#include <iterator>
#include <unistd.h>

namespace {

constexpr const char *DisplayVariables[] = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};

ProgramArgument argumentOf(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    if (NxText::isUtf8(bytes) && QFile::encodeName(text) == bytes)
        return {text, true};
    return {NxText::displayBytes(bytes), false};
}

} // namespace

void HostSystem::prepareProcess()
{
    std::signal(SIGPIPE, SIG_IGN);
    // A script started by cron runs in the C locale, in which Qt would take no name but ASCII.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

ProgramArguments HostSystem::programArguments(int argc, char **argv)
{
    ProgramArguments arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(argumentOf(QByteArray(argv[i])));
    return arguments;
}

bool HostSystem::hasDisplay()
{
    return std::any_of(std::begin(DisplayVariables), std::end(DisplayVariables),
                       [](const char *name) { return !qEnvironmentVariableIsEmpty(name); });
}

bool HostSystem::isTerminal(std::FILE *stream)
{
    return isatty(fileno(stream)) == 1;
}
