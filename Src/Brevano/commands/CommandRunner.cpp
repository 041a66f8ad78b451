// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/CommandRunner.h>

#include <Brevano/commands/CommandHelp.h>
#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/CommandTable.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/ExitCode.h>

namespace {

const auto VersionWord = QStringLiteral("--version");

bool isHelp(const QString &word)
{
    return word == QLatin1String("--help") || word == QLatin1String("-h")
           || word == QLatin1String("help");
}

QString numberFault(const CommandEntry &entry, int names)
{
    if (names < entry.fewestNames)
        return QStringLiteral("%1: something is missing").arg(QLatin1String(entry.name));
    if (entry.mostNames != CommandEntry::AnyNumber && names > entry.mostNames)
        return QStringLiteral("%1: there is too much").arg(QLatin1String(entry.name));
    return {};
}

} // namespace

bool CommandRunner::isCommand(const QString &word)
{
    return word == VersionWord || isHelp(word) || CommandTable::find(word);
}

int CommandRunner::run(const ProgramArguments &words)
{
    if (words.isEmpty())
        return wrongUsage(QStringLiteral("a command is missing"));
    const QString first = words.constFirst().text;
    if (first == VersionWord) {
        m_console->line(QLatin1String("brevano " NX_VERSION));
        return Done;
    }
    if (isHelp(first))
        return help(words.mid(1));
    const CommandEntry *entry = CommandTable::find(first);
    if (!entry)
        return wrongUsage(QStringLiteral("there is no command \"%1\"").arg(first));
    return runCommand(*entry, words.mid(1));
}

int CommandRunner::help(const ProgramArguments &names)
{
    if (names.isEmpty()) {
        print(CommandHelp::overview());
        return Done;
    }
    const CommandEntry *entry = CommandTable::find(names.constFirst().text);
    if (!entry)
        return wrongUsage(
            QStringLiteral("there is no command \"%1\"").arg(names.constFirst().text));
    print(CommandHelp::of(*entry));
    return Done;
}

int CommandRunner::runCommand(const CommandEntry &entry, const ProgramArguments &words)
{
    QVector<CommandOption> options = entry.options;
    options.append(CommandOptions::help);
    const NxResult<CommandLine> line = CommandLine::parse(words, options);
    if (!line) {
        const QString name = QLatin1String(entry.name);
        return wrongUsage(name + QLatin1String(": ") + line.error().message);
    }
    if (line->has(CommandOptions::help)) {
        print(CommandHelp::of(entry));
        return Done;
    }
    const QString fault = numberFault(entry, line->names().size());
    if (!fault.isEmpty())
        return wrongUsage(fault);
    if (line->has(CommandOptions::json))
        m_console->setFlushEachLine();
    return entry.make()->run(*line, m_console);
}

int CommandRunner::wrongUsage(const QString &text)
{
    m_console->note(text + QLatin1String(" (\"brevano help\" tells how it is used)"));
    return WrongUsage;
}

void CommandRunner::print(const QStringList &lines)
{
    for (const QString &line : lines)
        m_console->line(line);
}
