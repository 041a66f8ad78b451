// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ImportReports.h>

#include "ImportYard.h"

#include <Support/NxTestMain.h>

#include <QTest>

namespace {

NxImportReportLine lineOf(const QString &path, NxImportVerdict verdict)
{
    return {path, verdict, QString(), QString()};
}

NxImportReport filled(qint64 first)
{
    NxImportReport report;
    report.lines = {lineOf(QStringLiteral("/%1").arg(first), NxImportVerdict::CopyOf)};
    report.found = first;
    report.added = first + 1;
    report.alreadyThere = first + 2;
    report.refused = first + 3;
    report.unreadable = first + 4;
    report.cancelled = first + 5;
    report.passedOverHidden = first + 6;
    report.passedOverOther = first + 7;
    report.passedOverTwice = first + 8;
    report.foldersAdded = first + 9;
    return report;
}

QVector<qint64> sumsOf(const NxImportReport &report)
{
    return {
        report.found,           report.added,       report.alreadyThere,     report.refused,
        report.unreadable,      report.cancelled,   report.passedOverHidden, report.passedOverOther,
        report.passedOverTwice, report.foldersAdded};
}

} // namespace

class tst_ImportReports : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void addingAddsEverySumAndLine();
    void takingLinesTakesWhatTheyCountFor();
    void whatIsNoFailureStays();
};

void tst_ImportReports::addingAddsEverySumAndLine()
{
    NxImportReport sum = filled(100);
    ImportReports::add(&sum, filled(1'000));
    QCOMPARE(sumsOf(sum), (QVector<qint64>{1'100, 1'102, 1'104, 1'106, 1'108, 1'110, 1'112, 1'114,
                                           1'116, 1'118}));
    QCOMPARE(linesOf(sum), QStringList({QStringLiteral("1 100"), QStringLiteral("1 1000")}));
}

void tst_ImportReports::takingLinesTakesWhatTheyCountFor()
{
    const NxImportReportLine refused = lineOf(QStringLiteral("/r"), NxImportVerdict::Refused);
    const NxImportReportLine unreadable = lineOf(QStringLiteral("/u"), NxImportVerdict::Unreadable);
    const NxImportReportLine notReached = lineOf(QStringLiteral("/c"), NxImportVerdict::Cancelled);
    const NxImportReportLine other = lineOf(QStringLiteral("/o"), NxImportVerdict::Refused);
    NxImportReport report = filled(100);
    report.lines = {refused, unreadable, notReached, other};
    ImportReports::take(&report, {unreadable, notReached, refused,
                                  lineOf(QStringLiteral("/elsewhere"), NxImportVerdict::Refused),
                                  lineOf(QStringLiteral("/o"), NxImportVerdict::Unreadable)});
    QCOMPARE(linesOf(report), QStringList(QStringLiteral("2 o")));
    QCOMPARE(sumsOf(report), (QVector<qint64>{98, 101, 102, 102, 103, 104, 106, 107, 108, 109}));
}

void tst_ImportReports::whatIsNoFailureStays()
{
    NxImportReport report = filled(100);
    const NxImportReport before = report;
    ImportReports::take(&report, report.lines);
    QCOMPARE(linesOf(report), linesOf(before));
    QCOMPARE(sumsOf(report), sumsOf(before));
}

NX_TEST_MAIN_WIDGETS(tst_ImportReports)
#include "tst_ImportReports.moc"
