// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/DialogAnswers.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/HostSystem.h>
#include <Brevano/commands/ShownText.h>

#include <cstdio>
#include <iostream>
#include <string>
#include <utility>

namespace {

/// On one line: text and detail of a dialog.
QString shownText(const NMessageDialogInfo &info)
{
    const QString whole =
        info.detail.isEmpty() ? info.text : info.text + QLatin1Char(' ') + info.detail;
    return ShownText::oneLine(QString(whole).replace(QLatin1Char('\n'), QLatin1Char(' ')));
}

bool isQuestion(const NMessageDialogInfo &info)
{
    return info.buttons.size() > 1;
}

} // namespace

DialogAnswers::DialogAnswers(const CommandLine &line, Console *console)
    : m_console(console),
      m_yes(line.has(CommandOptions::yes)),
      m_no(line.has(CommandOptions::no))
{
}

DialogAnswers::~DialogAnswers() = default;

QString DialogAnswers::fault(const CommandLine &line)
{
    return line.has(CommandOptions::yes) && line.has(CommandOptions::no)
               ? QStringLiteral("--yes and --no contradict each other")
               : QString();
}

NMessageDialogAnswer DialogAnswers::answer(const NMessageDialogInfo &info)
{
    if (!isQuestion(info)) {
        m_console->note(shownText(info));
        m_isRefused = true;
        return {mdbAffirmative, false};
    }
    if (isAffirmed(shownText(info)))
        return {mdbAffirmative, false};
    m_isDeclined = true;
    return {info.escapeButton, false};
}

bool DialogAnswers::isAffirmed(const QString &question)
{
    if (m_yes)
        return true;
    if (!m_no && HostSystem::isTerminal(stdin) && HostSystem::isTerminal(stderr))
        return askOnTerminal(question);
    m_console->note(question);
    if (!m_no)
        m_console->detail(QStringLiteral("--yes or --no answers it"));
    return false;
}

bool DialogAnswers::askOnTerminal(const QString &question) const
{
    m_console->note(question + QStringLiteral(" [y/N]"));
    std::string typed;
    std::getline(std::cin, typed);
    const QString answer = QString::fromStdString(typed).trimmed().toLower();
    return answer == QLatin1String("y") || answer == QLatin1String("yes");
}

QString DialogAnswers::chooseFile(const NxFileDialogInfo &)
{
    return std::exchange(m_file, QString());
}
