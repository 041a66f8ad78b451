// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ImportReportText.h>

#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/JsonLine.h>
#include <Brevano/commands/ShownText.h>

#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {

struct VerdictEntry
{
    NxImportVerdict verdict;
    const char *word;
    bool isFailure;
};

constexpr VerdictEntry verdicts[] = {
    {NxImportVerdict::AlreadyThere, "already_there", false},
    {NxImportVerdict::CopyOf, "copy_of", false},
    {NxImportVerdict::Refused, "refused", true},
    {NxImportVerdict::Unreadable, "unreadable", true},
    {NxImportVerdict::Cancelled, "cancelled", false},
};

const VerdictEntry &entryOf(NxImportVerdict verdict)
{
    const auto found =
        std::find_if(std::begin(verdicts), std::end(verdicts),
                     [verdict](const VerdictEntry &entry) { return entry.verdict == verdict; });
    Q_ASSERT(found != std::end(verdicts));
    return *found;
}

void addSum(QStringList *sums, qint64 number, const char *what)
{
    if (number > 0)
        sums->append(QStringLiteral("%1 %2").arg(number).arg(QLatin1String(what)));
}

} // namespace

QString ImportReportText::verdictWord(NxImportVerdict verdict)
{
    return QLatin1String(entryOf(verdict).word);
}

bool ImportReportText::isFailure(NxImportVerdict verdict)
{
    return entryOf(verdict).isFailure;
}

int ImportReportText::exitCode(const NxImportReport &report, bool interrupted)
{
    if (interrupted)
        return Interrupted;
    const bool someDone = report.added + report.alreadyThere > 0;
    if (!someDone)
        return NothingDone;
    return report.refused + report.unreadable + report.cancelled > 0 ? SomeRefused : Done;
}

QByteArray ImportReportText::jsonLine(const NxImportReportLine &line)
{
    JsonLine json;
    json.addText("event", QStringLiteral("report"));
    json.addText("path", line.path);
    json.addText("verdict", verdictWord(line.verdict));
    json.addTextOrNull("reason", line.reason);
    json.addText("folder", line.folder);
    return json.text();
}

QByteArray ImportReportText::jsonSummary(const NxImportReport &report, bool interrupted)
{
    JsonLine passedOver;
    passedOver.addNumber("hidden", report.passedOverHidden);
    passedOver.addNumber("other", report.passedOverOther);
    passedOver.addNumber("twice", report.passedOverTwice);
    JsonLine json;
    json.addText("event", QStringLiteral("summary"));
    json.addNumber("found", report.found);
    json.addNumber("added", report.added);
    json.addNumber("already_there", report.alreadyThere);
    json.addNumber("refused", report.refused);
    json.addNumber("unreadable", report.unreadable);
    json.addNumber("cancelled", report.cancelled);
    json.addObject("passed_over", passedOver);
    json.addNumber("folders_added", report.foldersAdded);
    json.addBool("interrupted", interrupted);
    return json.text();
}

QString ImportReportText::summary(const NxImportReport &report, bool interrupted)
{
    QStringList sums{ShownText::count(report.added, "media added", "media added")};
    if (report.foldersAdded > 0)
        sums.append(ShownText::count(report.foldersAdded, "folder added", "folders added"));
    addSum(&sums, report.alreadyThere, "already there");
    addSum(&sums, report.refused, "refused");
    addSum(&sums, report.unreadable, "unreadable");
    addSum(&sums, report.cancelled, "not reached");
    addSum(&sums, report.passedOverHidden, "hidden passed over");
    addSum(&sums, report.passedOverOther, "of other kinds passed over");
    addSum(&sums, report.passedOverTwice, "reached twice");
    if (interrupted)
        sums.append(QStringLiteral("interrupted"));
    return sums.join(QLatin1String(", "));
}
