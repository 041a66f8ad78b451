// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/CommandHelp.h>

#include <Brevano/commands/CommandTable.h>

namespace {

QString optionText(const CommandOption &option)
{
    const QString name = QLatin1String(option.name);
    return option.valueName ? name + QLatin1Char(' ') + QLatin1String(option.valueName) : name;
}

/// A synopsis shows the options that it does not name itself as ones that may be left out. What
/// does not fit into a line goes on below the first word after the command.
QStringList form(const CommandEntry &entry, const char *synopsis)
{
    constexpr int width = 100;
    const QString command = QStringLiteral("  brevano %1 ").arg(QLatin1String(entry.name));
    QStringList lines{command + QLatin1String(synopsis)};
    for (const CommandOption &option : entry.options) {
        const bool isFolderOfOtherForm =
            entry.synopses.size() > 1 && option.name == CommandOptions::folder.name;
        if (QLatin1String(synopsis).contains(QLatin1String(option.name)) || isFolderOfOtherForm)
            continue;
        const QString part = QStringLiteral("[%1]").arg(optionText(option));
        if (lines.constLast().size() + 1 + part.size() > width)
            lines.append(QString(command.size(), QLatin1Char(' ')) + part);
        else
            lines.last() += QLatin1Char(' ') + part;
    }
    return lines;
}

QStringList exitCodes()
{
    return {
        QStringLiteral(
            "Exit codes: 0 done, 1 nothing done, 2 wrong usage, 3 some files refused or"),
        QStringLiteral("unreadable, 4 the project cannot be opened or written, 130 interrupted."),
    };
}

} // namespace

QStringList CommandHelp::overview()
{
    QStringList lines{
        QStringLiteral("Usage:"),
        QStringLiteral("  brevano [PROJECT.brevano] [FILE|FOLDER...]"),
    };
    for (const CommandEntry &entry : CommandTable::entries()) {
        for (const char *synopsis : entry.synopses)
            lines += form(entry, synopsis);
    }
    lines += {
        QStringLiteral("  brevano help COMMAND"),
        QStringLiteral("  brevano --version"),
        QString(),
        QStringLiteral("Without a command the window is opened, with the project that is named; "
                       "files are imported"),
        QStringLiteral("into it, or into Media.brevano of this folder. Without a display the panel "
                       "is drawn into"),
        QStringLiteral("brevano-panel.png, and the project is listed."),
        QStringLiteral("FOLDER is a path within the project: \"Holiday/Day 1\"; \"\\/\" and "
                       "\"\\\\\" stand for"),
        QStringLiteral("\"/\" and \"\\\" in a name. NAME_OR_PATH is a path when it contains a "
                       "separator. After \"--\""),
        QStringLiteral("every word is a name."),
        QString(),
    };
    return lines + exitCodes();
}

QStringList CommandHelp::of(const CommandEntry &entry)
{
    QStringList lines{QStringLiteral("Usage:")};
    for (const char *synopsis : entry.synopses)
        lines += form(entry, synopsis);
    lines.append(QString());
    lines += QString::fromLatin1(entry.help).split(QLatin1Char('\n'));
    if (!entry.options.isEmpty())
        lines.append(QString());
    constexpr int nameWidth = 20;
    for (const CommandOption &option : entry.options) {
        lines.append(QLatin1String("  ") + optionText(option).leftJustified(nameWidth)
                     + QLatin1String(option.help));
    }
    lines.append(QString());
    return lines + exitCodes();
}
