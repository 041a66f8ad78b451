// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ImportReports.h>

#include <QPair>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace {

using Counter = qint64 NxImportReport::*;

constexpr Counter Counters[] = {
    &NxImportReport::found,
    &NxImportReport::added,
    &NxImportReport::alreadyThere,
    &NxImportReport::refused,
    &NxImportReport::unreadable,
    &NxImportReport::cancelled,
    &NxImportReport::passedOverHidden,
    &NxImportReport::passedOverOther,
    &NxImportReport::passedOverTwice,
    &NxImportReport::foldersAdded,
};

struct VerdictEntry
{
    NxImportVerdict verdict;
    Counter counter;
    bool isFound; // Paths that were not reached are not.
};

/// Verdicts after which another try is worth it.
constexpr VerdictEntry Failures[] = {
    {NxImportVerdict::Refused, &NxImportReport::refused, true},
    {NxImportVerdict::Unreadable, &NxImportReport::unreadable, true},
    {NxImportVerdict::Cancelled, &NxImportReport::cancelled, false},
};

const VerdictEntry *failureOf(NxImportVerdict verdict)
{
    const auto *found =
        std::find_if(std::begin(Failures), std::end(Failures),
                     [verdict](const VerdictEntry &entry) { return entry.verdict == verdict; });
    return found == std::end(Failures) ? nullptr : found;
}

using Key = QPair<QString, int>;

Key keyOf(const NxImportReportLine &line)
{
    return {line.path, int(line.verdict)};
}

void discount(NxImportReport *report, NxImportVerdict verdict)
{
    const VerdictEntry *failure = failureOf(verdict);
    if (!failure)
        return;
    --(report->*failure->counter);
    if (failure->isFound)
        --report->found;
}

} // namespace

void ImportReports::add(NxImportReport *sum, const NxImportReport &more)
{
    sum->lines += more.lines;
    for (const Counter counter : Counters)
        sum->*counter += more.*counter;
}

void ImportReports::take(NxImportReport *report, const QVector<NxImportReportLine> &lines)
{
    QSet<Key> taken;
    for (const NxImportReportLine &line : lines) {
        if (isWorthAnotherTry(line.verdict))
            taken.insert(keyOf(line));
    }
    QVector<NxImportReportLine> left;
    for (const NxImportReportLine &line : qAsConst(report->lines)) {
        if (taken.contains(keyOf(line)))
            discount(report, line.verdict);
        else
            left.append(line);
    }
    report->lines = left;
}

bool ImportReports::isWorthAnotherTry(NxImportVerdict verdict)
{
    return failureOf(verdict) != nullptr;
}
