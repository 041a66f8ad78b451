// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/disk/NxPresenceKeeper.h>

#include "RawFiles.h"

#include <EngineEvents.h>
#include <EngineFixture.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <NxCore/NxFile.h>
#include <NxCore/NxQueue.h>
#include <NxVBLEngine/disk/NxDiskThread.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>
#include <QTimer>

#include <atomic>
#include <memory>
#include <thread>

namespace {

/// A project in memory whose files are watched.
struct Watch
{
    explicit Watch(const NxPresenceDisk &looks = {}, const QString &project = {},
        std::chrono::milliseconds patience = NxDiskThread::DefaultPatience)
        : disk(std::make_shared<NxDiskThread>(patience))
        , memory(project)
        , category(memory.category(NXVBLMODEL::mctMedia))
        , section(category->folder(NXVBLMODEL::fidRoot))
        , keeper(&memory, disk, looks)
    {
    }
    NxEngineMedia *add(const QString &path)
    {
        NxMediaSeed seed;
        seed.path = path;
        return memory.addNewMedia(section, {seed}).first();
    }
    bool refresh()
    {
        const auto done = std::make_shared<bool>(false);
        keeper.refreshNow([done] { *done = true; });
        return QTest::qWaitFor([done] { return *done; }, 30'000);
    }

    std::shared_ptr<NxDiskThread> disk;
    NxProjectMemory memory;
    NxEngineCategory *const category;
    NxEngineFolder *const section;
    NxPresenceKeeper keeper;
};

/// Counts all looks, and never answers for what is below one folder until it is told to.
struct Disk
{
    explicit Disk(const QString &deadVolume = {})
    {
        const auto s = state;
        disk.look = [s, deadVolume](const QString &path) {
            ++s->looks;
            if (!deadVolume.isEmpty() && path.startsWith(deadVolume))
                (void)s->gate.waitPop(std::chrono::minutes(5));
            return NxFileProbe::look(path);
        };
        disk.volumeRoots = [deadVolume] {
            QStringList roots(QStringLiteral("/"));
            if (!deadVolume.isEmpty())
                roots.append(deadVolume);
            return roots;
        };
    }
    ~Disk() { state->gate.close(); }

    struct State
    {
        std::atomic<int> looks{0};
        NxQueue<bool> gate;
    };
    const std::shared_ptr<State> state = std::make_shared<State>();
    NxPresenceDisk disk;
};

/// Takes a millisecond over every change, and counts them.
class SlowObserver : public INxMediaItemEventObserver
{
public:
    explicit SlowObserver(NxEngineCategory *category) : m_category(category)
    {
        m_category->itemObservers.add(this);
    }
    ~SlowObserver() override { m_category->itemObservers.remove(this); }
    void onMediaStateChangedEvent(INxAbstractMedia *) override
    {
        ++told;
        QElapsedTimer clock;
        clock.start();
        while (!clock.hasExpired(1)) {
        }
    }
    int told = 0;

private:
    NxEngineCategory *const m_category;
};

/// Everything a keeper tells of files that are there.
struct Seen
{
    explicit Seen(NxPresenceKeeper *keeper)
    {
        QObject::connect(keeper, &NxPresenceKeeper::seen, keeper,
            [this](qint64 media, const NxFileStamp &stamp) { all.append({media, stamp}); });
    }
    [[nodiscard]] QVector<qint64> sizes(const NxEngineMedia *media) const
    {
        QVector<qint64> sizes;
        for (const auto &[id, stamp] : all) {
            if (id == media->id())
                sizes.append(stamp.size);
        }
        return sizes;
    }
    QVector<QPair<qint64, NxFileStamp>> all;
};

void append(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::Append) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qUtf8Printable(path));
}


} // namespace

class tst_NxPresenceKeeper : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyFileIsLookedAtOnce();
    void whatIsSeenIsAnnouncedWhenItDiffers();
    void goneAndBackIsNoticed();
    void aVolumeThatGoesAndReturnsIsNoticed();
    void renamedFolderIsNoticed();
    void newMediaAreLookedAt();
    void relinkedMediaAreLookedAt();
    void addedNowGetsItsFacts();
    void theAnswererNeverTouchesTheDisk();
    void theAnswererKnowsOnlyMediaOfTheProject();
    void otherThreadsAreNotAnswered();
    void footageThatMovedWithTheProjectIsFound();
    void footageThatStayedIsNotMoved();
    void aDeadDriveMarksOnlyItsOwn();
    void aDriveThatAnswersAgainIsNoticed();
    void refreshWaitsForEveryAnswer();
    void refreshOfNothingIsDoneLater();
    void slowObserversDoNotHoldTheEventLoop();
    void aFewLooksAtRest();
    void filesThatAreThereAreToldOf();
    void singleFilesAreLookedAtAgain();
    void whatIsWrittenIntoAFileIsNoticed();
    void theKeeperMayDieWhenItTellsOfAFile();
    void theKeeperMayDieAtAnyTime();
    void theFootageIsNotTouched();
};

void tst_NxPresenceKeeper::everyFileIsLookedAtOnce()
{
    const NxTempDir dir;
    Watch f;
    NxEngineMedia *there = f.add(dir.write(QStringLiteral("a.mp4")));
    NxEngineMedia *missing = f.add(dir.filePath(QStringLiteral("gone.mp4")));
    NxEngineMedia *away = f.add(QStringLiteral("/no/such/volume/b.mp4"));
    NxEngineMedia *folder = f.add(dir.makeDir(QStringLiteral("c.mp4")));
    RawFiles::makePipe(dir.filePath(QStringLiteral("p.mp4")));
    NxEngineMedia *pipe = f.add(dir.filePath(QStringLiteral("p.mp4")));
    QCOMPARE(there->presence(), NxPresence::Unknown);
    QVERIFY(!missing->isUnavailable());
    f.keeper.start();
    QTRY_COMPARE(there->presence(), NxPresence::Present);
    QTRY_COMPARE(missing->presence(), NxPresence::Missing);
    QTRY_COMPARE(away->presence(), NxPresence::Missing);
    QTRY_COMPARE(folder->presence(), NxPresence::Missing);
    QTRY_COMPARE(pipe->presence(), NxPresence::Unreadable);
    QVERIFY(missing->isUnavailable());
    QVERIFY(!missing->unavailableReason().isEmpty());
}

void tst_NxPresenceKeeper::whatIsSeenIsAnnouncedWhenItDiffers()
{
    const NxTempDir dir;
    Watch f;
    NxMediaSeed seed;
    seed.path = dir.write(QStringLiteral("a.mp4"));
    const NxFileFacts facts = NxFileProbe::look(seed.path);
    seed.size = facts.size;
    seed.created = facts.created;
    seed.modified = facts.modified;
    f.memory.addNewMedia(f.section, {seed});
    f.add(dir.filePath(QStringLiteral("gone.mp4")));
    EngineEvents events(f.category);
    QVERIFY(f.refresh());
    const QStringList told = events.take();
    QCOMPARE(told.size(), 1);
    QVERIFY(told.first().contains(QStringLiteral("gone.mp4")));
    QVERIFY(f.refresh());
    QCOMPARE(events.take(), QStringList());
}

void tst_NxPresenceKeeper::goneAndBackIsNoticed()
{
    const NxTempDir dir;
    const QString path = dir.write(QStringLiteral("a.mp4"));
    dir.write(QStringLiteral("b.mp4"));
    Watch f;
    NxEngineMedia *media = f.add(path);
    NxEngineMedia *other = f.add(dir.filePath(QStringLiteral("b.mp4")));
    QVERIFY(f.refresh());
    const QString aside = dir.filePath(QStringLiteral("aside"));
    QVERIFY(QFile::rename(path, aside));
    QTRY_COMPARE(media->presence(), NxPresence::Missing);
    QVERIFY(QFile::rename(aside, path));
    QTRY_COMPARE(media->presence(), NxPresence::Present);
    QCOMPARE(other->presence(), NxPresence::Present);
    QCOMPARE(f.memory.livingMediaCount(), 2);
}

void tst_NxPresenceKeeper::aVolumeThatGoesAndReturnsIsNoticed()
{
    const NxTempDir dir;
    Watch f;
    QVector<NxEngineMedia *> media;
    for (int i = 0; i < 200; ++i)
        media.append(f.add(dir.write(QStringLiteral("usb/day %1/a.mp4").arg(i))));
    QVERIFY(f.refresh());
    const auto allAre = [&media](NxPresence presence) {
        return std::all_of(media.cbegin(), media.cend(), [presence](const NxEngineMedia *each) {
            return each->presence() == presence;
        });
    };
    QVERIFY(allAre(NxPresence::Present));
    QVERIFY(
        QDir().rename(dir.filePath(QStringLiteral("usb")), dir.filePath(QStringLiteral("off"))));
    QTRY_VERIFY(allAre(NxPresence::Missing));
    QVERIFY(
        QDir().rename(dir.filePath(QStringLiteral("off")), dir.filePath(QStringLiteral("usb"))));
    QTRY_VERIFY(allAre(NxPresence::Present));
}

void tst_NxPresenceKeeper::renamedFolderIsNoticed()
{
    const NxTempDir dir;
    Watch f;
    NxEngineMedia *media = f.add(dir.write(QStringLiteral("in/a.mp4")));
    f.keeper.start();
    QTRY_COMPARE(media->presence(), NxPresence::Present);
    QVERIFY(QDir().rename(dir.filePath(QStringLiteral("in")), dir.filePath(QStringLiteral("out"))));
    QTRY_COMPARE(media->presence(), NxPresence::Missing);
}

void tst_NxPresenceKeeper::newMediaAreLookedAt()
{
    const NxTempDir dir;
    Watch f;
    f.keeper.start();
    NxEngineMedia *media = f.add(dir.filePath(QStringLiteral("gone.mp4")));
    QTRY_COMPARE(media->presence(), NxPresence::Missing);
}

void tst_NxPresenceKeeper::relinkedMediaAreLookedAt()
{
    const NxTempDir dir;
    Watch f;
    NxEngineMedia *media = f.add(dir.filePath(QStringLiteral("gone.mp4")));
    QVERIFY(f.refresh());
    QCOMPARE(media->presence(), NxPresence::Missing);
    const QString found = dir.write(QStringLiteral("found/a.mp4"));
    QVERIFY(f.category->itemManager()->relinkMedia(media, found));
    QTRY_COMPARE(media->presence(), NxPresence::Present);
}

void tst_NxPresenceKeeper::addedNowGetsItsFacts()
{
    const NxTempDir dir;
    Watch f;
    NxEngineMedia *media = f.add(dir.write(QStringLiteral("a.mp4"), QByteArray(99, 'x')));
    QCOMPARE(media->sourceSize(), -1);
    QVERIFY(f.refresh());
    QCOMPARE(media->sourceSize(), 99);
    QVERIFY(media->lastModified().isValid());
}

void tst_NxPresenceKeeper::theAnswererNeverTouchesTheDisk()
{
    const NxTempDir dir;
    const Disk disk;
    Watch f(disk.disk);
    const QString there = dir.write(QStringLiteral("a.mp4"));
    const QString gone = dir.filePath(QStringLiteral("gone.mp4"));
    f.add(there);
    NxEngineMedia *missing = f.add(gone);
    QCOMPARE(f.keeper.known(gone), std::optional<bool>(true)); // Not looked at yet.
    f.keeper.start();
    QTRY_COMPARE(missing->presence(), NxPresence::Missing);
    NxFile::setAnswerer([&f](const QString &path) { return f.keeper.known(path); });
    // Without a turn of the event loop no answer changes, whatever the disk says.
    QVERIFY(QFile::rename(there, gone));
    QVERIFY(NxFile::exists(there));
    QVERIFY(!NxFile::exists(gone));
    NxFile::setAnswerer({});
    QVERIFY(!NxFile::exists(there));
}

void tst_NxPresenceKeeper::theAnswererKnowsOnlyMediaOfTheProject()
{
    const NxTempDir dir;
    Watch f;
    const QString path = dir.write(QStringLiteral("a.mp4"));
    NxEngineMedia *media = f.add(path);
    QCOMPARE(f.keeper.known(dir.write(QStringLiteral("b.mp4"))), std::optional<bool>());
    const QVector<std::pair<NxPresence, bool>> table{
        {NxPresence::Unknown, true},     {NxPresence::Present, true},
        {NxPresence::Missing, false},    {NxPresence::Unreachable, false},
        {NxPresence::Unreadable, true},  {NxPresence::Denied, true},
    };
    for (const auto &[presence, exists] : table) {
        f.memory.setPresence(media, presence);
        QCOMPARE(f.keeper.known(path), std::optional<bool>(exists));
    }
    QVERIFY(f.category->itemManager()->removeMediaItems(f.section, {media}));
    QCOMPARE(f.keeper.known(path), std::optional<bool>());
}

void tst_NxPresenceKeeper::otherThreadsAreNotAnswered()
{
    Watch f;
    f.add(QStringLiteral("/footage/a.mp4"));
    std::optional<bool> answer = true;
    std::thread other([&] { answer = f.keeper.known(QStringLiteral("/footage/a.mp4")); });
    other.join();
    QCOMPARE(answer, std::optional<bool>());
}

void tst_NxPresenceKeeper::footageThatMovedWithTheProjectIsFound()
{
    const NxTempDir dir;
    const QString moved = dir.write(QStringLiteral("new/footage/a.mp4"));
    Watch f({}, dir.filePath(QStringLiteral("new/p.brevano")));
    NxEngineMedia *media = f.add(dir.filePath(QStringLiteral("old/footage/a.mp4")));
    NxEngineMedia *lost = f.add(dir.filePath(QStringLiteral("old/footage/lost.mp4")));
    f.keeper.setRelativePaths({{media->id(), QStringLiteral("footage/a.mp4")},
                               {lost->id(), QStringLiteral("footage/lost.mp4")}});
    QVERIFY(f.refresh());
    QCOMPARE(media->filePath(), moved);
    QCOMPARE(media->presence(), NxPresence::Present);
    QCOMPARE(lost->filePath(), dir.filePath(QStringLiteral("old/footage/lost.mp4")));
    QCOMPARE(lost->presence(), NxPresence::Missing);
    QCOMPARE(f.memory.mediaByPath(moved, NXVBLMODEL::mctMedia), media);
    QVERIFY(QFile::remove(moved));
    QTRY_COMPARE(media->presence(), NxPresence::Missing);
}

void tst_NxPresenceKeeper::footageThatStayedIsNotMoved()
{
    const NxTempDir dir;
    const QString stayed = dir.write(QStringLiteral("old/a.mp4"));
    dir.write(QStringLiteral("new/a.mp4"));
    Watch f({}, dir.filePath(QStringLiteral("new/p.brevano")));
    NxEngineMedia *media = f.add(stayed);
    f.keeper.setRelativePaths({{media->id(), QStringLiteral("a.mp4")}});
    QVERIFY(f.refresh());
    QCOMPARE(media->filePath(), stayed);
}

void tst_NxPresenceKeeper::aDeadDriveMarksOnlyItsOwn()
{
    const NxTempDir dir;
    const Disk disk(dir.makeDir(QStringLiteral("dead")));
    Watch f(disk.disk, QString(), std::chrono::milliseconds(2'000));
    NxEngineMedia *alive = f.add(dir.write(QStringLiteral("alive/a.mp4")));
    QVector<NxEngineMedia *> dead;
    for (int i = 0; i < 50; ++i)
        dead.append(f.add(dir.write(QStringLiteral("dead/%1/a.mp4").arg(i))));
    NxEngineMedia *alsoAlive = f.add(dir.write(QStringLiteral("later/a.mp4")));
    QVERIFY(f.refresh());
    QCOMPARE(alive->presence(), NxPresence::Present);
    QCOMPARE(alsoAlive->presence(), NxPresence::Present);
    for (const NxEngineMedia *each : std::as_const(dead))
        QCOMPARE(each->presence(), NxPresence::Unreachable);
    QVERIFY(f.refresh()); // It is not asked again: one thread waits for it, not more.
    QCOMPARE(f.disk->hangingThreads(), 1);
    QCOMPARE(f.keeper.known(dead.first()->filePath()), std::optional<bool>(false));
}

void tst_NxPresenceKeeper::aDriveThatAnswersAgainIsNoticed()
{
    const NxTempDir dir;
    const Disk disk(dir.makeDir(QStringLiteral("dead")));
    Watch f(disk.disk, QString(), std::chrono::milliseconds(2'000));
    NxEngineMedia *media = f.add(dir.write(QStringLiteral("dead/a.mp4")));
    NxEngineMedia *gone = f.add(dir.filePath(QStringLiteral("dead/gone.mp4")));
    QVERIFY(f.refresh());
    QCOMPARE(media->presence(), NxPresence::Unreachable);
    disk.state->gate.close();
    QTRY_COMPARE(media->presence(), NxPresence::Present);
    QTRY_COMPARE(gone->presence(), NxPresence::Missing);
    QTRY_COMPARE(f.disk->hangingThreads(), 0);
}

void tst_NxPresenceKeeper::refreshWaitsForEveryAnswer()
{
    const NxTempDir dir;
    Watch f;
    QVector<NxEngineMedia *> media;
    for (int i = 0; i < 3'000; ++i)
        media.append(f.add(dir.filePath(QStringLiteral("%1/%2.mp4").arg(i % 7).arg(i))));
    QVERIFY(f.refresh());
    for (const NxEngineMedia *each : std::as_const(media))
        QCOMPARE(each->presence(), NxPresence::Missing);
    const QString back = dir.write(QStringLiteral("3/10.mp4"));
    QVERIFY(f.refresh());
    QCOMPARE(media.at(10)->filePath(), back);
    QCOMPARE(media.at(10)->presence(), NxPresence::Present);
}

void tst_NxPresenceKeeper::refreshOfNothingIsDoneLater()
{
    Watch f;
    bool done = false;
    f.keeper.refreshNow([&done] { done = true; });
    QVERIFY(!done);
    QTRY_VERIFY(done);
}

void tst_NxPresenceKeeper::slowObserversDoNotHoldTheEventLoop()
{
    const NxTempDir dir;
    Watch f;
    for (int i = 0; i < 300; ++i)
        f.add(dir.filePath(QStringLiteral("gone/%1.mp4").arg(i)));
    SlowObserver slow(f.category);
    int most = 0;
    QTimer heart;
    connect(&heart, &QTimer::timeout, this,
        [&] { most = std::max(most, std::exchange(slow.told, 0)); });
    heart.start(0);
    QVERIFY(f.refresh());
    // A millisecond an item: few of them between two turns of the event loop.
    QVERIFY(most > 0);
    QVERIFY2(most <= 20, qPrintable(QString::number(most)));
}

void tst_NxPresenceKeeper::aFewLooksAtRest()
{
    const NxTempDir dir;
    const Disk disk;
    Watch f(disk.disk);
    for (int i = 0; i < 200; ++i)
        f.add(dir.filePath(QStringLiteral("gone/%1.mp4").arg(i)));
    QVERIFY(f.refresh());
    const int before = disk.state->looks;
    QTRY_VERIFY(disk.state->looks > before); // A round went by.
    // Three a round, and the next round may have gone by as well.
    QVERIFY2(disk.state->looks <= before + 30, "two hundred files are away with one folder");
}

void tst_NxPresenceKeeper::filesThatAreThereAreToldOf()
{
    const NxTempDir dir;
    Watch f;
    const Seen seen(&f.keeper);
    const QString path = dir.write(QStringLiteral("a.mp4"), QByteArray(99, 'x'));
    const NxEngineMedia *there = f.add(path);
    f.add(dir.filePath(QStringLiteral("gone.mp4")));
    f.add(dir.makeDir(QStringLiteral("folder.mp4")));
    QVERIFY(f.refresh());
    QVERIFY(!seen.all.isEmpty());
    for (const auto &[media, stamp] : seen.all) {
        QCOMPARE(media, there->id());
        QCOMPARE(stamp.size, 99);
        QCOMPARE(stamp.modified, NxFileProbe::look(path).modified);
    }
    QCOMPARE(there->sourceSize(), 99); // The project knows it before anybody is told.
}

void tst_NxPresenceKeeper::singleFilesAreLookedAtAgain()
{
    const NxTempDir dir;
    Watch f;
    const NxEngineMedia *first = f.add(dir.write(QStringLiteral("a.mp4")));
    const NxEngineMedia *second = f.add(dir.write(QStringLiteral("b.mp4")));
    QVERIFY(f.refresh());
    append(first->filePath(), "more");
    append(second->filePath(), "more");
    const Seen seen(&f.keeper);
    f.keeper.lookAgain({second->id(), 999});
    QTRY_VERIFY(seen.sizes(second).contains(5));
    const auto grown = std::find_if(seen.all.begin(), seen.all.end(),
                                    [](const auto &each) { return each.second.size == 5; });
    QCOMPARE(grown->first, second->id()); // In its turn the other would come first.
    QCOMPARE(second->sourceSize(), 5);
}

void tst_NxPresenceKeeper::whatIsWrittenIntoAFileIsNoticed()
{
    const NxTempDir dir;
    Watch f;
    QVector<NxEngineMedia *> media;
    for (int i = 0; i < 50; ++i)
        media.append(f.add(dir.write(QStringLiteral("%1/%2.mp4").arg(i % 5).arg(i))));
    QVERIFY(f.refresh());
    const Seen seen(&f.keeper);
    append(media.at(7)->filePath(), "more"); // Its folder is as it was.
    append(media.at(49)->filePath(), "still more");
    QTRY_VERIFY(seen.sizes(media.at(7)).contains(5));
    QTRY_VERIFY(seen.sizes(media.at(49)).contains(11));
}

void tst_NxPresenceKeeper::theKeeperMayDieWhenItTellsOfAFile()
{
    const NxTempDir dir;
    Watch f;
    for (int i = 0; i < 20; ++i)
        f.add(dir.write(QStringLiteral("%1.mp4").arg(i)));
    auto keeper = std::make_unique<NxPresenceKeeper>(&f.memory, f.disk);
    int told = 0;
    connect(keeper.get(), &NxPresenceKeeper::seen, this, [&] {
        ++told;
        keeper.reset();
    });
    keeper->start();
    QTRY_VERIFY(!keeper);
    QCoreApplication::processEvents();
    QCOMPARE(told, 1);
}

void tst_NxPresenceKeeper::theKeeperMayDieAtAnyTime()
{
    const NxTempDir dir;
    const Disk disk(dir.makeDir(QStringLiteral("dead")));
    {
        Watch f(disk.disk, QString(), std::chrono::milliseconds(2'000));
        f.add(dir.write(QStringLiteral("dead/a.mp4")));
        f.keeper.start();
        QTRY_VERIFY(disk.state->looks > 0);
    }
    disk.state->gate.close();
    QTRY_COMPARE(int(disk.state.use_count()), 2); // The last thread let go of what it held.
}

void tst_NxPresenceKeeper::theFootageIsNotTouched()
{
    const NxTempDir dir;
    dir.write(QStringLiteral("in/a.mp4"));
    const NxFootageGuard guard(dir.path());
    Watch f;
    f.add(dir.filePath(QStringLiteral("in/a.mp4")));
    f.add(dir.filePath(QStringLiteral("in/b.mp4")));
    QVERIFY(f.refresh());
    NX_VERIFY_UNTOUCHED(guard);
}

NX_TEST_MAIN(tst_NxPresenceKeeper)
#include "tst_NxPresenceKeeper.moc"
