// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/relink/NxRelinkSearch.h>

#include "MovedProject.h"

#include <NxVBLEngine/disk/NxDiskThread.h>
#include <RawFiles.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <NxCore/NxQueue.h>
#include <NxWorkerProtocol/NxWorkerMessages.h>

#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <atomic>
#include <utility>

namespace {

constexpr int Patience = 60'000; // ms

NxRelinkReport reportOf(const QList<QVariant> &finished)
{
    return finished.at(1).value<NxRelinkReport>();
}

/// A disk on which one folder never answers until the test is over.
struct DeadDrive
{
    NxFileLook look(const QString &dead)
    {
        return [dead, gate = m_gate](const QString &path) {
            if (path.startsWith(dead))
                (void)gate->waitPop(std::chrono::minutes(5));
            return NxFileProbe::look(path);
        };
    }
    ~DeadDrive() { m_gate->close(); }

private:
    const std::shared_ptr<NxQueue<bool>> m_gate = std::make_shared<NxQueue<bool>>();
};

/// So many files of one byte; hard links are made much faster than files.
void writeMany(const MovedProject &f, const QString &folder, int count)
{
    const QString first = folder + QStringLiteral("/00000.mp4");
    f.write(first, "x");
    for (int i = 1; i < count; ++i) {
        RawFiles::hardLink(
            f.path(first),
            f.path(QStringLiteral("%1/%2.mp4").arg(folder).arg(i, 5, 10, QLatin1Char('0'))));
    }
}

} // namespace

/// Searches from their start to their report, with the disk thread and workers.
class tst_NxRelinkSearch : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aRenamedFileIsFoundByItsContents();
    void ofCopiesTheOneOfItsNameIsTaken();
    void theLengthSaysWhetherOtherContentsWillDo_data();
    void theLengthSaysWhetherOtherContentsWillDo();
    void nothingIsDoneBeforeStartReturns();
    void anEmptySearchFinishesToo();
    void theDiskIsNotAskedOnThisThread();
    void usersFilesStayUntouched();
    void severalSearchesGoOnAtOnce();
    void searchesGoOnOneAfterAnother();
    void cancelTellsWhatWasFoundSoFar();
    void cancelOfTheUnknownIsIgnored();
    void progressIsToldWhileNothingElseHappens();
    void progressNeverRunsBack();
    void filesThatCannotBeReadAreTold_data();
    void filesThatCannotBeReadAreTold();
    void workersThatCannotStartAreTold_data();
    void workersThatCannotStartAreTold();
    void aFolderThatDoesNotAnswerIsTold();
    void manyFilesOfOneSizeAreCompared();
    void stopAllEndsEverySearch();
    void searchesEndWhenTheDiskThreadIsClosed();
    void itMayDieInTheMiddle();
    void itMayDieInItsSignals_data();
    void itMayDieInItsSignals();
};

void tst_NxRelinkSearch::aRenamedFileIsFoundByItsContents()
{
    MovedProject f;
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "the film");
    f.identify({media});
    f.move(QStringLiteral("old/a.mp4"), QStringLiteral("new/deep/er/b.mp4"));
    f.write(QStringLiteral("new/a.mp4"), "the gilm"); // Its name and size.
    f.write(QStringLiteral("new/c.mp4"), "a film");
    QCOMPARE(f.found({media}), QStringList(QStringLiteral("a.mp4: contents new/deep/er/b.mp4")));
    QCOMPARE(media->filePath(), f.path(QStringLiteral("old/a.mp4")));
}

void tst_NxRelinkSearch::ofCopiesTheOneOfItsNameIsTaken()
{
    MovedProject f;
    NxEngineMedia *named = f.add(QStringLiteral("old/a.mp4"), "the film");
    NxEngineMedia *several = f.add(QStringLiteral("old/b.mp4"), "another film");
    for (NxEngineMedia *media : {named, several}) {
        f.identify({media});
        f.lose(media);
    }
    for (const char *name : {"new/1/c.mp4", "new/2/a.mp4", "new/3/A.mp4"})
        f.write(QLatin1String(name), "the film");
    for (const char *name : {"new/copy 10.mp4", "new/copy 9.mp4"})
        f.write(QLatin1String(name), "another film");
    QCOMPARE(f.found({several, named}),
             QStringList({QStringLiteral("b.mp4: several new/copy 9.mp4 new/copy 10.mp4"),
                          QStringLiteral("a.mp4: contents new/2/a.mp4")}));
}

void tst_NxRelinkSearch::theLengthSaysWhetherOtherContentsWillDo_data()
{
    QTest::addColumn<qint64>("frames");
    QTest::addColumn<bool>("isIdentified");
    QTest::addColumn<QString>("expected");
    const QString name = QStringLiteral("a.mp4: name new/a.mp4");
    const QString none = QStringLiteral("a.mp4: none");
    // Scripted workers find 100 frames in every file.
    QTest::newRow("no fingerprint, same length") << qint64(100) << false << name;
    QTest::newRow("no fingerprint, other length") << qint64(99) << false << none;
    QTest::newRow("other contents, same length") << qint64(100) << true << name;
    QTest::newRow("other contents, other length") << qint64(101) << true << none;
}

void tst_NxRelinkSearch::theLengthSaysWhetherOtherContentsWillDo()
{
    QFETCH(qint64, frames);
    QFETCH(bool, isIdentified);
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.setFrames(media, frames);
    if (isIdentified)
        f.setFingerprint(media, {1, 2, 3});
    f.lose(media);
    f.write(QStringLiteral("new/a.mp4"), "y");
    f.write(QStringLiteral("new/b.mp4"), "y");
    QTEST(f.found({media}).join(QLatin1Char(';')), "expected");
    QCOMPARE(f.footage.names(rwFacts), QStringList(QStringLiteral("a.mp4")));
}

void tst_NxRelinkSearch::nothingIsDoneBeforeStartReturns()
{
    MovedProject f(MovedProject::Worker::Scripted);
    f.write(QStringLiteral("new/a.mp4"), "x");
    QSignalSpy finished(&f.search(), &INxRelinkSearch::finished);
    const quint64 number = f.search().start({}, f.path(QStringLiteral("new")));
    QVERIFY(number != 0);
    QCOMPARE(finished.size(), 0);
    QVERIFY(finished.wait(Patience));
    QCOMPARE(finished.first().first().toULongLong(), number);
}

void tst_NxRelinkSearch::anEmptySearchFinishesToo()
{
    MovedProject f(MovedProject::Worker::Scripted);
    const NxRelinkReport report = f.find({}, QStringLiteral("nowhere"));
    QVERIFY(report.findings.isEmpty());
    QVERIFY(!report.cancelled);
    QCOMPARE(f.sentences(report),
             QStringList(QStringLiteral("\"nowhere\" was left out. It does not exist.")));
}

void tst_NxRelinkSearch::theDiskIsNotAskedOnThisThread()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.write(QStringLiteral("new/a.mp4"), "x");
    std::atomic<int> here{0};
    std::atomic<int> elsewhere{0};
    f.look = [&here, &elsewhere, gui = QThread::currentThread()](const QString &path) {
        ++(QThread::currentThread() == gui ? here : elsewhere);
        return NxFileProbe::look(path);
    };
    QCOMPARE(f.found({media}), QStringList(QStringLiteral("a.mp4: name new/a.mp4")));
    QCOMPARE(here.load(), 0);
    QVERIFY(elsewhere.load() > 0);
}

void tst_NxRelinkSearch::usersFilesStayUntouched()
{
    MovedProject f;
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "the film");
    f.identify({media});
    f.setFrames(media, 100);
    f.write(QStringLiteral("new/a.mp4"), "the gilm");
    f.write(QStringLiteral("new/b.mp4"), "the film");
    const NxFootageGuard guard(f.path(QStringLiteral("new")));
    QCOMPARE(f.found({media}), QStringList(QStringLiteral("a.mp4: contents new/b.mp4")));
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_NxRelinkSearch::severalSearchesGoOnAtOnce()
{
    MovedProject f;
    QVector<NxEngineMedia *> media;
    constexpr int searches = 5;
    for (int i = 0; i < searches; ++i) {
        media.append(
            f.add(QStringLiteral("old/%1.mp4").arg(i), QByteArray("film ") + char('a' + i)));
        f.identify({media.last()});
        f.move(QStringLiteral("old/%1.mp4").arg(i), QStringLiteral("new/%1/z.mp4").arg(i));
    }
    QSignalSpy finished(&f.search(), &INxRelinkSearch::finished);
    QVector<quint64> numbers;
    for (int i = 0; i < searches; ++i) {
        // The last one through everything, the others each through a folder of its own.
        const QString folder =
            i + 1 == searches ? QStringLiteral("new") : QStringLiteral("new/%1").arg(i);
        numbers.append(f.search().start(asItems({media.at(i)}), f.path(folder)));
    }
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), searches, Patience);
    for (const QList<QVariant> &one : std::as_const(finished)) {
        const int which = numbers.indexOf(one.first().toULongLong());
        QVERIFY(which >= 0);
        QCOMPARE(f.lines(reportOf(one)),
                 QStringList(QStringLiteral("%1.mp4: contents new/%1/z.mp4").arg(which)));
        numbers[which] = 0;
    }
}

void tst_NxRelinkSearch::searchesGoOnOneAfterAnother()
{
    MovedProject f;
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "the film");
    f.identify({media});
    f.lose(media);
    QCOMPARE(f.found({media}).first(), QStringLiteral("a.mp4: none"));
    f.write(QStringLiteral("new/b.mp4"), "the film");
    QCOMPARE(f.found({media}).first(), QStringLiteral("a.mp4: contents new/b.mp4"));
    QVERIFY(f.items->relinkMedia(media, f.path(QStringLiteral("new/b.mp4"))));
    QCOMPARE(f.found({media}).first(), QStringLiteral("a.mp4: none"));
}

void tst_NxRelinkSearch::cancelTellsWhatWasFoundSoFar()
{
    MovedProject f(MovedProject::Worker::Scripted);
    f.settings.workers = 1;
    NxEngineMedia *named = f.add(QStringLiteral("old/a.mp4"), "xx");
    NxEngineMedia *waits = f.add(QStringLiteral("old/b.mp4"), "x");
    f.setFingerprint(waits, {1, 2, 3});
    f.write(QStringLiteral("new/a.mp4"), "xx");
    f.write(QStringLiteral("new/gated.mp4"), "x");
    QSignalSpy finished(&f.search(), &INxRelinkSearch::finished);
    const quint64 number = f.search().start(asItems({named, waits}), f.path(QStringLiteral("new")));
    QTRY_COMPARE(f.footage.names().size(), 1);
    QCOMPARE(finished.size(), 0);
    f.search().cancel(number);
    QVERIFY(finished.wait(Patience));
    QVERIFY(reportOf(finished.first()).cancelled);
    QCOMPARE(f.lines(reportOf(finished.first())),
             QStringList({QStringLiteral("a.mp4: name new/a.mp4"), QStringLiteral("b.mp4: none")}));
    f.footage.openGate();
    f.search().cancel(number);
    const NxRelinkReport next = f.find({waits}); // Nothing of the other is left over.
    QVERIFY(!next.cancelled);
    QCOMPARE(f.lines(next), QStringList(QStringLiteral("b.mp4: none")));
    QCOMPARE(finished.size(), 2);
}

void tst_NxRelinkSearch::cancelOfTheUnknownIsIgnored()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.write(QStringLiteral("new/a.mp4"), "x");
    QSignalSpy finished(&f.search(), &INxRelinkSearch::finished);
    f.search().cancel(1);
    const QString folder = f.path(QStringLiteral("new"));
    const quint64 first = f.search().start(asItems({media}), folder);
    f.search().cancel(first + 1);
    const quint64 second = f.search().start(asItems({media}), folder);
    f.search().cancel(second); // Before it has begun.
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 2, Patience);
    for (const QList<QVariant> &one : std::as_const(finished)) {
        const bool isCancelled = one.first().toULongLong() == second;
        QCOMPARE(reportOf(one).cancelled, isCancelled);
        QCOMPARE(f.lines(reportOf(one)).first(), isCancelled
                                                     ? QStringLiteral("a.mp4: none")
                                                     : QStringLiteral("a.mp4: name new/a.mp4"));
    }
}

void tst_NxRelinkSearch::progressIsToldWhileNothingElseHappens()
{
    MovedProject f(MovedProject::Worker::Scripted);
    f.settings.workers = 1;
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.setFingerprint(media, {1, 2, 3});
    f.write(QStringLiteral("new/1.mp4"), "x");
    f.write(QStringLiteral("new/2-gated.mp4"), "x");
    f.write(QStringLiteral("new/3.mp4"), "xx");
    QSignalSpy progress(&f.search(), &INxRelinkSearch::progress);
    QSignalSpy finished(&f.search(), &INxRelinkSearch::finished);
    const quint64 number = f.search().start(asItems({media}), f.path(QStringLiteral("new")));
    const QList<QVariant> expected{number, qint64(3), qint64(1)};
    QTRY_VERIFY(!progress.isEmpty() && progress.last() == expected);
    QCOMPARE(finished.size(), 0);
    f.footage.openGate();
    QVERIFY(finished.wait(Patience));
}

void tst_NxRelinkSearch::progressNeverRunsBack()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.setFingerprint(media, {1, 2, 3});
    constexpr int files = 3'000;
    writeMany(f, QStringLiteral("new"), files);
    QSignalSpy progress(&f.search(), &INxRelinkSearch::progress);
    (void)f.find({media});
    qint64 seen = 0;
    qint64 compared = 0;
    for (const QList<QVariant> &one : std::as_const(progress)) {
        QVERIFY(one.at(1).toLongLong() >= seen);
        QVERIFY(one.at(2).toLongLong() >= compared);
        seen = one.at(1).toLongLong();
        compared = one.at(2).toLongLong();
        QVERIFY(compared <= seen);
        QVERIFY(seen <= files);
    }
}

void tst_NxRelinkSearch::filesThatCannotBeReadAreTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *title, const char *name, const char *sentence) {
        QTest::newRow(title) << QString::fromLatin1(name)
                             << QStringList(QString::fromLatin1(sentence));
    };
    row("damaged", "new/fails.mp4", "\"new/fails.mp4\" was left out. The file is damaged.");
    row("ends its readers", "new/crash.mp4",
        "\"new/crash.mp4\" was left out. Reading the file crashed its reader.");
    row("hangs", "new/hang-opened.mp4",
        "\"new/hang-opened.mp4\" was left out. Reading the file took too long.");
    row("its drive is silent", "dead/hang-unopened.mp4",
        "\"dead\" was left out. The drive does not answer.");
}

void tst_NxRelinkSearch::filesThatCannotBeReadAreTold()
{
    QFETCH(QString, name);
    MovedProject f(MovedProject::Worker::Scripted);
    f.settings = name.contains(QLatin1String("hang")) ? f.footage.impatient(2)
                                                      : f.footage.settings(2);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.setFingerprint(media, {1, 2, 3});
    f.write(name, "x");
    const NxRelinkReport report = f.find({media}, name.section(QLatin1Char('/'), 0, 0));
    QTEST(f.sentences(report), "expected");
    QCOMPARE(f.lines(report), QStringList(QStringLiteral("a.mp4: none")));
    QVERIFY(!report.cancelled);
}

void tst_NxRelinkSearch::workersThatCannotStartAreTold_data()
{
    QTest::addColumn<QString>("manner");
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("part");
    QTest::newRow("none is installed")
        << QStringLiteral("plain") << QString() << QStringLiteral("It was looked for everywhere.");
    QTest::newRow("another version") << QStringLiteral("otherversion") << QStringLiteral("scripted")
                                     << QStringLiteral("version");
    QTest::newRow("ends at once") << QStringLiteral("endsatonce") << QStringLiteral("scripted")
                                  << QStringLiteral("scriptedWorker");
}

void tst_NxRelinkSearch::workersThatCannotStartAreTold()
{
    QFETCH(QString, manner);
    QFETCH(QString, program);
    QFETCH(QString, part);
    MovedProject f(MovedProject::Worker::Scripted, manner);
    if (program.isEmpty()) {
        f.settings.program.clear();
        f.settings.whyNone = part;
    } else {
        NxTestLog::expectError(QStringLiteral("no footage is read"));
    }
    NxEngineMedia *never = f.add(QStringLiteral("old/a.mp4"), "x");
    NxEngineMedia *identified = f.add(QStringLiteral("old/b.mp4"), "x");
    f.setFingerprint(identified, {1, 2, 3});
    f.write(QStringLiteral("new/a.mp4"), "x");
    f.write(QStringLiteral("new/b.mp4"), "x");
    for (int round = 0; round < 2; ++round) {
        const NxRelinkReport report = f.find({never, identified});
        QCOMPARE(f.lines(report), QStringList({QStringLiteral("a.mp4: name new/a.mp4"),
                                               QStringLiteral("b.mp4: none")}));
        QCOMPARE(report.unreadable.size(), 1);
        QVERIFY(report.unreadable.first().startsWith(
            QStringLiteral("Not all files could be compared. ")));
        QVERIFY2(report.unreadable.first().contains(part), qPrintable(report.unreadable.first()));
    }
}

void tst_NxRelinkSearch::aFolderThatDoesNotAnswerIsTold()
{
    MovedProject f(MovedProject::Worker::Scripted);
    DeadDrive drive;
    f.patience = std::chrono::seconds(5);
    f.look = drive.look(f.path(QStringLiteral("new/z/")));
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.write(QStringLiteral("new/a.mp4"), "x");
    f.write(QStringLiteral("new/z/b.mp4"), "x");
    const NxRelinkReport report = f.find({media});
    QCOMPARE(f.lines(report), QStringList(QStringLiteral("a.mp4: name new/a.mp4")));
    QCOMPARE(f.sentences(report),
             QStringList(QStringLiteral("\"new\" was left out. The drive does not answer.")));
    QCOMPARE(f.disk->hangingThreads(), 1);
}

void tst_NxRelinkSearch::manyFilesOfOneSizeAreCompared()
{
    MovedProject f(MovedProject::Worker::Scripted);
    constexpr int files = 2'000;
    constexpr int lost = 100;
    writeMany(f, QStringLiteral("new"), files);
    QVector<NxEngineMedia *> media;
    QStringList expected;
    for (int i = 0; i < lost; ++i) {
        const QString name = QStringLiteral("%1.mp4").arg(i * 7, 5, 10, QLatin1Char('0'));
        media.append(f.add(QStringLiteral("old/") + name, "x"));
        f.setFingerprint(media.last(), {1, quint64(name.size()), quint64(qHash(name))});
        expected.append(QStringLiteral("%1: contents new/%1").arg(name));
    }
    QCOMPARE(f.found(media), expected);
    QCOMPARE(f.footage.names(rwFingerprint).size(), files);
    QCOMPARE(f.footage.names(rwFacts).size(), 0);
}

void tst_NxRelinkSearch::stopAllEndsEverySearch()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.setFingerprint(media, {1, 2, 3});
    f.write(QStringLiteral("new/gated.mp4"), "x");
    QSignalSpy finished(&f.search(), &INxRelinkSearch::finished);
    for (int i = 0; i < 3; ++i)
        (void)f.search().start(asItems({media}), f.path(QStringLiteral("new")));
    QTRY_VERIFY(!f.footage.names().isEmpty());
    f.search().stopAll();
    QCOMPARE(finished.size(), 3);
    for (const QList<QVariant> &one : std::as_const(finished)) {
        QVERIFY(reportOf(one).cancelled);
        QCOMPARE(reportOf(one).findings.size(), 1);
    }
    f.footage.openGate();
    QVERIFY(!f.find({media}).cancelled);
}

void tst_NxRelinkSearch::searchesEndWhenTheDiskThreadIsClosed()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    (void)f.search();
    f.disk->close();
    const NxRelinkReport report = f.find({media});
    QVERIFY(report.cancelled);
    QCOMPARE(f.lines(report), QStringList(QStringLiteral("a.mp4: none")));
}

void tst_NxRelinkSearch::itMayDieInTheMiddle()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.setFingerprint(media, {1, 2, 3});
    writeMany(f, QStringLiteral("new"), 500);
    for (int asked = 0; asked < 20; ++asked) {
        QSignalSpy finished(&f.search(), &INxRelinkSearch::finished);
        const int before = f.footage.names().size();
        for (int i = 0; i < 3; ++i)
            (void)f.search().start(asItems({media}), f.path(QStringLiteral("new")));
        // Each time a little further on.
        QTRY_VERIFY(f.footage.names().size() >= before + asked);
        const int told = finished.size();
        f.m_search.reset();
        QCoreApplication::processEvents();
        QCOMPARE(finished.size(), told);
        f.disk.reset();
    }
    for (const QString &id : f.footage.starts())
        QTRY_VERIFY(isProcessGone(id.toLongLong()));
}

void tst_NxRelinkSearch::itMayDieInItsSignals_data()
{
    QTest::addColumn<bool>("inProgress");
    QTest::newRow("progress") << true;
    QTest::newRow("finished") << false;
}

void tst_NxRelinkSearch::itMayDieInItsSignals()
{
    QFETCH(bool, inProgress);
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.setFingerprint(media, {1, 2, 3});
    f.write(QStringLiteral("new/1.mp4"), "x");
    if (inProgress)
        f.write(QStringLiteral("new/gated.mp4"), "x");
    bool died = false;
    const auto die = [&f, &died] {
        died = true;
        f.m_search.reset();
    };
    if (inProgress)
        connect(&f.search(), &INxRelinkSearch::progress, this, die);
    else
        connect(&f.search(), &INxRelinkSearch::finished, this, die);
    for (int i = 0; i < 3; ++i)
        (void)f.search().start(asItems({media}), f.path(QStringLiteral("new")));
    QTRY_VERIFY_WITH_TIMEOUT(died, Patience);
    QVERIFY(!f.m_search);
}

NX_TEST_MAIN(tst_NxRelinkSearch)
#include "tst_NxRelinkSearch.moc"
