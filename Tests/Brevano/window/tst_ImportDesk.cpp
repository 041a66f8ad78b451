// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ImportDesk.h>

#include "ImportYard.h"
#include "ScriptedImport.h"

#include <Support/NxTestMain.h>

#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxProject.h>

#include <QFile>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

namespace {

constexpr int Patience = 30'000; // ms

NxImportReportLine lineOf(const QString &path, NxImportVerdict verdict)
{
    return {path, verdict, QStringLiteral("Because."), QString()};
}

} // namespace

Q_DECLARE_METATYPE(NxImportVerdict)

class tst_ImportDesk : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void jobsThatRunTogetherEndInOneReport();
    void theNextImportHasAReportOfItsOwn();
    void cancellingStopsEveryJob();
    void whatCannotBeDoneIsRefusedWithAReason_data();
    void whatCannotBeDoneIsRefusedWithAReason();
    void aReadOnlyProjectSaysWhy();
    void aFolderThatRefusesIsToldOf();
    void progressIsToldTogether();
    void progressCountsTheRunningImport();
    void jobsOfOthersAreSeenToo();
    void readingIsCountedUntilItIsOver();
    void unreadableFilesJoinTheReport();
    void whatWasFoundUnreadableDuringTheImportIsInItsReport();
    void mediaOfOthersStayOutOfTheReport();
    void aMediaThatIsReadAfterAllLeavesTheReport();
    void tryingAgainReadsTheMediaOfTheProject();
    void tryingAgainImportsWhatIsNotInTheProject();
    void tryingAgainPutsAFileIntoTheFolderItWasMeantFor();
    void onlyFailuresCanBeTriedAgain_data();
    void onlyFailuresCanBeTriedAgain();
    void theProjectFileItselfIsNeverImported();
    void leavingTheProjectForgetsItsImports();
    void pathsAreTakenFromWhatIsPasted_data();
    void pathsAreTakenFromWhatIsPasted();
    void nothingPastedIsNoPath();
};

void tst_ImportDesk::jobsThatRunTogetherEndInOneReport()
{
    ImportYard yard;
    const QSignalSpy finished(&yard.desk, &ImportDesk::sigFinished);
    yard.start({yard.picture(QStringLiteral("a.png")), yard.rubbish(QStringLiteral("notes.xyz"))});
    yard.start({yard.picture(QStringLiteral("b.png")), yard.path(QStringLiteral("a.png"))});
    QVERIFY(yard.desk.isBusy());
    QVERIFY(!yard.desk.hasReport());
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, Patience);

    QVERIFY(!yard.desk.isBusy());
    const auto report = finished.first().first().value<NxImportReport>();
    QCOMPARE(report.found, 4);
    QCOMPARE(report.added, 2);
    QCOMPARE(report.alreadyThere, 1);
    QCOMPARE(report.refused, 1);
    QCOMPARE(linesOf(report),
             QStringList({QStringLiteral("2 notes.xyz"), QStringLiteral("0 a.png")}));
    QCOMPARE(linesOf(yard.desk.report()), linesOf(report));
    QVERIFY(yard.desk.hasReport());
    QVERIFY(yard.desk.isInProject(yard.path(QStringLiteral("b.png"))));
    QVERIFY(!yard.desk.isInProject(yard.path(QStringLiteral("notes.xyz"))));
}

void tst_ImportDesk::theNextImportHasAReportOfItsOwn()
{
    ImportYard yard;
    yard.import({yard.rubbish(QStringLiteral("notes.xyz"))});
    yard.import({yard.picture(QStringLiteral("a.png"))});
    QCOMPARE(yard.desk.report().added, 1);
    QCOMPARE(yard.desk.report().refused, 0);
    QVERIFY(yard.desk.report().lines.isEmpty());
}

void tst_ImportDesk::cancellingStopsEveryJob()
{
    ImportYard yard;
    const QSignalSpy finished(&yard.desk, &ImportDesk::sigFinished);
    yard.start({yard.picture(QStringLiteral("a.png"))});
    yard.start({yard.picture(QStringLiteral("b.png"))});
    yard.start({yard.picture(QStringLiteral("c.png"))});
    yard.desk.cancel();
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, Patience);
    QCOMPARE(yard.desk.report().cancelled, 3);
    QCOMPARE(yard.desk.report().added, 0);
}

void tst_ImportDesk::whatCannotBeDoneIsRefusedWithAReason_data()
{
    QTest::addColumn<bool>("hasProject");
    QTest::addColumn<bool>("hasFolder");
    QTest::addColumn<bool>("takesMedia");
    QTest::newRow("no project") << false << true << true;
    QTest::newRow("no folder") << true << false << true;
    QTest::newRow("a folder that takes no media") << true << true << false;
}

void tst_ImportDesk::whatCannotBeDoneIsRefusedWithAReason()
{
    QFETCH(bool, hasProject);
    QFETCH(bool, hasFolder);
    QFETCH(bool, takesMedia);
    ScriptedProject project;
    project.section.takesMedia = takesMedia;
    ImportDesk desk;
    if (hasProject)
        desk.setProject(&project);
    const QSignalSpy refused(&desk, &ImportDesk::sigRefused);

    QCOMPARE(desk.start(hasFolder ? &project.section : nullptr, {QStringLiteral("/a.mp4")},
                        NXVBLMODEL::mitFiles),
             quint64(0));
    QCOMPARE(refused.size(), 1);
    QVERIFY(!refused.first().first().toString().isEmpty());
    QVERIFY(project.files.started.isEmpty());
    QVERIFY(!desk.isBusy());
}

void tst_ImportDesk::aReadOnlyProjectSaysWhy()
{
    ImportYard yard;
    yard.reopen(NxProjectOpenMode::ReadOnly);
    const QSignalSpy refused(&yard.desk, &ImportDesk::sigRefused);
    QCOMPARE(yard.desk.start(yard.section(), {yard.picture(QStringLiteral("a.png"))},
                             NXVBLMODEL::mitFiles),
             quint64(0));
    QCOMPARE(refused.size(), 1);
    QVERIFY(!yard.project->readOnlyReason().isEmpty());
    QCOMPARE(refused.first().first().toString(), yard.project->readOnlyReason());
}

void tst_ImportDesk::aFolderThatRefusesIsToldOf()
{
    ScriptedProject project;
    ImportDesk desk;
    desk.setProject(&project);
    const QSignalSpy refused(&desk, &ImportDesk::sigRefused);
    QCOMPARE(desk.start(&project.section, {}, NXVBLMODEL::mitFiles), quint64(0));
    QCOMPARE(refused.size(), 0); // Nothing to do is no failure.
    project.files.takesJobs = false;
    QCOMPARE(desk.start(&project.section, {QStringLiteral("/a.mp4")}, NXVBLMODEL::mitFiles),
             quint64(0));
    QCOMPARE(refused.size(), 1);
    QVERIFY(!desk.isBusy());
}

void tst_ImportDesk::progressIsToldTogether()
{
    ScriptedProject project;
    ImportDesk desk;
    desk.setProject(&project);
    QSignalSpy told(&desk, &ImportDesk::sigProgress);
    for (int found = 1; found <= 1'000; ++found)
        Q_EMIT project.files.progress(1, found, 0, 0);
    QCOMPARE(told.size(), 0); // The desk has just told of its project.
    QVERIFY(told.wait());
    QCOMPARE(told.size(), 1);
    QCOMPARE(desk.found(), 1'000);
}

void tst_ImportDesk::progressCountsTheRunningImport()
{
    ScriptedProject project;
    ScriptedMedia a(QStringLiteral("/a.mp4"));
    ScriptedMedia b(QStringLiteral("/b.mp4"));
    ImportDesk desk;
    desk.setProject(&project);
    const quint64 first =
        desk.start(&project.section, {QStringLiteral("/a.mp4")}, NXVBLMODEL::mitFiles);
    const quint64 second =
        desk.start(&project.section, {QStringLiteral("/in")}, NXVBLMODEL::mitFiles);
    Q_EMIT project.files.progress(first, 1, 1, 0);
    Q_EMIT project.files.added(first, {&a});
    NxImportReport report;
    report.found = 1;
    report.added = 1;
    Q_EMIT project.files.finished(first, report);
    Q_EMIT project.files.progress(second, 7, 1, 0);
    Q_EMIT project.files.added(second, {&b});
    project.reader.tell(&a, QString());

    QVERIFY(desk.isBusy());
    QCOMPARE(desk.found(), 8);
    QCOMPARE(desk.added(), 2);
    QCOMPARE(desk.read(), 1);
    Q_EMIT project.files.finished(second, NxImportReport());
    QVERIFY(!desk.isBusy());
    QCOMPARE(desk.found(), 0);
    QCOMPARE(desk.added(), 0);
    QCOMPARE(desk.read(), 0);
}

void tst_ImportDesk::jobsOfOthersAreSeenToo()
{
    ScriptedProject project;
    ImportDesk desk;
    desk.setProject(&project);
    const QSignalSpy finished(&desk, &ImportDesk::sigFinished);
    Q_EMIT project.files.progress(17, 5, 0, 0);
    QVERIFY(desk.isBusy());
    desk.cancel();
    QCOMPARE(project.files.cancelled, QList<quint64>{17});
    NxImportReport report;
    report.added = 5;
    Q_EMIT project.files.finished(17, report);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(desk.report().added, 5);
}

void tst_ImportDesk::readingIsCountedUntilItIsOver()
{
    ScriptedProject project;
    ImportDesk desk;
    desk.setProject(&project);
    QVERIFY(!desk.isReading());
    Q_EMIT project.reader.progress(12, 300);
    QVERIFY(desk.isReading());
    QCOMPARE(desk.filesRead(), 12);
    QCOMPARE(desk.filesKnown(), 300);
    Q_EMIT project.reader.idle(); // Some files lie on a drive that is away.
    QVERIFY(!desk.isReading());
}

void tst_ImportDesk::unreadableFilesJoinTheReport()
{
    ImportYard yard(ImportYard::Reading::Everything);
    yard.import({yard.rubbish(QStringLiteral("bad.png")), yard.picture(QStringLiteral("a.png"))});
    QCOMPARE(yard.desk.report().added, 2);
    QTRY_COMPARE_WITH_TIMEOUT(yard.desk.report().unreadable, 1, Patience);
    QCOMPARE(linesOf(yard.desk.report()), QStringList(QStringLiteral("3 bad.png")));
    const NxImportReportLine line = yard.desk.report().lines.first();
    QCOMPARE(line.path, yard.path(QStringLiteral("bad.png")));
    QVERIFY(!line.reason.isEmpty());
}

void tst_ImportDesk::whatWasFoundUnreadableDuringTheImportIsInItsReport()
{
    ScriptedProject project;
    ScriptedMedia early(QStringLiteral("/early.mp4"));
    ScriptedMedia late(QStringLiteral("/late.mp4"));
    ImportDesk desk;
    desk.setProject(&project);
    const QSignalSpy finished(&desk, &ImportDesk::sigFinished);
    Q_EMIT project.files.progress(1, 2, 0, 0);
    project.reader.tell(&early, QStringLiteral("Cut off."));
    Q_EMIT project.files.added(1, {&early, &late});
    project.reader.tell(&late, QStringLiteral("No sense."));
    QCOMPARE(desk.report().unreadable, 0); // That is the report of the import before.
    Q_EMIT project.files.finished(1, NxImportReport());
    const auto report = finished.first().first().value<NxImportReport>();
    QCOMPARE(linesOf(report),
             QStringList({QStringLiteral("3 early.mp4"), QStringLiteral("3 late.mp4")}));
    QCOMPARE(report.lines.first().reason, QStringLiteral("Cut off."));
    QCOMPARE(report.unreadable, 2);
}

void tst_ImportDesk::mediaOfOthersStayOutOfTheReport()
{
    ScriptedProject project;
    ScriptedMedia old(QStringLiteral("/old.mp4"));
    ImportDesk desk;
    desk.setProject(&project);
    Q_EMIT project.files.finished(1, NxImportReport());
    project.reader.tell(&old, QStringLiteral("Cut off."));
    QVERIFY(desk.report().lines.isEmpty());
}

void tst_ImportDesk::aMediaThatIsReadAfterAllLeavesTheReport()
{
    ScriptedProject project;
    ScriptedMedia media(QStringLiteral("/a.mp4"));
    ImportDesk desk;
    desk.setProject(&project);
    Q_EMIT project.files.added(1, {&media});
    Q_EMIT project.files.finished(1, NxImportReport());
    project.reader.tell(&media, QStringLiteral("Cut off."));
    project.reader.tell(&media, QStringLiteral("Empty."));
    QCOMPARE(desk.report().unreadable, 1);
    QCOMPARE(desk.report().lines.first().reason, QStringLiteral("Empty."));
    project.reader.tell(&media, QString());
    QCOMPARE(desk.report().unreadable, 0);
    QVERIFY(desk.report().lines.isEmpty());
}

void tst_ImportDesk::tryingAgainReadsTheMediaOfTheProject()
{
    ScriptedProject project;
    ScriptedMedia media(QStringLiteral("/a.mp4"));
    ScriptedMedia other(QStringLiteral("/b.mp4"));
    project.section.media = {&media, &other};
    ImportDesk desk;
    desk.setProject(&project);
    NxImportReport report; // Somebody else brought b.mp4 in the meantime.
    report.lines = {lineOf(QStringLiteral("/b.mp4"), NxImportVerdict::Unreadable)};
    report.unreadable = 1;
    Q_EMIT project.files.added(1, {&media});
    Q_EMIT project.files.finished(1, report);
    project.reader.tell(&media, QStringLiteral("Cut off."));
    QCOMPARE(desk.report().unreadable, 2);

    desk.tryAgain(desk.report().lines);
    QCOMPARE(project.reader.asked, QList<INxAbstractMediaItem *>({&other, &media}));
    QVERIFY(project.files.started.isEmpty());
    QCOMPARE(linesOf(desk.report()), QStringList(QStringLiteral("3 a.mp4")));
    project.reader.tell(&other, QStringLiteral("No sense."));
    QCOMPARE(linesOf(desk.report()),
             QStringList({QStringLiteral("3 a.mp4"), QStringLiteral("3 b.mp4")}));
}

void tst_ImportDesk::tryingAgainImportsWhatIsNotInTheProject()
{
    ImportYard yard;
    const QString late = yard.path(QStringLiteral("late.png"));
    yard.import(
        {yard.picture(QStringLiteral("a.png")), late, yard.rubbish(QStringLiteral("notes.xyz"))});
    QCOMPARE(yard.desk.report().lines.size(), 2);
    QCOMPARE(yard.desk.report().lines.first().path, late);

    (void)yard.picture(QStringLiteral("late.png"));
    const QSignalSpy finished(&yard.desk, &ImportDesk::sigFinished);
    yard.desk.tryAgain({yard.desk.report().lines.first()});
    QVERIFY(yard.desk.isBusy());
    QCOMPARE(yard.desk.report().lines.size(), 2); // Until the other outcome is known.
    QCOMPARE(yard.desk.added(), 0); // What came before is not counted again.
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, Patience);
    const auto report = finished.first().first().value<NxImportReport>();
    QCOMPARE(report.added, 2);
    QCOMPARE(report.found, 3);
    QCOMPARE(report.unreadable, 0);
    QCOMPARE(linesOf(report), QStringList(QStringLiteral("2 notes.xyz")));
    QVERIFY(yard.desk.isInProject(late));
}

void tst_ImportDesk::tryingAgainPutsAFileIntoTheFolderItWasMeantFor()
{
    ImportYard yard;
    (void)yard.picture(QStringLiteral("Day/a.png"));
    const QString take = yard.dir.makeDir(QStringLiteral("Day/Take"));
    QVERIFY(QFile::link(yard.path(QStringLiteral("away.png")),
                        yard.path(QStringLiteral("Day/link.png"))));
    QVERIFY(QFile::link(yard.path(QStringLiteral("gone.png")), take + QStringLiteral("/end.png")));
    yard.import({yard.path(QStringLiteral("Day"))});
    QStringList lines = linesOf(yard.desk.report());
    lines.sort();
    QCOMPARE(lines, QStringList({QStringLiteral("3 end.png"), QStringLiteral("3 link.png")}));

    (void)yard.picture(QStringLiteral("away.png"));
    (void)yard.picture(QStringLiteral("gone.png"));
    const QSignalSpy finished(&yard.desk, &ImportDesk::sigFinished);
    yard.desk.tryAgain(yard.desk.report().lines);
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, Patience);
    QVERIFY(yard.desk.report().lines.isEmpty());
    const INxFolderMedia *day = yard.section()->childFolder(0);
    QCOMPARE(day->name(), QStringLiteral("Day"));
    QVERIFY(!day->hasChildFolders()); // "Take" never came to hold anything,
    QCOMPARE(day->items(false, true).size(), 3); // so its file stays next to where it would be.
}

void tst_ImportDesk::onlyFailuresCanBeTriedAgain_data()
{
    QTest::addColumn<NxImportVerdict>("verdict");
    QTest::addColumn<bool>("possible");
    QTest::newRow("already there") << NxImportVerdict::AlreadyThere << false;
    QTest::newRow("a copy") << NxImportVerdict::CopyOf << false;
    QTest::newRow("refused") << NxImportVerdict::Refused << true;
    QTest::newRow("unreadable") << NxImportVerdict::Unreadable << true;
    QTest::newRow("not reached") << NxImportVerdict::Cancelled << true;
}

void tst_ImportDesk::onlyFailuresCanBeTriedAgain()
{
    QFETCH(NxImportVerdict, verdict);
    QFETCH(bool, possible);
    ScriptedProject project;
    ImportDesk desk;
    const NxImportReportLine line = lineOf(QStringLiteral("/a.mp4"), verdict);
    QVERIFY(!desk.canTryAgain(line));
    desk.setProject(&project);
    QCOMPARE(desk.canTryAgain(line), possible);
    desk.tryAgain({line});
    QCOMPARE(project.files.started.size(), possible ? 1 : 0);
}

void tst_ImportDesk::theProjectFileItselfIsNeverImported()
{
    ScriptedProject project;
    ImportDesk desk;
    desk.setProject(&project);
    const NxImportReportLine line = lineOf(project.path(), NxImportVerdict::Cancelled);
    QVERIFY(!desk.canTryAgain(line));
    desk.tryAgain({line});
    QVERIFY(project.files.started.isEmpty());
}

void tst_ImportDesk::leavingTheProjectForgetsItsImports()
{
    ScriptedProject project;
    ImportDesk desk;
    desk.setProject(&project);
    Q_EMIT project.files.finished(1, NxImportReport());
    Q_EMIT project.files.progress(2, 5, 0, 0);
    Q_EMIT project.reader.progress(1, 5);
    QVERIFY(desk.isBusy() && desk.isReading() && desk.hasReport());

    const QSignalSpy changed(&desk, &ImportDesk::sigReportChanged);
    const QSignalSpy finished(&desk, &ImportDesk::sigFinished);
    desk.setProject(nullptr);
    QCOMPARE(changed.size(), 1);
    QVERIFY(!desk.isBusy() && !desk.isReading() && !desk.hasReport());
    Q_EMIT project.files.finished(2, NxImportReport());
    QCOMPARE(finished.size(), 0);
}

void tst_ImportDesk::pathsAreTakenFromWhatIsPasted_data()
{
    QTest::addColumn<QStringList>("addresses");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("paths");
    const QStringList none;
    QTest::newRow("files") << QStringList(
        {QStringLiteral("file:///a%20b.mp4"), QStringLiteral("file:///c.mp4")})
                           << QString()
                           << QStringList({QStringLiteral("/a b.mp4"), QStringLiteral("/c.mp4")});
    QTest::newRow("addresses of the net are left out")
        << QStringList(
               {QStringLiteral("https://example.org/a.mp4"), QStringLiteral("file:///c.mp4")})
        << QString() << QStringList(QStringLiteral("/c.mp4"));
    QTest::newRow("files come before the text")
        << QStringList(QStringLiteral("file:///c.mp4")) << QStringLiteral("/d.mp4")
        << QStringList(QStringLiteral("/c.mp4"));
    QTest::newRow("each once") << QStringList(
        {QStringLiteral("file:///c.mp4"), QStringLiteral("file:///c.mp4")})
                               << QString() << QStringList(QStringLiteral("/c.mp4"));
    QTest::newRow("paths by the line")
        << none << QStringLiteral("/a b.mp4\r\n\n/c.mp4\n")
        << QStringList({QStringLiteral("/a b.mp4"), QStringLiteral("/c.mp4")});
    QTest::newRow("addresses by the line") << none << QStringLiteral("copy\nfile:///a%20b.mp4")
                                           << QStringList(QStringLiteral("/a b.mp4"));
    QTest::newRow("words") << none << QStringLiteral("a.mp4\n:)\nhttps://example.org/a.mp4")
                           << none;
}

void tst_ImportDesk::pathsAreTakenFromWhatIsPasted()
{
    QFETCH(QStringList, addresses);
    QFETCH(QString, text);
    QFETCH(QStringList, paths);
    QMimeData data;
    QList<QUrl> urls;
    for (const QString &address : addresses)
        urls.append(QUrl(address));
    if (!urls.isEmpty())
        data.setUrls(urls);
    if (!text.isEmpty())
        data.setText(text);
    QCOMPARE(ImportDesk::pathsOf(&data), paths);
}

void tst_ImportDesk::nothingPastedIsNoPath()
{
    QVERIFY(ImportDesk::pathsOf(nullptr).isEmpty());
    const QMimeData data;
    QVERIFY(ImportDesk::pathsOf(&data).isEmpty());
}

NX_TEST_MAIN_WIDGETS(tst_ImportDesk)
#include "tst_ImportDesk.moc"
