// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "CodeRules.h"

#include <QRegularExpression>

namespace {

enum class LookAt { Code, Everything };

struct WordRule
{
    QRegularExpression pattern;
    /// Where the rule holds: the beginning of the path; empty for everywhere.
    QString under;
    LookAt lookAt;
    QString message;
};

WordRule rule(const char *pattern, const char *under, LookAt lookAt, const char *message)
{
    return {QRegularExpression(QLatin1String(pattern)), QLatin1String(under), lookAt,
            QLatin1String(message)};
}

const QVector<WordRule> &wordRules()
{
    static const QVector<WordRule> rules{
        rule("\\bqWait\\s*\\(", "Tests/", LookAt::Code,
             "a test waits for a condition (QTRY_*, QSignalSpy::wait), never for time"),
        rule("\\b(sleep|msleep|usleep|nanosleep|qSleep|sleep_for|sleep_until)\\s*\\(", "Tests/",
             LookAt::Code, "a test never sleeps"),
        rule("\\b(QSKIP|QEXPECT_FAIL)\\b", "Tests/", LookAt::Code,
             "a test passes or fails; it is not skipped"),
        rule("\\bemit\\b", "", LookAt::Code, "write Q_EMIT"),
        rule("\\b(signals|slots)\\s*:", "", LookAt::Code, "write Q_SIGNALS and Q_SLOTS"),
        rule("\\b(SIGNAL|SLOT)\\s*\\(", "", LookAt::Code, "connect by pointer to member"),
        rule("\\bforeach\\s*\\(", "", LookAt::Code, "write a range-based for"),
        rule("\\busing\\s+namespace\\s+std\\s*;", "", LookAt::Code, "name what is used of std"),
        rule("\\bNULL\\b", "", LookAt::Code, "write nullptr"),
        rule("#\\s*if\\s+0\\b", "", LookAt::Code, "delete code that is not used"),
        rule("\\b(TODO|FIXME|XXX|HACK)\\b", "", LookAt::Everything, "finish it, or open an issue"),
    };
    return rules;
}

QStringList faultsOfLines(const SourceFile &file, const WordRule &wordRule)
{
    QStringList faults;
    const bool codeOnly = wordRule.lookAt == LookAt::Code;
    const QStringList &lines = codeOnly ? file.codeLines : file.lines;
    for (int line = 0; line < lines.size(); ++line) {
        if (wordRule.pattern.match(lines.at(line)).hasMatch())
            faults += file.fault(line, wordRule.message);
    }
    return faults;
}

QString lineFault(const QString &line)
{
    constexpr int longestLine = 100;
    if (line.endsWith(QLatin1Char('\r')))
        return QStringLiteral("has a Windows line end");
    if (line.contains(QLatin1Char('\t')))
        return QStringLiteral("is indented with a tab");
    if (line.endsWith(QLatin1Char(' ')))
        return QStringLiteral("ends in spaces");
    if (line.size() > longestLine)
        return QStringLiteral("is longer than %1 columns").arg(longestLine);
    return {};
}

QStringList headFaults(const SourceFile &file)
{
    QStringList faults;
    if (!file.lines.value(0).startsWith(QLatin1String("// SPDX-FileCopyrightText: ")))
        faults += file.fault(0, QStringLiteral("does not begin with its copyright line"));
    const QLatin1String licence("// SPDX-License-Identifier: LGPL-2.1-or-later");
    if (file.lines.value(1) != licence)
        faults += file.fault(1, QStringLiteral("does not tell its licence in the second line"));
    if (file.isHeader() && !file.codeLines.contains(QStringLiteral("#pragma once")))
        faults += file.fault(0, QStringLiteral("has no #pragma once"));
    if (!file.lines.constLast().isEmpty())
        faults += file.fault(file.lines.size() - 1, QStringLiteral("does not end with a line end"));
    return faults;
}

} // namespace

QStringList CodeRules::wordFaults(const QVector<SourceFile> &files)
{
    QStringList faults;
    for (const SourceFile &file : files) {
        for (const WordRule &wordRule : wordRules()) {
            if (file.path.startsWith(wordRule.under))
                faults += faultsOfLines(file, wordRule);
        }
    }
    return faults;
}

QStringList CodeRules::formFaults(const QVector<SourceFile> &files)
{
    QStringList faults;
    for (const SourceFile &file : files) {
        faults += headFaults(file);
        for (int line = 0; line < file.lines.size(); ++line) {
            const QString fault = lineFault(file.lines.at(line));
            if (!fault.isEmpty())
                faults += file.fault(line, fault);
        }
    }
    return faults;
}
