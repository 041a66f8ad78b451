// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/WindowRequest.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/CommandRunner.h>
#include <Brevano/window/ProjectHolder.h>

namespace {

const auto ProjectOfFolder = QStringLiteral("Media.brevano");

bool isProject(const ProgramArgument &word)
{
    return word.isText && ProjectHolder::isProjectPath(word.text);
}

bool isFile(const ProgramArgument &word)
{
    return word.isText && !word.text.isEmpty() && !ProjectHolder::isMissing(word.text);
}

} // namespace

bool WindowRequest::isMeant(const ProgramArguments &words)
{
    if (words.isEmpty())
        return true;
    const ProgramArgument &first = words.constFirst();
    if (CommandRunner::isCommand(first.text))
        return false;
    return first.text == QLatin1String("--") || isProject(first) || isFile(first);
}

NxResult<WindowRequest> WindowRequest::of(const ProgramArguments &words)
{
    const NxResult<CommandLine> line = CommandLine::parse(words, {});
    if (!line)
        return line.error();
    const ProgramArguments names = line->names();
    if (names.isEmpty())
        return WindowRequest();
    if (isProject(names.constFirst()))
        return WindowRequest{names.constFirst().text, names.mid(1)};
    if (isFile(names.constFirst()))
        return WindowRequest{ProjectOfFolder, names};
    return NxError{QStringLiteral("there is no file \"%1\"").arg(names.constFirst().text)};
}
