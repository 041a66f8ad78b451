// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectStore.h>

#include "StoreSamples.h"

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QElapsedTimer>
#include <QThread>

using namespace StoreSamples;

class tst_NxStoreThread : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void batchesReachTheFileWithoutACommitBeingAsked();
    void aCommitIsOnTheDiskWhenItIsAnswered();
    void commitsAreAnsweredInOrderOnTheThreadOfTheStore();
    void aDurableCommitReachesTheDiskItself();
    void aBatchIsWholeOrNotThere();
    void aFailedWriteIsToldOnceAndAnswersEveryLaterCommit();
    void afterAFailedWriteNothingMoreIsWritten();
    void aBatchThatContradictsTheFileIsAFailedWrite();
    void writingGoesOnWhileACopyIsMade();
    void aSecondWindowReadsWhileTheFirstWrites();

private:
    std::unique_ptr<NxProjectStore> created(const NxProjectStoreOptions &options = {})
    {
        auto store = NxProjectStore::create(m_path, options);
        if (!store)
            qWarning("%s", qUtf8Printable(store.errorText()));
        return store ? store.take() : nullptr;
    }
    /// What another window sees now.
    int mediaSeen() const { return contentsOf(m_path).filter(QLatin1String("media|")).size(); }

    QScopedPointer<NxTempDir> m_folder;
    QString m_path;
};

void tst_NxStoreThread::init()
{
    m_folder.reset(new NxTempDir);
    m_path = m_folder->filePath(QStringLiteral("Media.brevano"));
}

void tst_NxStoreThread::batchesReachTheFileWithoutACommitBeingAsked()
{
    const auto store = created();
    QVERIFY(commitAndWait(store.get()));
    QElapsedTimer timer;
    timer.start();
    store->write(addMedia(1, 5));
    // A stream of batches does not put the first one off: it is 200 ms, and not since the last.
    int written = 5;
    while (mediaSeen() == 0 && timer.elapsed() < NxPatience) {
        store->write(addMedia(written + 1, 1));
        ++written;
    }
    QVERIFY(mediaSeen() > 0);
    QTRY_COMPARE(mediaSeen(), written);
}

void tst_NxStoreThread::aCommitIsOnTheDiskWhenItIsAnswered()
{
    const auto store = created();
    for (int round = 1; round <= 5; ++round) {
        store->write(addMedia(round, 1));
        QVERIFY(commitAndWait(store.get()));
        QCOMPARE(mediaSeen(), round);
    }
}

void tst_NxStoreThread::commitsAreAnsweredInOrderOnTheThreadOfTheStore()
{
    const auto store = created();
    QVector<int> answered;
    bool isOurThread = true;
    for (int number = 0; number < 30; ++number) {
        store->write(addMedia(1 + number, 1));
        const auto done = [&answered, &isOurThread, number](const NxResult<void> &result) {
            isOurThread = isOurThread && QThread::currentThread() == qApp->thread();
            answered.append(result ? number : -1);
        };
        if (number % 3 == 0)
            store->commitDurably(done);
        else
            store->commit(done);
    }
    QVERIFY(answered.isEmpty());
    QTRY_COMPARE(answered.size(), 30);
    for (int number = 0; number < 30; ++number)
        QCOMPARE(answered.at(number), number);
    QVERIFY(isOurThread);
}

void tst_NxStoreThread::aDurableCommitReachesTheDiskItself()
{
    const NxFullDiskVfs disk;
    NxProjectStoreOptions options;
    options.vfs = disk.name();
    const auto store = created(options);
    store->write(addMedia(2, 1)); // The beginning of the log is synced once.
    QVERIFY(commitAndWait(store.get()));
    const int before = disk.syncs();
    store->write(addMedia(1, 1));
    QVERIFY(commitAndWait(store.get()));
    QCOMPARE(disk.syncs(), before);

    bool isDone = false;
    store->commitDurably([&isDone](const NxResult<void> &result) { isDone = bool(result); });
    QTRY_VERIFY(isDone);
    QVERIFY(disk.syncs() > before);
}

void tst_NxStoreThread::aBatchIsWholeOrNotThere()
{
    const auto store = created();
    store->write(addMedia(1, 10));
    QVERIFY(commitAndWait(store.get()));
    // Its second half cannot be written, since the media is there already.
    NxStoreBatch bad = addMedia(11, 10);
    bad.push_back(NxStoreEntry::NewMedia{{media(1)}});
    store->write(bad);
    QVERIFY(!commitAndWait(store.get()));
    QVERIFY(!store->close());
    QCOMPARE(mediaSeen(), 10);
    QVERIFY(!contentsOf(m_path).join(QLatin1Char('\n')).contains(QLatin1String("|Clip 11|")));
}

void tst_NxStoreThread::aFailedWriteIsToldOnceAndAnswersEveryLaterCommit()
{
    NxFullDiskVfs disk;
    NxProjectStoreOptions options;
    options.vfs = disk.name();
    const auto store = created(options);
    QStringList failures;
    store->setFailureHandler([&failures](const NxError &error) { failures += error.message; });
    QVERIFY(commitAndWait(store.get()));
    disk.fillAtWrite(1);
    const QString sentence = m_path + QStringLiteral(": cannot be written: the disk is full");
    for (int round = 1; round <= 3; ++round) {
        store->write(addMedia(round, 1));
        QCOMPARE(commitAndWait(store.get()).errorText(), sentence);
    }
    QCOMPARE(failures, QStringList{sentence});
    QCOMPARE(store->close().errorText(), sentence);
    QCOMPARE(failures, QStringList{sentence});
}

void tst_NxStoreThread::afterAFailedWriteNothingMoreIsWritten()
{
    NxFullDiskVfs disk;
    NxProjectStoreOptions options;
    options.vfs = disk.name();
    const auto store = created(options);
    store->write(addMedia(1, 1));
    QVERIFY(commitAndWait(store.get()));
    disk.fillAtWrite(1, NxFullDiskVfs::Then::RoomAgain);
    store->write(addMedia(2, 1));
    QVERIFY(!commitAndWait(store.get()));
    // Memory has moved on without the file: what comes now does not fit it any more.
    store->write(addMedia(3, 1));
    QVERIFY(!commitAndWait(store.get()));
    QVERIFY(!store->close());
    QCOMPARE(mediaSeen(), 1);
}

void tst_NxStoreThread::aBatchThatContradictsTheFileIsAFailedWrite()
{
    const auto store = created();
    bool isTold = false;
    store->setFailureHandler([&isTold](const NxError &) { isTold = true; });
    store->write({NxStoreEntry::Apply{change(NxChangeKind::MediaRemove, {99})}});
    const NxResult<void> committed = commitAndWait(store.get());
    QCOMPARE(committed.errorText(),
             m_path + QStringLiteral(": cannot be written: it does not hold entry 99"));
    QVERIFY(isTold);
    QVERIFY(!store->close());
}

void tst_NxStoreThread::writingGoesOnWhileACopyIsMade()
{
    constexpr int many = 60000; // Several rounds of copying.
    const QString copy = m_folder->filePath(QStringLiteral("Copy.brevano"));
    NxFullDiskVfs disk;
    NxProjectStoreOptions options;
    options.vfs = disk.name();
    const auto store = created(options);
    store->write(addMedia(1, many));
    QVERIFY(commitAndWait(store.get()));

    QStringList order;
    disk.hold(); // The copy cannot be through before it is overtaken.
    store->saveCopy(copy, [&order](const NxResult<void> &result) {
        order += result ? QStringLiteral("copied") : result.errorText();
    });
    store->write(addMedia(many + 1, 1));
    store->commit([&order](const NxResult<void> &result) {
        order += result ? QStringLiteral("committed") : result.errorText();
    });
    disk.letGo();
    QTRY_COMPARE(order.size(), 2);
    QCOMPARE(order, (QStringList{QStringLiteral("committed"), QStringLiteral("copied")}));
    QVERIFY(store->close());
    const int copied = contentsOf(copy).filter(QLatin1String("media|")).size();
    QVERIFY(copied == many || copied == many + 1);
}

void tst_NxStoreThread::aSecondWindowReadsWhileTheFirstWrites()
{
    const auto store = created();
    for (int round = 0; round < 20; ++round) {
        store->write(addMedia(1 + 50 * round, 50));
        auto second = NxProjectStore::open(m_path, {});
        QVERIFY2(second, qUtf8Printable(second.errorText()));
        QVERIFY((*second)->isReadOnly());
        QVERIFY2((*second)->readOnlyReason().contains(QLatin1String("is open in another window")),
                 qUtf8Printable((*second)->readOnlyReason()));
        const NxResult<NxProjectContents> contents = (*second)->load();
        QVERIFY2(contents, qUtf8Printable(contents.errorText()));
        QVERIFY2(contents->damage.isEmpty(), qUtf8Printable(contents->damage));
        QCOMPARE(int(contents->media.size()) % 50, 0);
    }
    QVERIFY(store->close());
    QCOMPARE(mediaSeen(), 1000);
    QCOMPARE(filesIn(m_folder->path()).keys(), QStringList{QStringLiteral("Media.brevano")});
}

NX_TEST_MAIN(tst_NxStoreThread)
#include "tst_NxStoreThread.moc"
