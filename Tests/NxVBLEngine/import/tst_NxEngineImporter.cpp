// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/import/NxEngineImporter.h>

#include "RawFiles.h"

#include <EngineEvents.h>
#include <EngineFixture.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <NxCore/NxQueue.h>
#include <NxVBLEngine/disk/NxDiskThread.h>
#include <NxVBLModel/NxFolderPath.h>

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <functional>

namespace {

constexpr int Patience = 60'000; // ms

/// An importer of a project in memory, and what it said.
struct Import : EngineFixture
{
    explicit Import(const NxFileLook &look = &NxFileProbe::look,
        std::chrono::milliseconds patience = NxDiskThread::DefaultPatience)
        : disk(std::make_shared<NxDiskThread>(patience))
        , importer(&memory, category, disk, nullptr, look)
        , finished(&importer, &INxMediaImporter::finished)
    {
    }

    /// Imports and waits for the end; the report.
    NxImportReport run(INxFolderMedia *into, const QStringList &paths)
    {
        const int before = finished.size();
        const quint64 job = importer.start(into, paths, 0);
        if (!waitForFinished(before + 1) || job != finished.last().at(0).toULongLong())
            return {};
        return lastReport();
    }
    bool waitForFinished(int count)
    {
        QElapsedTimer clock;
        clock.start();
        while (finished.size() < count && !clock.hasExpired(Patience))
            finished.wait(100);
        return finished.size() == count;
    }
    NxImportReport lastReport() const
    {
        return finished.last().at(1).value<NxImportReport>();
    }

    std::shared_ptr<NxDiskThread> disk;
    NxEngineImporter importer;
    QSignalSpy finished;
};

/// Folders and media below a folder: "a.mp4 [Day: b.mp4]".
QString tree(const INxFolderMedia *folder)
{
    QStringList parts;
    const QList<INxAbstractMedia *> items = folder->items(false, true);
    for (const INxAbstractMedia *item : items)
        parts.append(item->name());
    const QList<INxFolderMedia *> children = folder->childFolders();
    for (const INxFolderMedia *child : children)
        parts.append(QStringLiteral("[%1: %2]").arg(child->name(), tree(child)));
    return parts.join(QLatin1Char(' '));
}

QString text(const NxImportReport &report, const QString &base)
{
    QStringList lines;
    for (const NxImportReportLine &line : report.lines) {
        static const char *const verdicts[]
            = {"there", "copy", "refused", "unreadable", "cancelled"};
        QString path = line.path;
        path.remove(base + QLatin1Char('/'));
        lines.append(QStringLiteral("%1 %2 [%3] %4").arg(
            QLatin1String(verdicts[int(line.verdict)]), path, line.folder, line.reason));
    }
    return lines.join(QLatin1Char('\n'));
}

/// Does something when the item of a number is added, once.
class AtItem : public INxMediaItemEventObserver
{
public:
    AtItem(NxEngineCategory *category, int at, std::function<void()> action)
        : m_category(category), m_at(at), m_action(std::move(action))
    {
        m_category->itemObservers.add(this);
    }
    ~AtItem() override { m_category->itemObservers.remove(this); }
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

/// Takes its time over every item, so that a job of thousands has many slices.
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
        constexpr qint64 nanoseconds = 50'000;
        QElapsedTimer clock;
        clock.start();
        while (clock.nsecsElapsed() < nanoseconds) {
        }
    }

private:
    NxEngineCategory *const m_category;
};

/// Files of one content: hard links are made much faster than files.
void writeMany(const NxTempDir &dir, const QString &folder, int count)
{
    const QString first = dir.write(folder + QStringLiteral("/00000.mp4"));
    for (int i = 1; i < count; ++i) {
        const QString name = QStringLiteral("/%1.mp4").arg(i, 5, 10, QLatin1Char('0'));
        RawFiles::hardLink(first, dir.filePath(folder) + name);
    }
}

/// A disk on which everything below one folder never answers until it is told to.
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

} // namespace

class tst_NxEngineImporter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void foldersBecomeFolders();
    void namedFilesComeIntoTheFolderInTheirOrder();
    void everyPathThatIsNotAddedIsReportedOnce();
    void namesThatAreNoTextAreRefused();
    void importingAgainAddsNothingButNewFiles();
    void theSameFileByAnotherWayIsAlreadyThere();
    void linksToOneFileGiveOneMedia();
    void itemsCarryWhatTheFileTells();
    void everyItemIsAnnouncedInAPairAndReportedAsAdded();
    void progressNeverRunsBackAndEndsWithTheReport();
    void aJobIsOneUndoStep();
    void jobsRunOneAfterAnother();
    void anEmptyJobFinishesLater();
    void startIsRefusedWithALogLine_data();
    void startIsRefusedWithALogLine();
    void cancelStopsInTheMiddle();
    void cancellingAWaitingJobFinishesIt();
    void undoDuringTheImportEndsIt();
    void removingTheTargetEndsIt();
    void theUserMayWorkInBetween();
    void anObserverMayRunAnEventLoop();
    void moreFilesThanTheChannelHolds();
    void aDriveThatDoesNotAnswerCostsOnlyItsPath();
    void stopAllEndsEveryJob();
    void anImporterMayDieInTheMiddle();
    void addNowMakesItemsOfPathsAlone();
    void addNowAnswersWhatIsThere();
    void addNowIsOneStepAndAnnouncesItsFolder();
    void addNowIsRefusedWithALogLine();
    void theFootageIsNotTouched();
};

void tst_NxEngineImporter::foldersBecomeFolders()
{
    const NxTempDir dir;
    for (const char *name : {"Trip/b.mp4", "Trip/a.mp4", "Trip/Day 1/c.jpg", "Trip/Day 2/d.wav",
                             "Trip/Notes/n.txt", "Trip/Empty/Deeper/x.bin"})
        dir.write(QLatin1String(name));
    Import f;
    const NxImportReport report = f.run(f.section, {dir.filePath(QStringLiteral("Trip"))});
    QCOMPARE(tree(f.section),
             QStringLiteral("[Trip: a.mp4 b.mp4 [Day 1: c.jpg] [Day 2: d.wav]]"));
    QCOMPARE(report.added, 4);
    QCOMPARE(report.found, 4);
    QCOMPARE(report.foldersAdded, 3);
    QCOMPARE(report.passedOverOther, 2);
    QCOMPARE(report.lines.size(), 0);
    QCOMPARE(f.memory.brokenInvariant(), QString());
}

void tst_NxEngineImporter::namedFilesComeIntoTheFolderInTheirOrder()
{
    const NxTempDir dir;
    const QString b = dir.write(QStringLiteral("x/b.mp4"));
    const QString a = dir.write(QStringLiteral("y/a.mp4"));
    const QString dat = dir.write(QStringLiteral("v.dat"));
    Import f;
    NxEngineFolder *into = f.addFolder(f.section, QStringLiteral("Into"));
    QCOMPARE(f.run(into, {b, a, dat}).added, 3);
    QCOMPARE(tree(into), QStringLiteral("b.mp4 a.mp4 v.dat"));
}

void tst_NxEngineImporter::everyPathThatIsNotAddedIsReportedOnce()
{
    const NxTempDir dir;
    const QString good = dir.write(QStringLiteral("good.mp4"));
    dir.write(QStringLiteral("note.txt"));
    dir.write(QStringLiteral("what.xyz"));
    dir.write(QStringLiteral("empty.mp4"), QByteArray());
    dir.write(QStringLiteral("in/empty.mp4"), QByteArray());
    dir.write(QStringLiteral("in/ok.mp4"));
    dir.write(QStringLiteral("in/.hidden.mp4"));
    RawFiles::makePipe(dir.filePath(QStringLiteral("in/pipe.mp4")));
    Import f;
    NxEngineFolder *into = f.addFolder(f.section, QStringLiteral("Into"));
    const NxImportReport report = f.run(into, {
        good, good, dir.filePath(QStringLiteral("note.txt")),
        dir.filePath(QStringLiteral("what.xyz")), dir.filePath(QStringLiteral("gone.mp4")),
        dir.filePath(QStringLiteral("empty.mp4")), dir.filePath(QStringLiteral("in"))});
    QCOMPARE(text(report, dir.path()),
             QStringLiteral(
                 "there good.mp4 [Into] It is already in \"Into\".\n"
                 "refused note.txt [Into] Files of the type \"TXT\" cannot be imported.\n"
                 "refused what.xyz [Into] Its name does not tell whether it is media, and files "
                 "cannot be read yet to find out.\n"
                 "unreadable gone.mp4 [Into] It does not exist.\n"
                 "unreadable empty.mp4 [Into] The file is empty.\n"
                 "unreadable in/empty.mp4 [Into/in] The file is empty.\n"
                 "refused in/pipe.mp4 [Into/in] It is a pipe, a socket or a device, not a file."));
    QCOMPARE(report.added, 2);
    QCOMPARE(report.alreadyThere, 1);
    QCOMPARE(report.refused, 3);
    QCOMPARE(report.unreadable, 3);
    QCOMPARE(report.cancelled, 0);
    QCOMPARE(report.passedOverHidden, 1);
    QCOMPARE(report.found, report.added + report.lines.size());
}

void tst_NxEngineImporter::namesThatAreNoTextAreRefused()
{
    const NxTempDir dir;
    const QString in = dir.makeDir(QStringLiteral("in"));
    RawFiles::write(in, "caf\xe9.mp4");
    Import f;
    const NxImportReport report = f.run(f.section, {in});
    QCOMPARE(text(report, dir.path()),
             QStringLiteral("refused in/caf\\xe9.mp4 [in] Its name is not valid UTF-8."));
    QCOMPARE(f.memory.livingMediaCount(), 0);
}

void tst_NxEngineImporter::importingAgainAddsNothingButNewFiles()
{
    const NxTempDir dir;
    writeMany(dir, QStringLiteral("in"), 200);
    const QString in = dir.filePath(QStringLiteral("in"));
    Import f;
    QCOMPARE(f.run(f.section, {in}).added, 200);
    dir.write(QStringLiteral("in/new.mp4"));
    const NxImportReport report = f.run(f.section, {in});
    QCOMPARE(report.added, 1);
    QCOMPARE(report.alreadyThere, 200);
    QCOMPARE(report.lines.first().reason, QStringLiteral("It is already in \"in\"."));
    QCOMPARE(report.foldersAdded, 0);
    QCOMPARE(f.memory.livingMediaCount(), 201);

    QVERIFY(f.items->removeMediaItems(nullptr, {f.named(QStringLiteral("new.mp4"))}));
    QCOMPARE(f.run(f.section, {in}).added, 1); // What was removed may come again.
}

void tst_NxEngineImporter::theSameFileByAnotherWayIsAlreadyThere()
{
    const NxTempDir dir;
    const QString real = dir.write(QStringLiteral("real/a.mp4"));
    RawFiles::link(dir.filePath(QStringLiteral("real")), dir.filePath(QStringLiteral("way")));
    Import f;
    QCOMPARE(f.run(f.section, {dir.filePath(QStringLiteral("way/a.mp4"))}).added, 1);
    QCOMPARE(f.memory.livingMedia().front()->filePath(),
             dir.filePath(QStringLiteral("way/a.mp4")));
    QCOMPARE(f.run(f.section, {real}).alreadyThere, 1);
    QCOMPARE(f.run(f.section, {dir.filePath(QStringLiteral("real"))}).alreadyThere, 1);
    QCOMPARE(f.memory.livingMediaCount(), 1);
}

void tst_NxEngineImporter::linksToOneFileGiveOneMedia()
{
    const NxTempDir dir;
    const QString a = dir.write(QStringLiteral("in/m.mp4"));
    RawFiles::link(a, dir.filePath(QStringLiteral("in/before.mp4")));
    RawFiles::link(a, dir.filePath(QStringLiteral("in/z.mp4")));
    RawFiles::link(QStringLiteral(".."),
                   dir.makeDir(QStringLiteral("in/sub")) + QStringLiteral("/up"));
    Import f;
    const NxImportReport report = f.run(f.section, {dir.filePath(QStringLiteral("in"))});
    QCOMPARE(report.added, 1);
    QCOMPARE(report.passedOverTwice, 3);
    QCOMPARE(report.lines.size(), 0);
    QCOMPARE(report.found, 1);
}

void tst_NxEngineImporter::itemsCarryWhatTheFileTells()
{
    const NxTempDir dir;
    const QString path = dir.write(QStringLiteral("a.mp4"), QByteArray(1'234, 'x'));
    Import f;
    QVERIFY(f.importer.start(f.section, {path}, NXVBLMODEL::mitFolder) != 0);
    QVERIFY(f.waitForFinished(1));
    const NxMediaRecord record = f.memory.livingMedia().front()->record();
    const NxFileFacts facts = NxFileProbe::look(path);
    QCOMPARE(record.size, 1'234);
    QCOMPARE(record.created, facts.created);
    QCOMPARE(record.modified, facts.modified);
    QCOMPARE(record.path, path);
    QCOMPARE(record.importKind, int(NXVBLMODEL::mitFolder));
    QCOMPARE(record.name, QStringLiteral("a.mp4"));
}

void tst_NxEngineImporter::everyItemIsAnnouncedInAPairAndReportedAsAdded()
{
    const NxTempDir dir;
    writeMany(dir, QStringLiteral("in"), 300);
    Import f;
    EngineEvents events(f.category);
    QStringList added;
    connect(&f.importer, &INxMediaImporter::added, this,
        [&added](quint64, const QList<INxAbstractMediaItem *> &items) {
            for (const INxAbstractMediaItem *item : items)
                added.append(item->name());
        });
    QCOMPARE(f.run(f.section, {dir.filePath(QStringLiteral("in"))}).added, 300);
    QStringList expected;
    QStringList names;
    for (const INxAbstractMedia *item : f.section->items(true, true)) {
        names.append(item->name());
        expected.append(QStringLiteral("before add %1 < in").arg(item->name()));
        expected.append(QStringLiteral("after add %1 < in").arg(item->name()));
    }
    QCOMPARE(events.take().filter(QStringLiteral(".mp4")), expected);
    QCOMPARE(events.complaints, QStringList());
    QCOMPARE(added, names);
}

void tst_NxEngineImporter::progressNeverRunsBackAndEndsWithTheReport()
{
    const NxTempDir dir;
    writeMany(dir, QStringLiteral("in"), 500);
    Import f;
    const SlowObserver slow(f.category);
    QSignalSpy progress(&f.importer, &INxMediaImporter::progress);
    const NxImportReport report = f.run(f.section, {dir.filePath(QStringLiteral("in"))});
    QVERIFY(!progress.isEmpty());
    qint64 found = 0;
    qint64 added = 0;
    for (const QList<QVariant> &told : progress) {
        QVERIFY(told.at(1).toLongLong() >= found);
        QVERIFY(told.at(2).toLongLong() >= added);
        found = told.at(1).toLongLong();
        added = told.at(2).toLongLong();
        QVERIFY(added <= found);
    }
    QCOMPARE(added, report.added);
    QCOMPARE(found, report.found);
}

void tst_NxEngineImporter::aJobIsOneUndoStep()
{
    const NxTempDir dir;
    writeMany(dir, QStringLiteral("in/deep"), 2'000);
    Import f;
    QCOMPARE(f.run(f.section, {dir.filePath(QStringLiteral("in"))}).added, 2'000);
    QCOMPARE(f.undo->count(), 1);
    QVERIFY(f.undo->undo());
    QCOMPARE(tree(f.section), QString());
    QVERIFY(f.undo->redo());
    QCOMPARE(f.memory.livingMediaCount(), 2'000);
}

void tst_NxEngineImporter::jobsRunOneAfterAnother()
{
    const NxTempDir dir;
    writeMany(dir, QStringLiteral("a"), 300);
    writeMany(dir, QStringLiteral("b"), 300);
    Import f;
    const quint64 first = f.importer.start(f.section, {dir.filePath(QStringLiteral("a"))}, 0);
    const quint64 second = f.importer.start(f.section, {dir.filePath(QStringLiteral("b"))}, 0);
    QVERIFY(first != 0 && second != 0 && first != second);
    QVERIFY(f.waitForFinished(2));
    QCOMPARE(f.finished.at(0).at(0).toULongLong(), first);
    QCOMPARE(f.finished.at(1).at(0).toULongLong(), second);
    QCOMPARE(f.undo->count(), 2);
    QCOMPARE(f.finished.at(0).at(1).value<NxImportReport>().added, 300);
    QVERIFY(!f.importer.isRunning());
}

void tst_NxEngineImporter::anEmptyJobFinishesLater()
{
    Import f;
    QVERIFY(f.importer.start(f.section, {}, 0) != 0);
    QCOMPARE(f.finished.size(), 0);
    QVERIFY(f.waitForFinished(1));
    QCOMPARE(f.lastReport().lines.size(), 0);
    QCOMPARE(f.undo->count(), 0);
}

void tst_NxEngineImporter::startIsRefusedWithALogLine_data()
{
    QTest::addColumn<int>("folder");
    QTest::addColumn<bool>("readOnly");
    QTest::newRow("no folder") << -1 << false;
    QTest::newRow("hidden root takes no media") << int(NXVBLMODEL::fidHiddenRoot) << false;
    QTest::newRow("read-only project") << int(NXVBLMODEL::fidRoot) << true;
}

void tst_NxEngineImporter::startIsRefusedWithALogLine()
{
    QFETCH(int, folder);
    QFETCH(bool, readOnly);
    Import f;
    f.memory.setReadOnly(readOnly);
    NxTestLog::expectError(QStringLiteral("nothing can be imported"));
    QCOMPARE(f.importer.start(f.category->folder(folder), {QStringLiteral("/a.mp4")}, 0), 0ull);
    QVERIFY(!f.importer.isRunning());
}

void tst_NxEngineImporter::cancelStopsInTheMiddle()
{
    const NxTempDir dir;
    writeMany(dir, QStringLiteral("in"), 3'000);
    Import f;
    quint64 job = 0;
    const AtItem cancel(f.category, 50, [&f, &job] { f.importer.cancel(job); });
    const QStringList paths{dir.filePath(QStringLiteral("in")), dir.filePath(QStringLiteral("x"))};
    job = f.importer.start(f.section, paths, 0);
    QVERIFY(f.waitForFinished(1));
    const NxImportReport report = f.lastReport();
    QVERIFY(report.added >= 50);
    QVERIFY(report.added < 3'000);
    QCOMPARE(report.added, f.memory.livingMediaCount());
    QCOMPARE(text(report, dir.path()),
             QStringLiteral("cancelled in [] The import was cancelled.\n"
                            "cancelled x [] The import was cancelled."));
    f.importer.cancel(job); // Nothing happens any more.
    QCOMPARE(f.run(f.section, {dir.filePath(QStringLiteral("in"))}).added, 3'000 - report.added);
    QCOMPARE(f.finished.size(), 2);
}

void tst_NxEngineImporter::cancellingAWaitingJobFinishesIt()
{
    const NxTempDir dir;
    writeMany(dir, QStringLiteral("in"), 100);
    Import f;
    const quint64 first = f.importer.start(f.section, {dir.filePath(QStringLiteral("in"))}, 0);
    const quint64 second = f.importer.start(f.section, {QStringLiteral("/b.mp4")}, 0);
    f.importer.cancel(second);
    QCOMPARE(f.finished.size(), 1);
    QCOMPARE(f.finished.first().at(0).toULongLong(), second);
    QCOMPARE(f.lastReport().cancelled, 1);
    QVERIFY(f.waitForFinished(2));
    QCOMPARE(f.finished.last().at(0).toULongLong(), first);
    QCOMPARE(f.lastReport().added, 100);
}

void tst_NxEngineImporter::undoDuringTheImportEndsIt()
{
    const NxTempDir dir;
    writeMany(dir, QStringLiteral("in"), 3'000);
    Import f;
    const SlowObserver slow(f.category);
    QMetaObject::Connection once;
    once = connect(&f.importer, &INxMediaImporter::added, this, [&f, &once] {
        disconnect(once);
        QVERIFY(f.undo->undo());
    });
    const NxImportReport report = f.run(f.section, {dir.filePath(QStringLiteral("in"))});
    QCOMPARE(report.added, 0);
    QCOMPARE(report.cancelled, 1);
    QVERIFY(report.lines.last().reason.contains(QStringLiteral("taken back")));
    QCOMPARE(tree(f.section), QString());
    QVERIFY(f.undo->canRedo());
}

void tst_NxEngineImporter::removingTheTargetEndsIt()
{
    const NxTempDir dir;
    writeMany(dir, QStringLiteral("in"), 3'000);
    Import f;
    const SlowObserver slow(f.category);
    NxEngineFolder *into = f.addFolder(f.section, QStringLiteral("Into"));
    QMetaObject::Connection once;
    once = connect(&f.importer, &INxMediaImporter::added, this, [&f, &once, into] {
        disconnect(once);
        QVERIFY(f.folders->removeFolder(into));
    });
    const NxImportReport report = f.run(into, {dir.filePath(QStringLiteral("in"))});
    QCOMPARE(text(report, dir.path()),
             QStringLiteral("cancelled in [Into] The folder it was meant for has been removed."));
    QCOMPARE(f.memory.livingMediaCount(), 0);
    QCOMPARE(f.memory.brokenInvariant(), QString());
}

void tst_NxEngineImporter::theUserMayWorkInBetween()
{
    const NxTempDir dir;
    writeMany(dir, QStringLiteral("in"), 2'000);
    Import f;
    const SlowObserver slow(f.category);
    int changes = 0;
    connect(&f.importer, &INxMediaImporter::added, this,
        [&f, &changes](quint64, const QList<INxAbstractMediaItem *> &items) {
            ++changes;
            if (changes < 20)
                f.items->renameMediaItem(items.first(), QStringLiteral("mine %1").arg(changes));
        });
    QCOMPARE(f.run(f.section, {dir.filePath(QStringLiteral("in"))}).added, 2'000);
    QVERIFY(changes > 1);
    while (f.undo->canUndo())
        QVERIFY(f.undo->undo());
    QCOMPARE(tree(f.section), QString());
    while (f.undo->canRedo())
        QVERIFY(f.undo->redo());
    QCOMPARE(f.memory.livingMediaCount(), 2'000);
    QVERIFY(f.named(QStringLiteral("mine 1")));
    QCOMPARE(f.memory.brokenInvariant(), QString());
}

void tst_NxEngineImporter::anObserverMayRunAnEventLoop()
{
    const NxTempDir dir;
    writeMany(dir, QStringLiteral("in"), 500);
    Import f;
    const AtItem nested(f.category, 100, [] {
        QElapsedTimer clock;
        clock.start();
        while (!clock.hasExpired(100))
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    });
    QCOMPARE(f.run(f.section, {dir.filePath(QStringLiteral("in"))}).added, 500);
    QCOMPARE(f.undo->count(), 1);
}

void tst_NxEngineImporter::moreFilesThanTheChannelHolds()
{
    const NxTempDir dir;
    for (int i = 0; i < 6; ++i)
        writeMany(dir, QStringLiteral("in/%1").arg(i), 4'000);
    Import f;
    QCOMPARE(f.run(f.section, {dir.filePath(QStringLiteral("in"))}).added, 24'000);
    QCOMPARE(f.memory.livingMediaCount(), 24'000);
    QCOMPARE(f.undo->count(), 1);
}

void tst_NxEngineImporter::aDriveThatDoesNotAnswerCostsOnlyItsPath()
{
    const NxTempDir dir;
    for (const char *name : {"a/1.mp4", "dead/2.mp4", "c/3.mp4"})
        dir.write(QLatin1String(name));
    DeadDrive drive;
    Import f(drive.look(dir.filePath(QStringLiteral("dead/2.mp4"))),
             std::chrono::milliseconds(2'000));
    const NxImportReport report = f.run(f.section, {
        dir.filePath(QStringLiteral("a")), dir.filePath(QStringLiteral("dead")),
        dir.filePath(QStringLiteral("c"))});
    QCOMPARE(tree(f.section), QStringLiteral("[a: 1.mp4] [c: 3.mp4]"));
    QCOMPARE(text(report, dir.path()),
             QStringLiteral("unreadable dead [dead] The drive does not answer."));
    QCOMPARE(f.disk->hangingThreads(), 1);
}

void tst_NxEngineImporter::stopAllEndsEveryJob()
{
    const NxTempDir dir;
    writeMany(dir, QStringLiteral("in"), 2'000);
    Import f;
    const SlowObserver slow(f.category);
    bool stopped = false;
    f.importer.start(f.section, {dir.filePath(QStringLiteral("in"))}, 0);
    f.importer.start(f.section, {QStringLiteral("/b.mp4")}, 0);
    connect(&f.importer, &INxMediaImporter::added, this, [&f, &stopped] {
        if (!std::exchange(stopped, true))
            f.importer.stopAll();
    });
    QTRY_COMPARE(f.finished.size(), 2);
    QVERIFY(!f.importer.isRunning());
    QVERIFY(f.memory.livingMediaCount() < 2'000);
    QCOMPARE(f.lastReport().added, f.memory.livingMediaCount());
    QVERIFY(f.lastReport().lines.last().reason.contains(QStringLiteral("closed")));
}

void tst_NxEngineImporter::anImporterMayDieInTheMiddle()
{
    const NxTempDir dir;
    writeMany(dir, QStringLiteral("in"), 2'000);
    EngineFixture f;
    auto disk = std::make_shared<NxDiskThread>();
    auto importer
        = std::make_unique<NxEngineImporter>(&f.memory, f.category, disk, nullptr);
    bool died = false;
    connect(importer.get(), &INxMediaImporter::added, &f.memory, [&importer, &died] {
        importer.reset();
        died = true;
    });
    QVERIFY(importer->start(f.section, {dir.filePath(QStringLiteral("in"))}, 0) != 0);
    QTRY_VERIFY(died);
    QVERIFY(f.memory.livingMediaCount() > 0);
}

void tst_NxEngineImporter::addNowMakesItemsOfPathsAlone()
{
    Import f;
    NxImportReport report;
    const QStringList paths{QStringLiteral("/not/there/a.mp4"), QStringLiteral("/not/b.txt"),
                            QStringLiteral("/not/../c.dat")};
    const QList<INxAbstractMediaItem *> items = f.importer.addNow(f.section, paths, &report);
    QCOMPARE(items.size(), 2);
    QCOMPARE(items.at(0)->filePath(), QStringLiteral("/not/there/a.mp4"));
    QCOMPARE(items.at(1)->filePath(), QStringLiteral("/c.dat"));
    QCOMPARE(items.at(0)->sourceSize(), -1);
    QCOMPARE(report.added, 2);
    QCOMPARE(report.refused, 1);
    QCOMPARE(report.lines.size(), 1);
    QCOMPARE(report.lines.first().path, QStringLiteral("/not/b.txt"));
}

void tst_NxEngineImporter::addNowAnswersWhatIsThere()
{
    Import f;
    NxEngineFolder *day = f.addFolder(f.section, QStringLiteral("Day"));
    NxEngineMedia *there = f.addMedia(day, QStringLiteral("a.mp4"));
    NxImportReport report;
    const QString b = QStringLiteral("/footage/b.mp4");
    const QList<INxAbstractMediaItem *> items
        = f.importer.addNow(f.section, {b, QStringLiteral("/footage/a.mp4"), b}, &report);
    QCOMPARE(items.size(), 3);
    QCOMPARE(items.at(1), there);
    QCOMPARE(items.at(0), items.at(2));
    QCOMPARE(there->folder(), day);
    QCOMPARE(report.added, 1);
    QCOMPARE(report.alreadyThere, 2);
    QVERIFY(report.lines.first().reason.contains(QStringLiteral("Day")));
    QCOMPARE(f.memory.livingMediaCount(), 2);
}

void tst_NxEngineImporter::addNowIsOneStepAndAnnouncesItsFolder()
{
    Import f;
    EngineEvents events(f.category);
    const int before = f.undo->count();
    QCOMPARE(f.importer.addNow(f.section, {QStringLiteral("/a.mp4"), QStringLiteral("/b.mp4")},
                               nullptr).size(), 2);
    QCOMPARE(f.undo->count(), before + 1);
    const QStringList told = events.take();
    QCOMPARE(told.size(), 5);
    QCOMPARE(events.complaints, QStringList());
    QCOMPARE(f.importer.addNow(f.section, {QStringLiteral("/a.mp4")}, nullptr).size(), 1);
    QCOMPARE(f.undo->count(), before + 1); // Nothing new: no step, no event.
    QCOMPARE(events.take(), QStringList());
}

void tst_NxEngineImporter::addNowIsRefusedWithALogLine()
{
    Import f;
    NxTestLog::expectError(QStringLiteral("nothing can be imported"));
    QCOMPARE(f.importer.addNow(f.category->root(), {QStringLiteral("/a.mp4")}, nullptr).size(), 0);
}

void tst_NxEngineImporter::theFootageIsNotTouched()
{
    const NxTempDir dir;
    writeMany(dir, QStringLiteral("in/sub"), 50);
    RawFiles::write(dir.filePath(QStringLiteral("in")), "caf\xe9.mp4");
    RawFiles::makePipe(dir.filePath(QStringLiteral("in/pipe.mp4")));
    const NxFootageGuard guard(dir.path());
    Import f;
    QCOMPARE(f.run(f.section, {dir.filePath(QStringLiteral("in"))}).added, 50);
    QVERIFY(f.undo->undo());
    NX_VERIFY_UNTOUCHED(guard);
}

NX_TEST_MAIN(tst_NxEngineImporter)
#include "tst_NxEngineImporter.moc"
