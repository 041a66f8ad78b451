// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/ImportReportText.h>
#include <Support/NxTestMain.h>

#include <QtTest>

Q_DECLARE_METATYPE(NxImportVerdict)

namespace {

NxImportReport report(int added, int there, int refused, int unreadable)
{
    NxImportReport made;
    made.added = added;
    made.alreadyThere = there;
    made.refused = refused;
    made.unreadable = unreadable;
    made.found = added + there + refused + unreadable;
    return made;
}

} // namespace

class tst_ImportReportText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exitCodeTellsWhatWasDone_data();
    void exitCodeTellsWhatWasDone();
    void summaryHasEveryCount();
    void aLineNamesFileVerdictAndReason_data();
    void aLineNamesFileVerdictAndReason();
    void sentenceLeavesOutWhatIsNought();
};

void tst_ImportReportText::exitCodeTellsWhatWasDone_data()
{
    QTest::addColumn<NxImportReport>("report");
    QTest::addColumn<bool>("interrupted");
    QTest::addColumn<int>("code");

    QTest::newRow("all added") << report(3, 0, 0, 0) << false << int(Done);
    QTest::newRow("all there already") << report(0, 3, 0, 0) << false << int(Done);
    QTest::newRow("some refused") << report(2, 0, 1, 0) << false << int(SomeRefused);
    QTest::newRow("some unreadable") << report(0, 1, 0, 1) << false << int(SomeRefused);
    QTest::newRow("all refused") << report(0, 0, 2, 0) << false << int(NothingDone);
    QTest::newRow("nothing found") << report(0, 0, 0, 0) << false << int(NothingDone);
    QTest::newRow("interrupted") << report(2, 0, 0, 0) << true << int(Interrupted);
    QTest::newRow("interrupted before all") << report(0, 0, 0, 0) << true << int(Interrupted);
}

void tst_ImportReportText::exitCodeTellsWhatWasDone()
{
    QFETCH(NxImportReport, report);
    QFETCH(bool, interrupted);
    QFETCH(int, code);

    QCOMPARE(ImportReportText::exitCode(report, interrupted), code);
}

void tst_ImportReportText::summaryHasEveryCount()
{
    NxImportReport made = report(1, 2, 3, 4);
    made.cancelled = 5;
    made.passedOverHidden = 6;
    made.passedOverOther = 7;
    made.passedOverTwice = 8;
    made.foldersAdded = 9;
    const QByteArray expected =
        R"({"event":"summary","found":10,"added":1,"already_there":2,"refused":3,"unreadable":4,)"
        R"("cancelled":5,"passed_over":{"hidden":6,"other":7,"twice":8},"folders_added":9,)"
        R"("interrupted":true})";
    QCOMPARE(ImportReportText::jsonSummary(made, true), expected);
}

void tst_ImportReportText::aLineNamesFileVerdictAndReason_data()
{
    QTest::addColumn<NxImportVerdict>("verdict");
    QTest::addColumn<QByteArray>("word");
    QTest::addColumn<bool>("failure");

    QTest::newRow("there") << NxImportVerdict::AlreadyThere << QByteArray("already_there") << false;
    QTest::newRow("copy") << NxImportVerdict::CopyOf << QByteArray("copy_of") << false;
    QTest::newRow("refused") << NxImportVerdict::Refused << QByteArray("refused") << true;
    QTest::newRow("unreadable") << NxImportVerdict::Unreadable << QByteArray("unreadable") << true;
    QTest::newRow("cancelled") << NxImportVerdict::Cancelled << QByteArray("cancelled") << false;
}

void tst_ImportReportText::aLineNamesFileVerdictAndReason()
{
    QFETCH(NxImportVerdict, verdict);
    QFETCH(QByteArray, word);
    QFETCH(bool, failure);

    NxImportReportLine line;
    line.path = QStringLiteral("/v/a.mp4");
    line.verdict = verdict;
    line.reason = QStringLiteral("Because.");
    line.folder = QStringLiteral("Day 1");
    const QByteArray expected = R"({"event":"report","path":"/v/a.mp4","verdict":")" + word
                                + R"(","reason":"Because.","folder":"Day 1"})";
    QCOMPARE(ImportReportText::jsonLine(line), expected);
    QCOMPARE(ImportReportText::isFailure(verdict), failure);
}

void tst_ImportReportText::sentenceLeavesOutWhatIsNought()
{
    QCOMPARE(ImportReportText::summary(report(3, 0, 0, 0), false), QStringLiteral("3 media added"));
    NxImportReport made = report(1, 2, 0, 1);
    made.foldersAdded = 1;
    made.passedOverHidden = 4;
    QCOMPARE(ImportReportText::summary(made, true),
             QStringLiteral("1 media added, 1 folder added, 2 already there, 1 unreadable, "
                            "4 hidden passed over, interrupted"));
}

NX_TEST_MAIN(tst_ImportReportText)
#include "tst_ImportReportText.moc"
