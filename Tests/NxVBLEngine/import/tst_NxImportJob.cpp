// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/import/NxImportJob.h>

#include <EngineEvents.h>
#include <EngineFixture.h>
#include <Support/NxTestMain.h>

#include <NxVBLModel/NxFolderPath.h>

#include <QElapsedTimer>
#include <QTest>

namespace {

constexpr qint64 Enough = 60'000; // ms

NxWalkEntry entryOf(NxWalkStep step, const QString &path, const QString &reason = {})
{
    NxWalkEntry entry;
    entry.step = step;
    entry.path = path;
    entry.reason = reason;
    entry.facts.kind = NxFileKind::File;
    entry.facts.size = 7;
    if (step == NxWalkStep::FolderEntered)
        entry.name = path.section(QLatin1Char('/'), -1);
    return entry;
}

NxWalkEntry file(const QString &path)
{
    return entryOf(NxWalkStep::File, path);
}

NxWalkEntry enter(const QString &path)
{
    return entryOf(NxWalkStep::FolderEntered, path);
}

NxWalkEntry leave()
{
    return entryOf(NxWalkStep::FolderLeft, QString());
}

NxWalkEntry done()
{
    return entryOf(NxWalkStep::NamedDone, QString());
}

std::vector<NxWalkEntry> files(int count)
{
    std::vector<NxWalkEntry> entries;
    for (int i = 0; i < count; ++i)
        entries.push_back(file(QStringLiteral("/footage/%1.mp4").arg(i)));
    return entries;
}

/// An observer that takes its time over every item.
class SlowObserver : public INxMediaItemEventObserver
{
public:
    explicit SlowObserver(NxEngineCategory *category) : m_category(category)
    {
        m_category->itemObservers.add(this);
    }
    ~SlowObserver() override { m_category->itemObservers.remove(this); }
    void onAfterAddItemEvent(INxFolderMedia *, INxAbstractMedia *) override
    {
        QElapsedTimer clock;
        clock.start();
        while (clock.nsecsElapsed() < nanoseconds) {
        }
    }
    qint64 nanoseconds = 3'000'000;

private:
    NxEngineCategory *const m_category;
};

/// Calls a function once, when the item of a number is added.
class Meddler : public INxMediaItemEventObserver
{
public:
    Meddler(NxEngineCategory *category, int at, std::function<void()> action)
        : m_category(category), m_at(at), m_action(std::move(action))
    {
        m_category->itemObservers.add(this);
    }
    ~Meddler() override { m_category->itemObservers.remove(this); }
    void onAfterAddItemEvent(INxFolderMedia *, INxAbstractMedia *) override
    {
        if (++m_count == m_at)
            m_action();
    }

private:
    NxEngineCategory *const m_category;
    const int m_at;
    const std::function<void()> m_action;
    int m_count = 0;
};

QString text(const NxImportReport &report)
{
    QStringList lines;
    for (const NxImportReportLine &line : report.lines) {
        static const char *const verdicts[]
            = {"there", "copy", "refused", "unreadable", "cancelled"};
        lines.append(QStringLiteral("%1 %2 [%3] %4").arg(
            QLatin1String(verdicts[int(line.verdict)]), line.path, line.folder, line.reason));
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace

class tst_NxImportJob : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void foldersAreMadeWithTheirFirstFile();
    void foldersOfTheSameNameAreMerged();
    void everyItemIsAnnouncedInAPair();
    void aJobIsOneUndoStep();
    void aJobIsTwoStepsWhenTheUserDoesSomethingInBetween();
    void aSliceThatAddsNothingLeavesTheUsersStepAlone();
    void slowObserversMakeSlicesShort();
    void filesReachedTwiceAreCounted();
    void whatIsThereIsReportedWithItsFolder();
    void countersFollowTheEntries();
    void aPathThatDoesNotAnswerIsReported();
    void stoppingReportsWhatIsNotDone();
    void anObserverMayStopTheJob();
    void removedTargetEndsTheJob();
    void removedSubfolderLosesItsFilesOnly();
    void undoEndsTheJobAndTheReportCountsWhatIsLeft();
    void foldersAnnounceChildrenFirstAndOnce();
    void theTopOfADiskHasNoFolderOfItsOwn();
};

void tst_NxImportJob::foldersAreMadeWithTheirFirstFile()
{
    EngineFixture f;
    NxImportJob job(1, f.section, {QStringLiteral("/f")}, 0);
    job.append({enter(QStringLiteral("/f/Trip")), enter(QStringLiteral("/f/Trip/Empty")), leave(),
                enter(QStringLiteral("/f/Trip/Day")), file(QStringLiteral("/f/Trip/Day/a.mp4")),
                leave(), leave(), done()});
    job.addSlice(Enough);
    job.conclude();
    NxEngineFolder *trip = f.section->childNamed(QStringLiteral("Trip"));
    QVERIFY(trip);
    QCOMPARE(int(trip->children().size()), 1);
    QCOMPARE(listing(trip->childNamed(QStringLiteral("Day"))), QStringLiteral("a.mp4"));
    QCOMPARE(job.report().foldersAdded, 2);
    QCOMPARE(job.report().found, 1);
    QCOMPARE(f.memory.brokenInvariant(), QString());
}

void tst_NxImportJob::foldersOfTheSameNameAreMerged()
{
    EngineFixture f;
    NxEngineFolder *trip = f.addFolder(f.section, QStringLiteral("Trip"));
    NxImportJob job(1, f.section, {QStringLiteral("/f")}, 0);
    job.append({enter(QStringLiteral("/f/Trip")), file(QStringLiteral("/f/Trip/a.mp4")), leave(),
                done()});
    job.addSlice(Enough);
    QCOMPARE(int(f.section->children().size()), 1);
    QCOMPARE(listing(trip), QStringLiteral("a.mp4"));
    QCOMPARE(job.report().foldersAdded, 0);
}

void tst_NxImportJob::everyItemIsAnnouncedInAPair()
{
    EngineFixture f;
    EngineEvents events(f.category);
    NxImportJob job(1, f.section, {QStringLiteral("/f")}, 0);
    job.append({enter(QStringLiteral("/f/Day")), file(QStringLiteral("/f/Day/a.mp4")),
                file(QStringLiteral("/f/Day/b.mp4")), leave(), done()});
    job.addSlice(Enough);
    job.conclude();
    const QString section = f.section->name();
    const QStringList told = events.take();
    QVERIFY2(told.first().contains(section), qUtf8Printable(told.join(QLatin1Char('\n'))));
    QCOMPARE(told.filter(QStringLiteral(".mp4")),
             QStringList({QStringLiteral("before add a.mp4 < Day"),
                          QStringLiteral("after add a.mp4 < Day"),
                          QStringLiteral("before add b.mp4 < Day"),
                          QStringLiteral("after add b.mp4 < Day")}));
    QVERIFY(told.last().contains(QStringLiteral("Day")));
    QCOMPARE(events.complaints, QStringList());
}

void tst_NxImportJob::aJobIsOneUndoStep()
{
    EngineFixture f;
    NxImportJob job(1, f.section, {QStringLiteral("/f")}, 0);
    job.append(files(500));
    int slices = 0;
    while (job.waiting() > 0) {
        job.addSlice(1);
        ++slices;
    }
    QVERIFY(slices >= 1);
    QCOMPARE(f.memory.livingMediaCount(), 500);
    QCOMPARE(f.undo->count(), 1);
    QCOMPARE(f.undo->undoText(), QStringLiteral("importMedia"));
    QVERIFY(f.undo->undo());
    QCOMPARE(f.memory.livingMediaCount(), 0);
    QVERIFY(f.undo->redo());
    QCOMPARE(f.memory.livingMediaCount(), 500);
    QCOMPARE(f.memory.brokenInvariant(), QString());
}

void tst_NxImportJob::aJobIsTwoStepsWhenTheUserDoesSomethingInBetween()
{
    EngineFixture f;
    NxImportJob job(1, f.section, {QStringLiteral("/f")}, 0);
    job.append({file(QStringLiteral("/f/a.mp4"))});
    job.addSlice(Enough);
    QVERIFY(f.addFolder(f.section, QStringLiteral("Mine")));
    job.append({file(QStringLiteral("/f/b.mp4"))});
    job.addSlice(Enough);
    job.append({file(QStringLiteral("/f/c.mp4"))});
    job.addSlice(Enough);
    QCOMPARE(f.undo->count(), 3);
    QVERIFY(f.undo->undo());
    QCOMPARE(listing(f.section), QStringLiteral("a.mp4"));
    QVERIFY(f.section->childNamed(QStringLiteral("Mine")));
}

void tst_NxImportJob::aSliceThatAddsNothingLeavesTheUsersStepAlone()
{
    EngineFixture f;
    NxImportJob job(1, f.section, {QStringLiteral("/f")}, 0);
    job.append({file(QStringLiteral("/f/a.mp4"))});
    job.addSlice(Enough);
    QVERIFY(f.addFolder(f.section, QStringLiteral("Mine")));
    job.append({entryOf(NxWalkStep::Hidden, QStringLiteral("/f/.x"))});
    job.addSlice(Enough);
    job.append({file(QStringLiteral("/f/b.mp4"))});
    job.addSlice(Enough);
    QCOMPARE(f.undo->count(), 3); // The second part did not join the user's step.
    QVERIFY(f.undo->undo());
    QVERIFY(f.section->childNamed(QStringLiteral("Mine")));
}

void tst_NxImportJob::slowObserversMakeSlicesShort()
{
    EngineFixture f;
    const SlowObserver slow(f.category);
    NxImportJob job(1, f.section, {QStringLiteral("/f")}, 0);
    job.append(files(60));
    job.addSlice(1); // Learns how slow they are.
    qint64 most = 0;
    while (job.waiting() > 0) {
        const qint64 before = f.memory.livingMediaCount();
        job.addSlice(6);
        most = std::max(most, f.memory.livingMediaCount() - before);
    }
    // Three milliseconds an item: a slice of 6 ms holds few of them, never a group of many.
    QVERIFY2(most <= 4, qPrintable(QString::number(most)));
    QCOMPARE(f.memory.livingMediaCount(), 60);
}

void tst_NxImportJob::filesReachedTwiceAreCounted()
{
    EngineFixture f;
    NxImportJob job(1, f.section, {QStringLiteral("/f")}, 0);
    NxWalkEntry link = file(QStringLiteral("/f/link.mp4"));
    link.canonicalPath = QStringLiteral("/f/a.mp4");
    NxWalkEntry named = file(QStringLiteral("/f/a.mp4"));
    named.given = QStringLiteral("a.mp4");
    job.append({file(QStringLiteral("/f/a.mp4")), link, file(QStringLiteral("/f/b.mp4")), link,
                named, done()});
    job.addSlice(Enough);
    QCOMPARE(listing(f.section), QStringLiteral("a.mp4 b.mp4"));
    QCOMPARE(job.report().passedOverTwice, 2);
    QCOMPARE(job.report().alreadyThere, 1); // The user named it: that deserves a line.
    QCOMPARE(job.report().found, 3);
}

void tst_NxImportJob::whatIsThereIsReportedWithItsFolder()
{
    EngineFixture f;
    NxEngineFolder *day = f.addFolder(f.addFolder(f.section, QStringLiteral("A/B")),
                                      QStringLiteral("Day"));
    f.addMedia(day, QStringLiteral("a.mp4"));
    f.addMedia(f.section, QStringLiteral("b.mp4"));
    NxImportJob job(1, f.section, {QStringLiteral("/footage")}, 0);
    job.append({enter(QStringLiteral("/footage")), file(QStringLiteral("/footage/a.mp4")),
                file(QStringLiteral("/footage/a.mp4")), file(QStringLiteral("/footage/b.mp4")),
                leave(), done()});
    job.addSlice(Enough);
    QCOMPARE(text(job.report()),
             QStringLiteral("there /footage/a.mp4 [footage] It is already in \"A\\/B/Day\".\n"
                            "there /footage/b.mp4 [footage] It is already in \"%1\".")
                 .arg(f.section->name()));
    QCOMPARE(job.report().alreadyThere, 2);
    QCOMPARE(job.report().passedOverTwice, 1);
    QCOMPARE(f.memory.livingMediaCount(), 2);
    QVERIFY(!f.section->childNamed(QStringLiteral("footage")));
}

void tst_NxImportJob::countersFollowTheEntries()
{
    EngineFixture f;
    NxImportJob job(1, f.section, {QStringLiteral("/f")}, 0);
    const QString why = QStringLiteral("Because.");
    job.append({entryOf(NxWalkStep::Hidden, {}), entryOf(NxWalkStep::OtherSuffix, {}),
                entryOf(NxWalkStep::OtherSuffix, {}), entryOf(NxWalkStep::Twice, {}),
                entryOf(NxWalkStep::Refused, QStringLiteral("/f/r"), why),
                entryOf(NxWalkStep::Unreadable, QStringLiteral("/f/u"), why),
                entryOf(NxWalkStep::Unreadable, QStringLiteral("/f/u"), why), done()});
    job.addSlice(Enough);
    const NxImportReport report = job.report();
    QCOMPARE(report.passedOverHidden, 1);
    QCOMPARE(report.passedOverOther, 2);
    QCOMPARE(report.passedOverTwice, 2);
    QCOMPARE(report.refused, 1);
    QCOMPARE(report.unreadable, 1);
    QCOMPARE(report.found, 2);
    QCOMPARE(text(report), QStringLiteral("refused /f/r [] Because.\nunreadable /f/u [] Because."));
    QCOMPARE(f.undo->count(), 0);
}

void tst_NxImportJob::aPathThatDoesNotAnswerIsReported()
{
    EngineFixture f;
    NxImportJob job(1, f.section, {QStringLiteral("/a"), QStringLiteral("/dead"),
                                   QStringLiteral("/c")}, 0);
    job.append({file(QStringLiteral("/a/1.mp4")), done(), enter(QStringLiteral("/dead")),
                enter(QStringLiteral("/dead/deep")), file(QStringLiteral("/dead/deep/2.mp4"))});
    QCOMPARE(job.namedToWalk().size(), 2);
    job.giveUpNamed();
    QCOMPARE(job.namedToWalk().size(), 1);
    QCOMPARE(job.namedToWalk().first().path, QStringLiteral("/c"));
    job.append({file(QStringLiteral("/c/3.mp4")), done()});
    job.addSlice(Enough);
    QCOMPARE(listing(f.section, false), QStringLiteral("1.mp4 3.mp4"));
    QCOMPARE(f.memory.livingMediaCount(), 3);
    QCOMPARE(job.report().unreadable, 1);
    QVERIFY(text(job.report()).contains(QStringLiteral("The drive does not answer.")));
}

void tst_NxImportJob::stoppingReportsWhatIsNotDone()
{
    EngineFixture f;
    NxEngineFolder *into = f.addFolder(f.section, QStringLiteral("Into"));
    NxImportJob job(1, into, {QStringLiteral("/a"), QStringLiteral("/b"), QStringLiteral("/c")}, 0);
    job.append({file(QStringLiteral("/a/1.mp4")), done()});
    job.addSlice(Enough);
    job.append({file(QStringLiteral("/b/2.mp4"))});
    job.stop(QStringLiteral("Enough."));
    job.stop(QStringLiteral("Twice."));
    job.append({file(QStringLiteral("/b/3.mp4"))});
    job.addSlice(Enough);
    QCOMPARE(listing(into), QStringLiteral("1.mp4"));
    QCOMPARE(text(job.report()),
             QStringLiteral("cancelled /b [Into] Enough.\ncancelled /c [Into] Enough."));
    QCOMPARE(job.report().cancelled, 2);
    QCOMPARE(f.undo->count(), 2);
}

void tst_NxImportJob::anObserverMayStopTheJob()
{
    EngineFixture f;
    NxImportJob job(1, f.section, {QStringLiteral("/f")}, 0);
    const Meddler meddler(f.category, 3, [&job] { job.stop(QStringLiteral("Stop.")); });
    job.append(files(500));
    job.addSlice(Enough);
    QVERIFY(job.isStopped());
    QVERIFY(f.memory.livingMediaCount() >= 3);
    QVERIFY(f.memory.livingMediaCount() < 10); // The group that was under way.
    QCOMPARE(qint64(job.takeFresh().size()), f.memory.livingMediaCount());
    QCOMPARE(job.report().cancelled, 1);
}

void tst_NxImportJob::removedTargetEndsTheJob()
{
    EngineFixture f;
    NxEngineFolder *into = f.addFolder(f.section, QStringLiteral("Into"));
    NxImportJob job(1, into, {QStringLiteral("/f")}, 0);
    job.append({file(QStringLiteral("/f/a.mp4"))});
    job.addSlice(Enough);
    QVERIFY(f.folders->removeFolder(into));
    job.append({file(QStringLiteral("/f/b.mp4"))});
    job.addSlice(Enough);
    QVERIFY(job.isStopped());
    QCOMPARE(text(job.report()),
             QStringLiteral("cancelled /f [Into] The folder it was meant for has been removed."));
    QCOMPARE(f.memory.livingMediaCount(), 0);
}

void tst_NxImportJob::removedSubfolderLosesItsFilesOnly()
{
    EngineFixture f;
    NxImportJob job(1, f.section, {QStringLiteral("/f")}, 0);
    job.append({enter(QStringLiteral("/f/Day")), file(QStringLiteral("/f/Day/a.mp4"))});
    job.addSlice(Enough);
    QVERIFY(f.folders->removeFolder(f.section->childNamed(QStringLiteral("Day"))));
    job.append({file(QStringLiteral("/f/Day/b.mp4")), leave(), file(QStringLiteral("/f/c.mp4")),
                done()});
    job.addSlice(Enough);
    QVERIFY(!job.isStopped());
    QCOMPARE(listing(f.section), QStringLiteral("c.mp4"));
    QCOMPARE(text(job.report()),
             QStringLiteral("cancelled /f/Day/b.mp4 [Day] The folder it was meant for has been "
                            "removed."));
}

void tst_NxImportJob::undoEndsTheJobAndTheReportCountsWhatIsLeft()
{
    EngineFixture f;
    NxImportJob job(1, f.section, {QStringLiteral("/f")}, 0);
    job.append(files(20));
    job.addSlice(Enough);
    job.noteSaved(20);
    QVERIFY(f.undo->undo());
    job.append({file(QStringLiteral("/f/late.mp4"))});
    job.addSlice(Enough);
    QVERIFY(job.isStopped());
    QCOMPARE(f.memory.livingMediaCount(), 0);
    QCOMPARE(job.report().added, 0);
    QVERIFY(text(job.report()).contains(QStringLiteral("taken back")));
}

void tst_NxImportJob::foldersAnnounceChildrenFirstAndOnce()
{
    EngineFixture f;
    EngineEvents events(f.category);
    NxImportJob job(1, f.section, {QStringLiteral("/f")}, 0);
    job.append({enter(QStringLiteral("/f/A")), file(QStringLiteral("/f/A/1.mp4")),
                enter(QStringLiteral("/f/A/B")), enter(QStringLiteral("/f/A/B/C")),
                file(QStringLiteral("/f/A/B/C/2.mp4")), leave(), leave(),
                file(QStringLiteral("/f/A/3.mp4")), leave(), done()});
    job.addSlice(Enough);
    events.take();
    job.conclude();
    job.conclude();
    QStringList folders;
    for (const QString &line : events.take())
        folders.append(line.section(QLatin1Char(' '), -1));
    QCOMPARE(folders, QStringList({QStringLiteral("C"), QStringLiteral("A")}));
}

void tst_NxImportJob::theTopOfADiskHasNoFolderOfItsOwn()
{
    EngineFixture f;
    NxImportJob job(1, f.section, {QStringLiteral("/")}, 0);
    NxWalkEntry top = enter(QStringLiteral("/"));
    top.name.clear();
    job.append({top, file(QStringLiteral("/a.mp4")), enter(QStringLiteral("/b")),
                file(QStringLiteral("/b/c.mp4")), leave(), leave(), done()});
    job.addSlice(Enough);
    QCOMPARE(listing(f.section, false), QStringLiteral("a.mp4"));
    QCOMPARE(listing(f.section->childNamed(QStringLiteral("b"))), QStringLiteral("c.mp4"));
}

NX_TEST_MAIN(tst_NxImportJob)
#include "tst_NxImportJob.moc"
