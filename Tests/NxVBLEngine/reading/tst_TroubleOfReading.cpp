// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ReadProject.h"

#include <EngineEvents.h>
#include <Support/NxTestMain.h>

#include <QElapsedTimer>
#include <QTest>

#include <signal.h>

using namespace std::chrono_literals;

namespace {

constexpr auto Facts = NxFootageReader::wFacts;
constexpr auto Pictures = NxFootageReader::wPictures;
constexpr auto Fingerprint = NxFootageReader::wFingerprint;

} // namespace

/// Files that cannot be read or kill whoever reads them, drives that do not answer, workers that
/// cannot be had, and projects that close in between.
class tst_TroubleOfReading : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whatFailedStaysFailedUntilItIsAskedFor_data();
    void whatFailedStaysFailedUntilItIsAskedFor();
    void aKillerThatNobodyHadSeenIsNotTriedAgain();
    void aKillerIsTriedAgainWhenItChanged();
    void picturesThatFailedAreNotTriedAgain_data();
    void picturesThatFailedAreNotTriedAgain();
    void workersKilledFromOutsideCostNothing_data();
    void workersKilledFromOutsideCostNothing();
    void silentDrivesAreParkedAndComeBack();
    void parkedMediaMayBeRemoved();
    void missingFilesAreLeftAlone();
    void whatVanishesKeepsWhatIsKnownOfIt_data();
    void whatVanishesKeepsWhatIsKnownOfIt();
    void whatIsThereAndCannotBeOpenedHasFailed();
    void aFileThatWasAwayBeforeItWasReadStaysUnread();
    void whoAsksForAVanishedFileIsAnswered();
    void withoutAProgramAllStaysUnread();
    void anotherVersionIsTrouble();
    void theProjectMayCloseWhileItIsRead();
    void theProjectMayCloseInEverySignal_data();
    void theProjectMayCloseInEverySignal();
};

void tst_TroubleOfReading::whatFailedStaysFailedUntilItIsAskedFor_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<int>("tries");
    QTest::newRow("damaged") << QStringLiteral("fails.mp4")
                             << QStringLiteral("The file is damaged.") << 1;
    QTest::newRow("crashes") << QStringLiteral("crash.mp4")
                             << QStringLiteral("Reading the file crashed its reader.") << 2;
    QTest::newRow("hangs") << QStringLiteral("hang-opened.mp4")
                           << QStringLiteral("Reading the file took too long.") << 2;
    QTest::newRow("takes memory") << QStringLiteral("memory.mp4")
                                  << QStringLiteral("Reading the file takes too much memory.") << 2;
}

void tst_TroubleOfReading::whatFailedStaysFailedUntilItIsAskedFor()
{
    QFETCH(QString, name);
    QFETCH(int, tries);
    ReadProject f;
    if (name.startsWith(QLatin1String("hang")))
        f.settings.factsLimit = 3s;
    NxEngineMedia *bad = f.add(name);
    const NxEngineMedia *good = f.add("good.mp4");
    QVERIFY(f.startAndFinish());
    QCOMPARE(f.state(bad).facts, NxFootageStatus::Failed);
    QTEST(f.state(bad).reason, "reason");
    QVERIFY(bad->isUnavailable());
    QCOMPARE(f.state(good).facts, NxFootageStatus::Done);
    QCOMPARE(f.factsAsked(name), tries);
    f.see(bad);
    f.reader().wantVisible(bad);
    f.reader().want({bad}, Facts | Pictures);
    QVERIFY(f.finish());
    f.reader().stop();
    QVERIFY(f.startAndFinish());
    QCOMPARE(f.factsAsked(name), tries);
    QCOMPARE(f.picturesAsked(name), 0);
    f.reader().read({bad}, Facts | Pictures);
    QVERIFY(f.finish());
    QCOMPARE(f.factsAsked(name), 2 * tries);
    QCOMPARE(f.read.count(name), 2);
}

void tst_TroubleOfReading::aKillerThatNobodyHadSeenIsNotTriedAgain()
{
    ReadProject f;
    const QString name = QStringLiteral("crash.mp4");
    const NxEngineMedia *bad = f.add(name, nullptr, false);
    QVERIFY(f.startAndFinish());
    QCOMPARE(f.state(bad).facts, NxFootageStatus::Failed);
    f.see(bad);
    QVERIFY(f.reader().isIdle());
    QCOMPARE(bad->stamp(), ScriptedFootage::stampOf(bad->filePath()));
    QCOMPARE(f.state(bad).facts, NxFootageStatus::Failed);
    f.reader().noteSeen(bad->id(), {100, 1}); // From now on changes count.
    QTRY_VERIFY(!f.looksWanted.empty());
}

void tst_TroubleOfReading::aKillerIsTriedAgainWhenItChanged()
{
    ReadProject f;
    const QString name = QStringLiteral("crash.mp4");
    const NxEngineMedia *bad = f.add(name);
    QVERIFY(f.startAndFinish());
    f.reader().noteSeen(bad->id(), {100, 1});
    QTRY_VERIFY(!f.looksWanted.empty());
    f.reader().noteSeen(bad->id(), {100, 1});
    QVERIFY(f.finish());
    QCOMPARE(f.factsAsked(name), 4);
}

void tst_TroubleOfReading::picturesThatFailedAreNotTriedAgain_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("tries");
    QTest::newRow("none can be made") << QStringLiteral("no-pictures.mp4") << 1;
    QTest::newRow("unreadable by now") << QStringLiteral("unreadable-pictures.mp4") << 1;
    QTest::newRow("hangs") << QStringLiteral("hang-pictures.mp4") << 2;
}

void tst_TroubleOfReading::picturesThatFailedAreNotTriedAgain()
{
    QFETCH(QString, name);
    QFETCH(int, tries);
    ReadProject f;
    if (name.startsWith(QLatin1String("hang")))
        f.settings.picturesLimit = 3s;
    NxEngineMedia *media = f.add(name);
    QVERIFY(f.startAndFinish());
    QCOMPARE(f.state(media).facts, NxFootageStatus::Done);
    QCOMPARE(f.state(media).cover, NxFootageStatus::Failed);
    QCOMPARE(f.state(media).strip, NxFootageStatus::Failed);
    QVERIFY(!f.state(media).coverReason.isEmpty());
    QCOMPARE(f.state(media).coverPath, QString());
    QCOMPARE(f.picturesAsked(name), tries);
    f.see(media);
    f.reader().wantVisible(media);
    f.reader().want({media}, Facts | Pictures);
    QVERIFY(f.finish());
    QCOMPARE(f.picturesAsked(name), tries);
    f.reader().read({media}, Facts | Pictures);
    QVERIFY(f.finish());
    QCOMPARE(f.picturesAsked(name), 2 * tries);
}

void tst_TroubleOfReading::workersKilledFromOutsideCostNothing_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("killed") << SIGKILL;
    QTest::newRow("crashed") << SIGSEGV;
    QTest::newRow("stopped") << SIGSTOP;
}

void tst_TroubleOfReading::workersKilledFromOutsideCostNothing()
{
    QFETCH(int, signal);
    ReadProject f;
    if (signal == SIGSTOP)
        f.settings.factsLimit = 5s;
    const NxEngineMedia *hit = f.add("gated.mp4");
    const QVector<NxEngineMedia *> others = f.addMany(20);
    f.reader().start();
    QTRY_COMPARE(f.footage.requests().size(), 1);
    const std::vector<qint64> ids = f.reader().workerProcessIds();
    QCOMPARE(ids.size(), size_t(1));
    QCOMPARE(kill(pid_t(ids.front()), signal), 0);
    f.footage.openGate();
    QVERIFY(f.finish());
    QCOMPARE(f.state(hit).cover, NxFootageStatus::Done);
    for (const NxEngineMedia *each : others)
        QCOMPARE(f.state(each).cover, NxFootageStatus::Done);
    QTRY_VERIFY(isProcessGone(ids.front()));
}

void tst_TroubleOfReading::silentDrivesAreParkedAndComeBack()
{
    ReadProject f;
    f.settings.slowOpening = 1s;
    f.settings.openingLimit = 3s;
    f.settings.silentPause = 10s;
    QVector<NxEngineMedia *> dead;
    for (int i = 0; i < 10; ++i)
        dead.append(f.add(QStringLiteral("dead/slow-%1.mp4").arg(i)));
    const QVector<NxEngineMedia *> others = f.addMany(10);
    QVERIFY(f.startAndFinish());
    for (const NxEngineMedia *each : others)
        QCOMPARE(f.state(each).cover, NxFootageStatus::Done);
    for (const NxEngineMedia *each : std::as_const(dead))
        QCOMPARE(f.state(each).facts, NxFootageStatus::Waiting);
    QCOMPARE(f.footage.names().filter(QStringLiteral("slow")).size(), 1);
    f.footage.openGate();
    for (const NxEngineMedia *each : std::as_const(dead))
        QTRY_COMPARE_WITH_TIMEOUT(f.state(each).cover, NxFootageStatus::Done, NxPatience);
    for (const NxEngineMedia *each : std::as_const(dead))
        QCOMPARE(f.read.count(each->name()), 1);
}

void tst_TroubleOfReading::parkedMediaMayBeRemoved()
{
    ReadProject f;
    f.settings.slowOpening = 1s;
    f.settings.openingLimit = 3s;
    QVector<NxEngineMedia *> dead;
    for (int i = 0; i < 5; ++i)
        dead.append(f.add(QStringLiteral("dead/slow-%1.mp4").arg(i)));
    QVERIFY(f.startAndFinish());
    f.footage.openGate();
    QVERIFY(f.items->removeMediaItems(f.section, {dead.at(0), dead.at(1), dead.at(2), dead.at(3)}));
    QTRY_COMPARE_WITH_TIMEOUT(f.state(dead.at(4)).cover, NxFootageStatus::Done, NxPatience);
}

void tst_TroubleOfReading::missingFilesAreLeftAlone()
{
    ReadProject f;
    NxEngineMedia *missing = f.add("missing.mp4");
    NxEngineMedia *away = f.add("away.mp4");
    f.memory.setPresence(missing, NxPresence::Missing);
    f.memory.setPresence(away, NxPresence::Unreachable);
    f.reader().wantVisible(missing);
    QVERIFY(f.startAndFinish());
    QVERIFY(f.footage.requests().isEmpty());
    f.memory.setPresence(missing, NxPresence::Present);
    f.see(missing);
    QVERIFY(f.finish());
    QCOMPARE(f.state(missing).cover, NxFootageStatus::Done);
    QCOMPARE(f.state(away).facts, NxFootageStatus::Waiting);
}

void tst_TroubleOfReading::whatVanishesKeepsWhatIsKnownOfIt_data()
{
    QTest::addColumn<bool>("readsAll");
    QTest::newRow("when it was asked for") << false;
    QTest::newRow("when all is read") << true;
}

void tst_TroubleOfReading::whatVanishesKeepsWhatIsKnownOfIt()
{
    QFETCH(bool, readsAll);
    ReadProject f;
    NxEngineMedia *media = f.add("vanishes.mp4");
    f.reader().want({media}, Facts | Fingerprint);
    QVERIFY(f.finish());
    const NxFootageRecord before = media->footage();
    QCOMPARE(before.state, NxReadState::Read);
    QVERIFY(!before.fingerprint.isNull());
    QVERIFY(QFile::remove(media->filePath()));
    if (readsAll)
        f.reader().start();
    else
        f.reader().want({media}, Pictures);
    QVERIFY(f.finish());
    const NxFootageRecord after = media->footage();
    QCOMPARE(after.state, NxReadState::Read);
    QCOMPARE(after.facts.reel, before.facts.reel);
    QVERIFY(after.fingerprint == before.fingerprint);
    QVERIFY(after.stamp == before.stamp);
    QVERIFY(std::count(f.looksWanted.begin(), f.looksWanted.end(), media->id()) > 0);
}

void tst_TroubleOfReading::whatIsThereAndCannotBeOpenedHasFailed()
{
    ReadProject f;
    NxEngineMedia *media = f.add("vanishes.mp4");
    f.reader().want({media}, Facts);
    QVERIFY(f.finish());
    QVERIFY(QFile::remove(media->filePath()));
    f.reader().want({media}, Pictures);
    QVERIFY(f.finish());
    QCOMPARE(media->readState(), NxReadState::Read);
    f.reader().want({media}, Pictures); // Nobody has found out meanwhile that it is away.
    QVERIFY(f.finish());
    QCOMPARE(media->readState(), NxReadState::Failed);
}

void tst_TroubleOfReading::aFileThatWasAwayBeforeItWasReadStaysUnread()
{
    ReadProject f;
    NxEngineMedia *media = f.add("gated-vanishes.mp4");
    f.reader().want({media}, Facts);
    QTRY_COMPARE(f.footage.requests().size(), 1);
    QVERIFY(QFile::remove(media->filePath()));
    f.memory.setPresence(media, NxPresence::Missing);
    f.footage.openGate();
    QVERIFY(f.finish());
    QCOMPARE(media->readState(), NxReadState::Unread);
}

void tst_TroubleOfReading::whoAsksForAVanishedFileIsAnswered()
{
    ReadProject f;
    NxEngineMedia *media = f.add("vanishes.mp4");
    f.reader().want({media}, Facts);
    QVERIFY(f.finish());
    QVERIFY(QFile::remove(media->filePath()));
    f.reader().read({media}, Facts);
    QVERIFY(f.finish());
    QCOMPARE(f.state(media).facts, NxFootageStatus::Failed);
    QCOMPARE(f.state(media).reason, QStringLiteral("The file is missing."));
}

void tst_TroubleOfReading::withoutAProgramAllStaysUnread()
{
    ReadProject f;
    f.settings.program.clear();
    f.settings.whyNone = QStringLiteral("It is not installed.");
    const QVector<NxEngineMedia *> media = f.addMany(100);
    NxTestLog::expectError(QStringLiteral("It is not installed."));
    QCOMPARE(f.reader().trouble(), QString());
    QVERIFY(f.startAndFinish());
    QCOMPARE(f.reader().trouble(), QStringLiteral("It is not installed."));
    for (const NxEngineMedia *each : media)
        QCOMPARE(f.state(each).facts, NxFootageStatus::Waiting);
    f.reader().read({media.first()}, Facts | Pictures);
    QVERIFY(f.finish());
    f.see(media.last());
    QTRY_VERIFY(f.reader().isIdle());
    QVERIFY(f.read.isEmpty());
}

void tst_TroubleOfReading::anotherVersionIsTrouble()
{
    ReadProject f(2, QStringLiteral("otherversion"));
    const QVector<NxEngineMedia *> media = f.addMany(5);
    NxTestLog::expectError(QStringLiteral("version"));
    QVERIFY(f.startAndFinish());
    QVERIFY(f.reader().trouble().contains(QString::number(NxWorkerProtocol::Version + 41)));
    QCOMPARE(media.first()->readState(), NxReadState::Unread);
}

void tst_TroubleOfReading::theProjectMayCloseWhileItIsRead()
{
    ReadProject f(2);
    f.add("hang-opened.mp4");
    f.add("hang-unopened.mp4");
    f.addMany(50);
    f.reader().start();
    QTRY_COMPARE(f.footage.requests().size(), 2);
    const std::vector<qint64> ids = f.reader().workerProcessIds();
    QElapsedTimer clock;
    clock.start();
    f.m_reader.reset();
    QVERIFY2(clock.elapsed() < 5'000, "closing waits for no worker");
    for (const qint64 id : ids)
        QTRY_VERIFY(isProcessGone(id));
}

void tst_TroubleOfReading::theProjectMayCloseInEverySignal_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("a file was read") << 0;
    QTest::newRow("pictures were made") << 1;
    QTest::newRow("progress") << 2;
    QTest::newRow("idle") << 3;
}

void tst_TroubleOfReading::theProjectMayCloseInEverySignal()
{
    QFETCH(int, signal);
    ReadProject f;
    f.addMany(20);
    NxFootageReader *reader = &f.reader();
    bool closed = false;
    const auto close = [&f, &closed] {
        closed = true;
        f.m_reader.reset();
    };
    if (signal == 0)
        connect(reader, &NxFootageReader::itemRead, this, close);
    else if (signal == 1)
        connect(reader, &NxFootageReader::picturesMade, this, close);
    else if (signal == 2)
        connect(reader, &NxFootageReader::progress, this, close);
    else
        connect(reader, &NxFootageReader::idle, this, close);
    reader->start();
    QTRY_VERIFY(closed);
    QCoreApplication::processEvents();
}

NX_TEST_MAIN(tst_TroubleOfReading)
#include "tst_TroubleOfReading.moc"
