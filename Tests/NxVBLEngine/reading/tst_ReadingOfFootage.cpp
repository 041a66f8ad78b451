// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ReadProject.h"

#include <EngineEvents.h>
#include <Support/NxTestMain.h>

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include <algorithm>

namespace {

constexpr auto Facts = NxFootageReader::wFacts;
constexpr auto Pictures = NxFootageReader::wPictures;
constexpr auto Fingerprint = NxFootageReader::wFingerprint;

const QString Film = QStringLiteral("film.mp4");

} // namespace

/// In which order and how often files are read while all is well.
class tst_ReadingOfFootage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void factsOfAllComeBeforePicturesInTheOrderOfImport();
    void whatIsFoundStandsInTheProject();
    void whatIsVisibleComesFirst();
    void nothingIsReadUnasked();
    void wantingReadsWhatIsNotReadYet();
    void lookingAtAFileThatIsReadDisturbsNobody();
    void readingAgainIsReadingAnew();
    void factsAloneKeepThePictures();
    void aFingerprintCanBeWantedAlone();
    void stoppedReadersReadNothingMore();
    void newMediaAreReadAsTheyCome();
    void readFilesAreNotReadAgain();
    void aFileIsNotReadTwiceWhileItIsRead();
    void picturesThatVanishedAreMadeAgain();
    void aChangedFileIsReadWhenItIsQuiet();
    void aFileThatKeepsChangingIsLeftAlone();
    void halfWrittenFilesWaitUntilTheyAreQuiet();
    void changedFilesThatGoAreForgotten();
    void aRelinkedFileGetsTheFactsOfTheNewOne();
    void removedMediaMayBeReadMeanwhile();
    void everyFileIsAnnouncedOnceAndFoldersAtTheEnd();
    void progressEndsWithAllOfThem();
    void slowObserversDoNotHoldTheEventLoop();
    void readOnlyProjectsAreReadToo();
};

void tst_ReadingOfFootage::factsOfAllComeBeforePicturesInTheOrderOfImport()
{
    ReadProject f;
    NxEngineFolder *later = f.addFolder(f.section, QStringLiteral("later"));
    NxEngineFolder *earlier = f.addFolder(f.section, QStringLiteral("earlier"));
    QStringList names;
    for (int i = 0; i < 40; ++i) {
        names.append(QStringLiteral("%1.mp4").arg(i));
        f.add(names.last(), i % 2 ? earlier : later);
    }
    QVERIFY(f.startAndFinish());
    QStringList expected;
    for (const QString &name : std::as_const(names))
        expected.append(name + QStringLiteral(" 1"));
    for (const QString &name : std::as_const(names))
        expected.append(name + QStringLiteral(" 14"));
    QCOMPARE(f.footage.requests(), expected);
    QCOMPARE(f.read, names);
    QCOMPARE(f.pictured, names);
}

void tst_ReadingOfFootage::whatIsFoundStandsInTheProject()
{
    ReadProject f;
    const NxEngineMedia *media = f.add(Film);
    QCOMPARE(f.state(media).facts, NxFootageStatus::Waiting);
    QVERIFY(f.startAndFinish());
    const NxFootageRecord record = media->footage();
    QCOMPARE(record.state, NxReadState::Read);
    QCOMPARE(record.facts.streams.width, 1920);
    QCOMPARE(record.facts.reel, Film);
    QCOMPARE(record.facts.streams.bitDepth, 8);
    QCOMPARE(record.stamp, ScriptedFootage::stampOf(media->filePath()));
    const NxFootageState state = f.state(media);
    QCOMPARE(state.facts, NxFootageStatus::Done);
    QCOMPARE(state.cover, NxFootageStatus::Done);
    QCOMPARE(state.strip, NxFootageStatus::Done);
    QCOMPARE(state.fingerprint.size(), 32);
    QVERIFY(state.coverPath.startsWith(f.footage.cacheFolder()));
    QVERIFY(state.coverPath != state.stripPath);
}

void tst_ReadingOfFootage::whatIsVisibleComesFirst()
{
    ReadProject f;
    const QVector<NxEngineMedia *> media = f.addMany(30);
    f.reader().start();
    f.reader().wantVisible(media.at(25));
    f.reader().wantVisible(media.at(20));
    QVERIFY(f.finish());
    const QStringList requests = f.footage.requests();
    QCOMPARE(requests.mid(0, 3),
             QStringList({QStringLiteral("25.mp4 1"), QStringLiteral("20.mp4 1"),
                          QStringLiteral("0.mp4 1")}));
    QCOMPARE(requests.size(), 60);
    const int pictures = requests.indexOf(QStringLiteral("25.mp4 14"));
    QVERIFY2(pictures < requests.indexOf(QStringLiteral("29.mp4 1")),
             "pictures of what is visible come before facts of what is not");
}

void tst_ReadingOfFootage::nothingIsReadUnasked()
{
    ReadProject f;
    f.addMany(3);
    QVERIFY(f.reader().isIdle());
    f.reader().noteSeen(1, {1, 1});
    QVERIFY(f.reader().isIdle());
    QVERIFY(f.footage.starts().isEmpty());
    QVERIFY(f.reader().workerProcessIds().empty());
}

void tst_ReadingOfFootage::wantingReadsWhatIsNotReadYet()
{
    ReadProject f;
    const QVector<NxEngineMedia *> media = f.addMany(3);
    f.reader().want({media.at(1)}, Facts);
    QVERIFY(f.finish());
    QCOMPARE(f.footage.requests(), QStringList(QStringLiteral("1.mp4 1")));
    f.reader().want({media.at(1)}, Facts);
    QVERIFY(f.finish()); // Idle is said even when nothing is to be done.
    QCOMPARE(f.footage.requests().size(), 1);
    f.reader().want({media.at(1), media.at(2)}, Facts | Pictures);
    QVERIFY(f.finish());
    QStringList later = f.footage.requests().mid(1);
    later.sort();
    QCOMPARE(later, QStringList({QStringLiteral("1.mp4 14"), QStringLiteral("2.mp4 1"),
                                 QStringLiteral("2.mp4 14")}));
    QCOMPARE(media.at(0)->readState(), NxReadState::Unread);
}

void tst_ReadingOfFootage::lookingAtAFileThatIsReadDisturbsNobody()
{
    ReadProject f;
    const NxEngineMedia *media = f.add(Film);
    QVERIFY(f.startAndFinish());
    const int idles = f.idles;
    f.progress.clear();
    f.reader().wantVisible(media);
    f.see(media);
    QTimer later;
    later.setSingleShot(true);
    later.start(0);
    QTRY_VERIFY(!later.isActive());
    QCoreApplication::processEvents();
    QCOMPARE(f.idles, idles);
    QCOMPARE(f.progress, QStringList());
}

void tst_ReadingOfFootage::readingAgainIsReadingAnew()
{
    ReadProject f;
    NxEngineMedia *media = f.add(Film);
    QVERIFY(f.startAndFinish());
    f.reader().read({media}, Facts | Pictures);
    QVERIFY(f.finish());
    const int anew = rwFingerprint | rwCover | rwStrip | rwAnew;
    QCOMPARE(f.footage.requests().mid(2),
             QStringList({Film + QStringLiteral(" 1"), Film + QStringLiteral(" %1").arg(anew)}));
    QCOMPARE(f.state(media).cover, NxFootageStatus::Done);
    f.reader().read({media}, Facts | Pictures);
    QVERIFY(f.finish());
    QCOMPARE(f.footage.requests().size(), 6);
}

void tst_ReadingOfFootage::factsAloneKeepThePictures()
{
    ReadProject f;
    NxEngineMedia *media = f.add(Film);
    f.reader().want({media}, Facts | Pictures);
    QVERIFY(f.finish());
    f.reader().read({media}, Facts);
    QVERIFY(f.finish());
    QCOMPARE(f.factsAsked(Film), 2);
    QCOMPARE(f.picturesAsked(Film), 1);
    QCOMPARE(f.state(media).cover, NxFootageStatus::Done);
    QVERIFY(!f.state(media).fingerprint.isEmpty());
}

void tst_ReadingOfFootage::aFingerprintCanBeWantedAlone()
{
    ReadProject f;
    NxEngineMedia *media = f.add(Film);
    f.reader().want({media}, Facts | Fingerprint);
    QVERIFY(f.finish());
    QCOMPARE(f.footage.requests(), QStringList(Film + QStringLiteral(" 3")));
    QVERIFY(!f.state(media).fingerprint.isEmpty());
    NxEngineMedia *other = f.add("other.mp4");
    f.reader().want({other}, Facts);
    QVERIFY(f.finish());
    QVERIFY(f.state(other).fingerprint.isEmpty());
    f.reader().want({media, other}, Fingerprint);
    QVERIFY(f.finish());
    QVERIFY(!f.state(other).fingerprint.isEmpty());
    QCOMPARE(f.factsAsked(Film), 1);
}

void tst_ReadingOfFootage::stoppedReadersReadNothingMore()
{
    ReadProject f;
    f.add("gated.mp4");
    const QVector<NxEngineMedia *> media = f.addMany(60);
    f.reader().start();
    QTRY_COMPARE(f.footage.requests().size(), 1);
    f.reader().stop();
    f.footage.openGate();
    QVERIFY(f.finish());
    const auto isUnread = [](const NxEngineMedia *each) {
        return each->readState() == NxReadState::Unread;
    };
    QVERIFY(std::count_if(media.begin(), media.end(), isUnread) > 40);
    QVERIFY(f.pictured.isEmpty());
    f.see(media.last());
    QVERIFY(f.reader().isIdle());
    QVERIFY(f.startAndFinish());
    QVERIFY(std::none_of(media.begin(), media.end(), isUnread));
    QCOMPARE(f.footage.names(rwFacts).size(), 61);
}

void tst_ReadingOfFootage::newMediaAreReadAsTheyCome()
{
    ReadProject f;
    QVERIFY(f.startAndFinish());
    const NxEngineMedia *media = f.add(Film);
    QVERIFY(f.finish());
    QCOMPARE(f.state(media).cover, NxFootageStatus::Done);
    f.undo->undo();
    f.undo->redo();
    QTRY_VERIFY(f.reader().isIdle());
    QCOMPARE(f.footage.requests().size(), 2);
}

void tst_ReadingOfFootage::readFilesAreNotReadAgain()
{
    ReadProject f;
    const QVector<NxEngineMedia *> media = f.addMany(5);
    QVERIFY(f.startAndFinish());
    for (const NxEngineMedia *each : media)
        f.see(each);
    f.reader().stop();
    QVERIFY(f.startAndFinish());
    QCOMPARE(f.footage.requests().size(), 10);
}

void tst_ReadingOfFootage::aFileIsNotReadTwiceWhileItIsRead()
{
    ReadProject f;
    const QString gated = QStringLiteral("gated.mp4");
    NxEngineMedia *media = f.add(gated);
    f.reader().start();
    QTRY_COMPARE(f.footage.requests().size(), 1);
    f.see(media);
    f.reader().wantVisible(media);
    f.reader().want({media}, Facts);
    f.footage.openGate();
    QVERIFY(f.finish());
    QCOMPARE(f.footage.requests(),
             QStringList({gated + QStringLiteral(" 1"), gated + QStringLiteral(" 14")}));
    QCOMPARE(f.read, QStringList(gated));
}

void tst_ReadingOfFootage::picturesThatVanishedAreMadeAgain()
{
    ReadProject f;
    NxEngineMedia *media = f.add(Film);
    QVERIFY(f.startAndFinish());
    f.reader().notePictureGone(media);
    QCOMPARE(f.state(media).cover, NxFootageStatus::Waiting);
    QVERIFY(f.finish());
    QCOMPARE(f.state(media).cover, NxFootageStatus::Done);
    QCOMPARE(f.factsAsked(Film), 1);
    QCOMPARE(f.picturesAsked(Film), 2);
}

void tst_ReadingOfFootage::aChangedFileIsReadWhenItIsQuiet()
{
    ReadProject f;
    NxEngineMedia *media = f.add(Film);
    QVERIFY(f.startAndFinish());
    QCOMPARE(f.footage.file(Film, "longer than before"), media->filePath());
    QElapsedTimer clock;
    clock.start();
    f.see(media);
    f.see(media);
    QVERIFY(f.reader().isIdle());
    QTRY_COMPARE(f.looksWanted, std::vector<qint64>{media->id()});
    QVERIFY(clock.elapsed() >= NxQuietFiles::Quiet - 1); // Two clocks are cut off.
    f.see(media);
    QVERIFY(f.finish());
    QCOMPARE(f.factsAsked(Film), 2);
    QCOMPARE(f.picturesAsked(Film), 2);
    QCOMPARE(media->stamp(), ScriptedFootage::stampOf(media->filePath()));
    f.see(media);
    QVERIFY(f.reader().isIdle());
}

void tst_ReadingOfFootage::aFileThatKeepsChangingIsLeftAlone()
{
    ReadProject f;
    NxEngineMedia *media = f.add(Film);
    QVERIFY(f.startAndFinish());
    for (qint64 size = 100; size < 102; ++size) {
        f.looksWanted.clear();
        f.reader().noteSeen(media->id(), {size, 1});
        QTRY_VERIFY(!f.looksWanted.empty());
        QVERIFY(f.reader().isIdle());
    }
    QCOMPARE(f.footage.requests().size(), 2);
}

void tst_ReadingOfFootage::halfWrittenFilesWaitUntilTheyAreQuiet()
{
    ReadProject f;
    NxEngineMedia *media = f.add("half-written.mp4");
    QVERIFY(f.startAndFinish());
    QCOMPARE(f.state(media).facts, NxFootageStatus::Waiting);
    QVERIFY(f.read.isEmpty());
    f.see(media);
    QVERIFY(f.reader().isIdle());
    QTRY_VERIFY(!f.looksWanted.empty());
    f.see(media);
    QVERIFY(!f.reader().isIdle());
    QVERIFY(f.finish());
    QCOMPARE(f.footage.requests().size(), 2);
}

void tst_ReadingOfFootage::changedFilesThatGoAreForgotten()
{
    ReadProject f;
    NxEngineMedia *gone = f.add("gone.mp4");
    NxEngineMedia *removed = f.add("removed.mp4");
    NxEngineMedia *there = f.add("there.mp4");
    QVERIFY(f.startAndFinish());
    for (const NxEngineMedia *each : {gone, removed, there})
        f.reader().noteSeen(each->id(), {100, 1});
    f.memory.setPresence(gone, NxPresence::Missing);
    QVERIFY(f.items->removeMediaItems(f.section, {removed}));
    QTRY_COMPARE(f.looksWanted, std::vector<qint64>{there->id()});
}

void tst_ReadingOfFootage::aRelinkedFileGetsTheFactsOfTheNewOne()
{
    ReadProject f;
    NxEngineMedia *media = f.add("gated.mp4");
    f.reader().start();
    QTRY_COMPARE(f.footage.requests().size(), 1);
    QVERIFY(f.items->relinkMedia(media, f.footage.file(Film)));
    f.footage.openGate();
    QVERIFY(f.finish());
    QCOMPARE(media->footage().facts.reel, Film);
    QCOMPARE(f.factsAsked(Film), 1);
    QCOMPARE(f.read.size(), 1);
    QVERIFY(f.items->relinkMedia(media, f.footage.file(QStringLiteral("third.mp4"))));
    QVERIFY(f.finish());
    QCOMPARE(media->footage().facts.reel, QStringLiteral("third.mp4"));
}

void tst_ReadingOfFootage::removedMediaMayBeReadMeanwhile()
{
    ReadProject f;
    NxEngineMedia *media = f.add("gated.mp4");
    const QVector<NxEngineMedia *> others = f.addMany(40);
    f.reader().start();
    QTRY_COMPARE(f.footage.requests().size(), 1);
    QVERIFY(f.items->removeMediaItems(f.section, {media, others.at(39)}));
    EngineEvents events(f.category);
    f.footage.openGate();
    QVERIFY(f.finish());
    QVERIFY(events.take().filter(QStringLiteral("gated")).isEmpty());
    QCOMPARE(f.factsAsked(QStringLiteral("39.mp4")), 0);
    f.undo->undo();
    QTRY_COMPARE(f.state(others.at(39)).cover, NxFootageStatus::Done);
    QTRY_COMPARE(f.state(media).cover, NxFootageStatus::Done);
    QCOMPARE(f.factsAsked(QStringLiteral("gated.mp4")), 1);
}

void tst_ReadingOfFootage::everyFileIsAnnouncedOnceAndFoldersAtTheEnd()
{
    ReadProject f(2);
    NxEngineFolder *parent = f.addFolder(f.section, QStringLiteral("parent"));
    NxEngineFolder *child = f.addFolder(parent, QStringLiteral("child"));
    for (int i = 0; i < 40; ++i)
        f.add(QStringLiteral("%1.mp4").arg(i), i % 2 ? parent : child);
    EngineEvents events(f.category);
    QList<INxAbstractMediaItem *> all;
    for (NxEngineMedia *media : f.memory.livingMedia())
        all.append(media);
    f.reader().want(all, Facts);
    QVERIFY(f.finish());
    const QStringList told = events.take();
    QCOMPARE(told.size(), 42);
    for (int i = 0; i < 40; ++i)
        QCOMPARE(told.mid(0, 40).count(QStringLiteral("state %1.mp4").arg(i)), 1);
    QCOMPARE(told.mid(40), QStringList({QStringLiteral("all changed child"),
                                        QStringLiteral("all changed parent")}));
}

void tst_ReadingOfFootage::progressEndsWithAllOfThem()
{
    ReadProject f;
    f.addMany(25);
    QVERIFY(f.startAndFinish());
    QCOMPARE(f.progress.last(), QStringLiteral("25/25"));
    QCOMPARE(f.idles, 1);
    qint64 last = 0;
    for (const QString &each : std::as_const(f.progress)) {
        const qint64 read = each.section(QLatin1Char('/'), 0, 0).toLongLong();
        QVERIFY(read >= last);
        QVERIFY(read <= each.section(QLatin1Char('/'), 1).toLongLong());
        last = read;
    }
    f.add("another.mp4");
    QVERIFY(f.finish());
    QCOMPARE(f.progress.last(), QStringLiteral("1/1")); // It counts from when all was idle.
}

void tst_ReadingOfFootage::slowObserversDoNotHoldTheEventLoop()
{
    ReadProject f(4);
    f.addMany(64);
    int told = 0;
    connect(&f.reader(), &NxFootageReader::itemRead, this, [&told] {
        ++told;
        QElapsedTimer clock;
        clock.start();
        while (!clock.hasExpired(1)) {}
    });
    f.reader().start();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents(); // The requests are with the workers.
    QElapsedTimer clock;
    clock.start();
    while (f.footage.requests().size() < 64 && !clock.hasExpired(60'000))
        QThread::yieldCurrentThread(); // The answers gather while this thread is busy.
    int most = 0;
    QTimer heart;
    connect(&heart, &QTimer::timeout, this, [&] { most = std::max(most, std::exchange(told, 0)); });
    heart.start(0);
    QVERIFY(f.finish());
    QCOMPARE(f.read.size(), 64);
    QVERIFY(most > 0);
    QVERIFY2(most <= 15, qPrintable(QString::number(most)));
}

void tst_ReadingOfFootage::readOnlyProjectsAreReadToo()
{
    ReadProject f;
    const NxEngineMedia *media = f.add(Film);
    f.memory.setReadOnly(true);
    QVERIFY(f.startAndFinish());
    QCOMPARE(f.state(media).cover, NxFootageStatus::Done);
}

NX_TEST_MAIN(tst_ReadingOfFootage)
#include "tst_ReadingOfFootage.moc"
