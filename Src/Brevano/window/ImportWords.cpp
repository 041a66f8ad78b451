// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ImportWords.h>

#include <Brevano/commands/ShownText.h>

#include <QStringList>

#include <algorithm>
#include <iterator>
#include <limits>

namespace {

struct Sum
{
    qint64 NxImportReport::*counter;
    const char *text;
};

constexpr Sum Sums[] = {
    {&NxImportReport::alreadyThere, QT_TRANSLATE_N_NOOP("ImportWords", "%Ln already there")},
    {&NxImportReport::refused, QT_TRANSLATE_N_NOOP("ImportWords", "%Ln refused")},
    {&NxImportReport::unreadable, QT_TRANSLATE_N_NOOP("ImportWords", "%Ln cannot be read")},
    {&NxImportReport::cancelled, QT_TRANSLATE_N_NOOP("ImportWords", "%Ln not reached")},
    {&NxImportReport::passedOverHidden, QT_TRANSLATE_N_NOOP("ImportWords", "%Ln hidden left out")},
    {&NxImportReport::passedOverOther,
     QT_TRANSLATE_N_NOOP("ImportWords", "%Ln of other kinds left out")},
    {&NxImportReport::passedOverTwice, QT_TRANSLATE_N_NOOP("ImportWords", "%Ln met twice")},
};

struct VerdictWord
{
    NxImportVerdict verdict;
    const char *text;
};

constexpr VerdictWord VerdictWords[] = {
    {NxImportVerdict::AlreadyThere, QT_TRANSLATE_NOOP("ImportWords", "Already there")},
    {NxImportVerdict::CopyOf, QT_TRANSLATE_NOOP("ImportWords", "Added, a copy")},
    {NxImportVerdict::Refused, QT_TRANSLATE_NOOP("ImportWords", "Refused")},
    {NxImportVerdict::Unreadable, QT_TRANSLATE_NOOP("ImportWords", "Cannot be read")},
    {NxImportVerdict::Cancelled, QT_TRANSLATE_NOOP("ImportWords", "Not reached")},
};

int pluralOf(qint64 number)
{
    return int(std::min<qint64>(number, std::numeric_limits<int>::max()));
}

} // namespace

QString ImportWords::sums(const NxImportReport &report)
{
    QStringList texts{tr("%Ln added", nullptr, pluralOf(report.added))};
    for (const Sum &sum : Sums) {
        if (const qint64 number = report.*sum.counter)
            texts.append(tr(sum.text, nullptr, pluralOf(number)));
    }
    return texts.join(tr(", "));
}

QString ImportWords::verdict(NxImportVerdict verdict)
{
    const auto *found =
        std::find_if(std::begin(VerdictWords), std::end(VerdictWords),
                     [verdict](const VerdictWord &word) { return word.verdict == verdict; });
    Q_ASSERT(found != std::end(VerdictWords));
    return tr(found->text);
}

QString ImportWords::text(const NxImportReport &report)
{
    QString text = sums(report) + QLatin1Char('\n');
    for (const NxImportReportLine &line : report.lines)
        text += ImportWords::text(line);
    return text;
}

QString ImportWords::text(const NxImportReportLine &line)
{
    const QStringList cells{verdict(line.verdict), ShownText::oneLine(line.path),
                            ShownText::oneLine(line.reason)};
    return cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

bool ImportWords::isWorthReading(const NxImportReport &report)
{
    return !report.lines.isEmpty() || report.passedOverOther > 0 || report.passedOverHidden > 0;
}
