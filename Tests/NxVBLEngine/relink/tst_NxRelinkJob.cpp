// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/relink/NxRelinkJob.h>

#include "MovedProject.h"

#include <NxVBLEngine/Support/NxAsNobody.h>
#include <RawFiles.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QTest>

#include <vector>

namespace {

/// Takes everything at once.
class Collector final : public INxWalkListener
{
public:
    void onWalked(NxWalkEntry entry) override { entries.push_back(std::move(entry)); }
    bool isCancelled() override { return false; }
    bool wantsPause() override { return false; }

    std::vector<NxWalkEntry> entries;
};

std::vector<NxWalkEntry> walked(const QString &directory)
{
    Collector collector;
    NxDirectoryWalker walker({NxDirectoryWalker::named(directory)});
    (void)walker.walk(&collector);
    return collector.entries;
}

/// A job over a folder, on this thread, with a test for workers.
struct Job
{
    Job(MovedProject *f, const QList<INxAbstractMediaItem *> &items,
        const QString &folder = QStringLiteral("new"))
        : project(f),
          job(1, items, &f->memory)
    {
        job.append(walked(f->path(folder)));
        job.endWalk();
        job.work(Long);
    }
    /// Names of the files that workers are asked for, each with the wishes.
    QStringList asked(int most = 1'000)
    {
        QStringList names;
        for (const NxReadRequest &request : job.takeRequests(most, &lastNumber)) {
            flying.push_back(request.number);
            const QString path = QFile::decodeName(request.path);
            names.append(QStringLiteral("%1 %2")
                             .arg(path.mid(project->root().size() + 1))
                             .arg(request.wishes));
        }
        return names;
    }
    /// The oldest request is answered.
    bool answer(NxReadOutcome outcome)
    {
        outcome.number = flying.front();
        outcome.answer.number = outcome.number;
        flying.erase(flying.begin());
        return job.take(outcome);
    }
    bool answerContents(qint64 size, quint64 contents)
    {
        NxReadOutcome outcome;
        outcome.answer.fingerprint = {size, 0, contents};
        return answer(outcome);
    }
    bool answerFrames(qint64 frames)
    {
        NxReadOutcome outcome;
        outcome.answer.facts.emplace();
        outcome.answer.facts->streams.kind = NxFootageKind::Video;
        outcome.answer.facts->frames = frames;
        return answer(outcome);
    }
    bool fail(NxReadEnd end, const char *reason)
    {
        NxReadOutcome outcome;
        outcome.end = end;
        outcome.reason = QString::fromLatin1(reason);
        outcome.answer.failure = end == NxReadEnd::Answered ? outcome.reason : QString();
        outcome.volume =
            end == NxReadEnd::DriveSilent ? project->path(QStringLiteral("new")) : QString();
        return answer(outcome);
    }
    QStringList found() { return project->lines(job.report()); }
    QStringList sentences() { return project->sentences(job.report()); }

    static constexpr qint64 Long = 60'000; // ms
    MovedProject *const project;
    NxRelinkJob job;
    quint64 lastNumber = 0;
    std::vector<quint64> flying;
};

constexpr int Fingerprint = rwFingerprint;
constexpr int Facts = rwFacts;

QString wish(const char *name, int wishes)
{
    return QStringLiteral("new/%1 %2").arg(QLatin1String(name)).arg(wishes);
}

} // namespace

Q_DECLARE_METATYPE(NxReadEnd)

/// What one search asks workers for, and what it makes of their answers.
class tst_NxRelinkJob : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void onlyFilesOfTheSizeAreCompared();
    void withoutContentsToCompareNothingIsRead();
    void lengthsAreReadOnlyWhereTheyDecide();
    void requestsGoInBatches();
    void aSizeOfLongAgoStillFindsTheContents();
    void aFileNobodyCanReadIsNobodys_data();
    void aFileNobodyCanReadIsNobodys();
    void aFilmOfUnreadableLengthKeepsItsName();
    void aSilentDriveIsToldOnce();
    void withoutWorkersNamesAndSizesStillCount();
    void answersToOthersAreNotTaken();
    void filesOfOtherMediaAreLeftOut_data();
    void filesOfOtherMediaAreLeftOut();
    void linksToFilesOfOtherMediaAreNotEvenRead();
    void aFileThatAnotherMediaGetsMeanwhileIsLeftOut();
    void aMediaWhoseFileIsThereFindsNoOther();
    void linksToOneFileAreOneFile();
    void mediaThatChangeMeanwhileFindNothing_data();
    void mediaThatChangeMeanwhileFindNothing();
    void findingsStandInTheOrderOfTheItems();
    void aCancelledJobTellsWhatItFound();
    void whatCannotBeLookedIntoIsTold_data();
    void whatCannotBeLookedIntoIsTold();
    void foldersWithoutPermissionAreTold();
    void whatIsNoFootageIsPassedOver();
};

void tst_NxRelinkJob::onlyFilesOfTheSizeAreCompared()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "12345");
    f.setFingerprint(media, {5, 0, 1});
    f.lose(media);
    f.write(QStringLiteral("new/a.mp4"), "1234");
    f.write(QStringLiteral("new/b.mp4"), "54321");
    f.write(QStringLiteral("new/c.mp4"), "123456");
    Job j(&f, {media});
    QCOMPARE(j.job.seen(), 3);
    QCOMPARE(j.asked(), QStringList(wish("b.mp4", Fingerprint)));
    QVERIFY(!j.job.goOnToEnd());
    QVERIFY(j.answerContents(5, 1));
    QCOMPARE(j.job.compared(), 1);
    QVERIFY(!j.job.goOnToEnd()); // Lengths come next; none is needed.
    QCOMPARE(j.asked(), QStringList());
    QVERIFY(j.job.goOnToEnd());
    QCOMPARE(j.found(), QStringList(QStringLiteral("a.mp4: contents new/b.mp4")));
}

void tst_NxRelinkJob::withoutContentsToCompareNothingIsRead()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "12345");
    f.lose(media);
    f.write(QStringLiteral("new/a.mp4"), "54321");
    f.write(QStringLiteral("new/b.mp4"), "12345");
    Job j(&f, {media});
    QCOMPARE(j.asked(), QStringList());
    QVERIFY(!j.job.goOnToEnd());
    QCOMPARE(j.asked(), QStringList());
    QVERIFY(j.job.goOnToEnd());
    QCOMPARE(j.found(), QStringList(QStringLiteral("a.mp4: name new/a.mp4")));
}

void tst_NxRelinkJob::lengthsAreReadOnlyWhereTheyDecide()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *found = f.add(QStringLiteral("old/a.mp4"), "12345");
    NxEngineMedia *other = f.add(QStringLiteral("old/b.mp4"), "12345");
    for (NxEngineMedia *media : {found, other}) {
        f.setFrames(media, 100);
        f.lose(media);
    }
    f.setFingerprint(found, {5, 0, 1});
    f.setFingerprint(other, {5, 0, 2});
    f.write(QStringLiteral("new/a.mp4"), "54321");
    f.write(QStringLiteral("new/b.mp4"), "54321");
    Job j(&f, {found, other});
    QCOMPARE(j.asked(), QStringList({wish("a.mp4", Fingerprint), wish("b.mp4", Fingerprint)}));
    QVERIFY(j.answerContents(5, 1));
    QVERIFY(j.answerContents(5, 3));
    QVERIFY(!j.job.goOnToEnd());
    QCOMPARE(j.asked(), QStringList(wish("b.mp4", Facts)));
    QVERIFY(!j.job.goOnToEnd());
    QVERIFY(j.answerFrames(100));
    QVERIFY(j.job.goOnToEnd());
    QCOMPARE(j.job.compared(), 2);
    QCOMPARE(j.found(), QStringList({QStringLiteral("a.mp4: contents new/a.mp4"),
                                     QStringLiteral("b.mp4: name new/b.mp4")}));
}

void tst_NxRelinkJob::requestsGoInBatches()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.setFingerprint(media, {1, 0, 1});
    constexpr int files = 10;
    for (int i = 0; i < files; ++i)
        f.write(QStringLiteral("new/%1.mp4").arg(i), "x");
    Job j(&f, {media});
    QCOMPARE(j.asked(4).size(), 4);
    QCOMPARE(j.asked(4).size(), 0);
    QVERIFY(j.answerContents(1, 2));
    QCOMPARE(j.asked(4).size(), 0);
    QVERIFY(j.answerContents(1, 2));
    QCOMPARE(j.asked(4).size(), 2); // Before those that are with the workers are all answered.
    QCOMPARE(j.flying.size(), size_t(4));
}

void tst_NxRelinkJob::aSizeOfLongAgoStillFindsTheContents()
{
    // The file grew since its fingerprint was made, and nobody made a new one.
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "1234567");
    f.setFingerprint(media, {5, 0, 1});
    f.lose(media);
    f.write(QStringLiteral("new/a.mp4"), "1234567");
    f.write(QStringLiteral("new/b.mp4"), "12345");
    Job j(&f, {media});
    QCOMPARE(j.asked(), QStringList(wish("b.mp4", Fingerprint)));
    QVERIFY(j.answerContents(5, 1));
    QCOMPARE(j.found(), QStringList(QStringLiteral("a.mp4: contents new/b.mp4")));
}

void tst_NxRelinkJob::aFileNobodyCanReadIsNobodys_data()
{
    QTest::addColumn<NxReadEnd>("end");
    QTest::newRow("it cannot be read") << NxReadEnd::Answered;
    QTest::newRow("it ends its readers") << NxReadEnd::Killed;
}

void tst_NxRelinkJob::aFileNobodyCanReadIsNobodys()
{
    QFETCH(NxReadEnd, end);
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *known = f.add(QStringLiteral("old/a.mp4"), "12345");
    NxEngineMedia *never = f.add(QStringLiteral("old/2/a.mp4"), "12345");
    f.setFingerprint(known, {5, 0, 1});
    f.write(QStringLiteral("new/a.mp4"), "12345");
    Job j(&f, {known, never});
    QCOMPARE(j.asked().size(), 1);
    QVERIFY(j.fail(end, "It is broken."));
    QCOMPARE(j.found(),
             QStringList({QStringLiteral("a.mp4: none"), QStringLiteral("a.mp4: none")}));
    QCOMPARE(j.sentences(),
             QStringList(QStringLiteral("\"new/a.mp4\" was left out. It is broken.")));
}

void tst_NxRelinkJob::aFilmOfUnreadableLengthKeepsItsName()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *read = f.add(QStringLiteral("old/a.mp4"), "12345");
    f.setFrames(read, 100);
    NxEngineMedia *never = f.add(QStringLiteral("old/2/a.mp4"), "12345");
    f.write(QStringLiteral("new/a.mp4"), "12345");
    Job j(&f, {read, never});
    QCOMPARE(j.asked(), QStringList());
    QVERIFY(!j.job.goOnToEnd());
    QCOMPARE(j.asked(), QStringList(wish("a.mp4", Facts)));
    QVERIFY(j.fail(NxReadEnd::Answered, "It is damaged."));
    QVERIFY(j.job.goOnToEnd());
    QCOMPARE(j.found(),
             QStringList({QStringLiteral("a.mp4: none"), QStringLiteral("a.mp4: name new/a.mp4")}));
    QCOMPARE(j.sentences(),
             QStringList(QStringLiteral("\"new/a.mp4\" was left out. It is damaged.")));
}

void tst_NxRelinkJob::aSilentDriveIsToldOnce()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.setFingerprint(media, {1, 0, 1});
    f.write(QStringLiteral("new/b.mp4"), "x");
    f.write(QStringLiteral("new/c.mp4"), "x");
    Job j(&f, {media});
    QCOMPARE(j.asked().size(), 2);
    QVERIFY(j.fail(NxReadEnd::DriveSilent, "The drive does not answer."));
    QVERIFY(j.fail(NxReadEnd::DriveSilent, "The drive does not answer."));
    QCOMPARE(j.sentences(),
             QStringList(QStringLiteral("\"new\" was left out. The drive does not answer.")));
    QCOMPARE(j.found(), QStringList(QStringLiteral("a.mp4: none")));
}

void tst_NxRelinkJob::withoutWorkersNamesAndSizesStillCount()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *never = f.add(QStringLiteral("old/a.mp4"), "12345");
    NxEngineMedia *read = f.add(QStringLiteral("old/b.mp4"), "12345");
    f.setFrames(read, 100);
    NxEngineMedia *identified = f.add(QStringLiteral("old/c.mp4"), "12345");
    f.setFingerprint(identified, {5, 0, 1});
    for (const char *name : {"new/a.mp4", "new/b.mp4", "new/c.mp4"})
        f.write(QLatin1String(name), "12345");
    const QStringList expected{QStringLiteral("a.mp4: name new/a.mp4"),
                               QStringLiteral("b.mp4: none"), QStringLiteral("c.mp4: none")};
    const QStringList sentence(QStringLiteral("Not all files could be compared. None is there."));

    Job known(&f, {never, read, identified}); // Known before anything was asked.
    known.job.setNoWorkers(QStringLiteral("None is there."));
    QCOMPARE(known.asked(), QStringList());
    QVERIFY(!known.job.goOnToEnd());
    QCOMPARE(known.asked(), QStringList());
    QVERIFY(known.job.goOnToEnd());
    QCOMPARE(known.found(), expected);
    QCOMPARE(known.sentences(), sentence);

    Job told(&f, {never, read, identified}); // Told by an answer.
    QCOMPARE(told.asked(1).size(), 1);
    QVERIFY(told.fail(NxReadEnd::NoWorker, "None is there."));
    QCOMPARE(told.asked(), QStringList());
    QVERIFY(!told.job.goOnToEnd());
    QCOMPARE(told.asked(), QStringList());
    QVERIFY(told.job.goOnToEnd());
    QCOMPARE(told.found(), expected);
    QCOMPARE(told.sentences(), sentence);

    Job idle(&f, {never}); // Nothing had to be read: nothing is missed.
    idle.job.setNoWorkers(QStringLiteral("None is there."));
    QCOMPARE(idle.asked(), QStringList());
    QCOMPARE(idle.sentences(), QStringList());
}

void tst_NxRelinkJob::answersToOthersAreNotTaken()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.setFingerprint(media, {1, 0, 1});
    f.write(QStringLiteral("new/a.mp4"), "x");
    Job j(&f, {media});
    QCOMPARE(j.asked().size(), 1);
    NxReadOutcome stranger;
    stranger.number = j.lastNumber + 1;
    QVERIFY(!j.job.take(stranger));
    QVERIFY(j.answerContents(1, 1));
    stranger.number = j.lastNumber; // Once more.
    QVERIFY(!j.job.take(stranger));
    QCOMPARE(j.job.compared(), 1);
}

void tst_NxRelinkJob::filesOfOtherMediaAreLeftOut_data()
{
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("isRemoved");
    QTest::addColumn<QString>("expected");
    QTest::newRow("of the same path")
        << QStringLiteral("new/b.mp4") << false << QStringLiteral("a.mp4: none");
    QTest::newRow("by way of a link")
        << QStringLiteral("link.mp4") << false << QStringLiteral("a.mp4: none");
    QTest::newRow("which was removed")
        << QStringLiteral("new/b.mp4") << true << QStringLiteral("a.mp4: contents new/b.mp4");
}

void tst_NxRelinkJob::filesOfOtherMediaAreLeftOut()
{
    QFETCH(QString, other);
    QFETCH(bool, isRemoved);
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.setFingerprint(media, {1, 0, 1});
    f.write(QStringLiteral("new/b.mp4"), "x");
    QVERIFY(QFile::link(f.path(QStringLiteral("new/b.mp4")), f.path(QStringLiteral("link.mp4"))));
    NxMediaSeed seed;
    seed.path = f.path(other);
    seed.canonicalPath = QFileInfo(seed.path).canonicalFilePath();
    NxEngineMedia *owner = f.memory.addNewMedia(f.section, {seed}).first();
    if (isRemoved)
        QVERIFY(f.items->removeMediaItems(nullptr, {owner}));
    Job j(&f, {media});
    if (!j.asked().isEmpty())
        QVERIFY(j.answerContents(1, 1));
    QTEST(j.found().join(QLatin1Char(';')), "expected");
}

void tst_NxRelinkJob::linksToFilesOfOtherMediaAreNotEvenRead()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.setFingerprint(media, {1, 0, 1});
    (void)f.add(QStringLiteral("kept/b.mp4"), "x");
    f.write(QStringLiteral("new/c.txt"), "x");
    QVERIFY(QFile::link(f.path(QStringLiteral("kept/b.mp4")), f.path(QStringLiteral("new/a.mp4"))));
    Job j(&f, {media});
    QCOMPARE(j.job.seen(), 1);
    QCOMPARE(j.asked(), QStringList());
    QCOMPARE(j.found(), QStringList(QStringLiteral("a.mp4: none")));
}

void tst_NxRelinkJob::aFileThatAnotherMediaGetsMeanwhileIsLeftOut()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.setFingerprint(media, {1, 0, 1});
    f.write(QStringLiteral("new/b.mp4"), "x");
    Job j(&f, {media});
    QCOMPARE(j.asked().size(), 1);
    QVERIFY(j.answerContents(1, 1));
    (void)f.addExisting(f.path(QStringLiteral("new/b.mp4")));
    QCOMPARE(j.found(), QStringList(QStringLiteral("a.mp4: none")));
}

void tst_NxRelinkJob::aMediaWhoseFileIsThereFindsNoOther()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("new/a.mp4"), "x");
    f.setFingerprint(media, {1, 0, 1});
    Job j(&f, {media});
    QCOMPARE(j.asked(), QStringList());
    QCOMPARE(j.found(), QStringList(QStringLiteral("a.mp4: none")));
}

void tst_NxRelinkJob::linksToOneFileAreOneFile()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.setFingerprint(media, {1, 0, 1});
    f.write(QStringLiteral("new/m.mp4"), "x");
    for (const char *link : {"new/a-link.mp4", "new/z-link.mp4"})
        QVERIFY(QFile::link(f.path(QStringLiteral("new/m.mp4")), f.path(QLatin1String(link))));
    Job j(&f, {media});
    QCOMPARE(j.asked().size(), 1);
    QVERIFY(j.answerContents(1, 1));
    QCOMPARE(j.found(), QStringList(QStringLiteral("a.mp4: contents new/m.mp4")));
}

void tst_NxRelinkJob::mediaThatChangeMeanwhileFindNothing_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("removed") << QStringLiteral("remove");
    QTest::newRow("dead") << QStringLiteral("forget");
    QTest::newRow("given another file") << QStringLiteral("relink");
}

void tst_NxRelinkJob::mediaThatChangeMeanwhileFindNothing()
{
    QFETCH(QString, what);
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *stays = f.add(QStringLiteral("old/b.mp4"), "x");
    NxEngineMedia *lost = f.add(QStringLiteral("old/a.mp4"), "x");
    for (NxEngineMedia *media : {lost, stays})
        f.setFingerprint(media, {1, 0, 1});
    f.write(QStringLiteral("new/b.mp4"), "x");
    Job j(&f, {lost, stays});
    const qint64 id = lost->id();
    if (what == QLatin1String("relink")) {
        QVERIFY(f.items->relinkMedia(lost, f.path(QStringLiteral("elsewhere.mp4"))));
    } else if (what == QLatin1String("remove")) {
        QVERIFY(f.items->removeMediaItems(nullptr, {lost}));
    } else {
        f.undo->undo(); // Its import, and then there is no way back.
        QVERIFY(f.items->setFavourite(stays, true));
        QCoreApplication::sendPostedEvents();
        QTRY_VERIFY(!f.memory.media(id));
    }
    QCOMPARE(j.asked().size(), 1);
    QVERIFY(j.answerContents(1, 1));
    QVERIFY(j.job.report().findings.first().media.isNull());
    // The file is left to the one that is still there.
    QCOMPARE(j.found(), QStringList({QStringLiteral("nobody: none"),
                                     QStringLiteral("b.mp4: contents new/b.mp4")}));
}

void tst_NxRelinkJob::findingsStandInTheOrderOfTheItems()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *first = f.add(QStringLiteral("old/1.mp4"), "x");
    NxEngineMedia *second = f.add(QStringLiteral("old/2.mp4"), "xx");
    NxEngineMedia *removed = f.add(QStringLiteral("old/3.mp4"), "xxx");
    QVERIFY(f.items->removeMediaItems(nullptr, {removed}));
    EngineFixture elsewhere;
    NxEngineMedia *foreign = elsewhere.addMedia(elsewhere.section, QStringLiteral("4.mp4"));
    for (const char *name : {"new/1.mp4", "new/3.mp4", "new/4.mp4"})
        f.write(QLatin1String(name), "x");
    f.write(QStringLiteral("new/2.mp4"), "xx");
    Job j(&f, {second, nullptr, first, removed, second, foreign});
    const QVector<NxRelinkFinding> findings = j.job.report().findings;
    QCOMPARE(findings.size(), 6);
    QCOMPARE(findings.at(0).media.get(), second);
    QVERIFY(findings.at(1).media.isNull());
    QCOMPARE(j.found(),
             QStringList({QStringLiteral("2.mp4: name new/2.mp4"), QStringLiteral("nobody: none"),
                          QStringLiteral("1.mp4: name new/1.mp4"), QStringLiteral("3.mp4: none"),
                          QStringLiteral("2.mp4: name new/2.mp4"), QStringLiteral("4.mp4: none")}));
}

void tst_NxRelinkJob::aCancelledJobTellsWhatItFound()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *found = f.add(QStringLiteral("old/a.mp4"), "x");
    NxEngineMedia *late = f.add(QStringLiteral("old/b.mp4"), "x");
    f.setFingerprint(found, {1, 0, 1});
    f.setFingerprint(late, {1, 0, 2});
    f.write(QStringLiteral("new/1.mp4"), "x");
    f.write(QStringLiteral("new/2.mp4"), "x");
    Job j(&f, {found, late});
    QCOMPARE(j.asked().size(), 2);
    QVERIFY(j.answerContents(1, 1));
    j.job.cancel();
    QVERIFY(j.job.goOnToEnd());
    QCOMPARE(j.asked(), QStringList());
    QVERIFY(!j.answerContents(1, 2));
    QVERIFY(j.job.report().cancelled);
    QCOMPARE(j.found(), QStringList({QStringLiteral("a.mp4: contents new/1.mp4"),
                                     QStringLiteral("b.mp4: none")}));
}

void tst_NxRelinkJob::whatCannotBeLookedIntoIsTold_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("not there") << QStringLiteral(
        "gone") << QStringList(QStringLiteral("\"gone\" was left out. It does not exist."));
    QTest::newRow("a film") << QStringLiteral("film.mp4")
                            << QStringList(QStringLiteral(
                                   "\"film.mp4\" was left out. It is not a folder."));
    QTest::newRow("a text") << QStringLiteral("text.txt")
                            << QStringList(QStringLiteral(
                                   "\"text.txt\" was left out. It is not a folder."));
    QTest::newRow("a pipe") << QStringLiteral("pipe")
                            << QStringList(QStringLiteral("\"pipe\" was left out. It is a pipe, a "
                                                          "socket or a device, not a file."));
    QTest::newRow("in a folder")
        << QStringLiteral("in")
        << QStringList({QStringLiteral("\"in/dangling.mp4\" was left out. It is a link to "
                                       "something that does not exist."),
                        QStringLiteral("\"in/empty.mp4\" was left out. The file is empty.")});
}

void tst_NxRelinkJob::whatCannotBeLookedIntoIsTold()
{
    QFETCH(QString, folder);
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.write(QStringLiteral("film.mp4"), "x");
    f.write(QStringLiteral("text.txt"), "x");
    f.write(QStringLiteral("in/empty.mp4"), "");
    RawFiles::makePipe(f.path(QStringLiteral("pipe")));
    QVERIFY(
        QFile::link(f.path(QStringLiteral("nowhere")), f.path(QStringLiteral("in/dangling.mp4"))));
    Job j(&f, {media}, folder);
    QTEST(j.sentences(), "expected");
    QCOMPARE(j.job.seen(), 0);
    QCOMPARE(j.found(), QStringList(QStringLiteral("a.mp4: none")));
}

void tst_NxRelinkJob::foldersWithoutPermissionAreTold()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.write(QStringLiteral("new/shut/a.mp4"), "x");
    f.write(QStringLiteral("new/shut.mp4"), "x");
    f.write(QStringLiteral("new/z/a.mp4"), "x");
    for (const char *name : {"new/shut", "new/shut.mp4"})
        QVERIFY(QFile::setPermissions(f.path(QLatin1String(name)), QFile::WriteOwner));
    NxAsNobody::give(f.root());
    const QString told = NxAsNobody::run([&f, media] {
        Job j(&f, {media});
        return (j.found() + j.sentences()).join(QLatin1Char('\n'));
    });
    QCOMPARE(told, QStringLiteral("a.mp4: name new/z/a.mp4\n"
                                  "\"new/shut.mp4\" was left out. There is no permission to read "
                                  "it.\n"
                                  "\"new/shut\" was left out. The folder cannot be read: "
                                  "Permission denied."));
}

void tst_NxRelinkJob::whatIsNoFootageIsPassedOver()
{
    MovedProject f(MovedProject::Worker::Scripted);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mp4"), "x");
    f.setFingerprint(media, {1, 0, 1});
    for (const char *name : {"new/notes.txt", "new/.a.mp4", "new/.hidden/a.mp4"})
        f.write(QLatin1String(name), "x");
    Job j(&f, {media});
    QCOMPARE(j.job.seen(), 0);
    QCOMPARE(j.asked(), QStringList());
    QCOMPARE(j.sentences(), QStringList());
}

NX_TEST_MAIN(tst_NxRelinkJob)
#include "tst_NxRelinkJob.moc"
