// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectStore.h>

#include "StoreSamples.h"

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QRegularExpression>

using namespace StoreSamples;

namespace {

/// What a run over a disk that fills up has promised.
struct Outcome
{
    bool isCreated = false;
    int reported = 0; ///< How many batches a commit has answered as done.
    QString failure; ///< The first sentence; empty when everything went well.
};

} // namespace

class tst_NxProjectStoreFullDisk : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void keepsWholeBatchesAndAllThatWasReported_data();
    void keepsWholeBatchesAndAllThatWasReported();
    void theProjectGoesOnWhenThereIsRoomAgain();

private:
    static Outcome run(const QString &path, const NxFullDiskVfs &disk);
    static void writeAll(NxProjectStore *store, int from, int to, Outcome *outcome);

    std::vector<NxStoreBatch> m_batches;
    QVector<QStringList> m_states; ///< After so many batches.
};

/// The scripted work: half of the session, closing, opening, the other half. Every second batch
/// asks for a commit.
Outcome tst_NxProjectStoreFullDisk::run(const QString &path, const NxFullDiskVfs &disk)
{
    Outcome outcome;
    NxProjectStoreOptions options;
    options.vfs = disk.name();
    const int half = int(session().size()) / 2;
    auto store = NxProjectStore::create(path, options);
    if (!store) {
        outcome.failure = store.errorText();
        return outcome;
    }
    outcome.isCreated = true;
    writeAll(store->get(), 0, half, &outcome);
    if (!outcome.failure.isEmpty())
        return outcome;

    store = NxProjectStore::open(path, options);
    if (!store) {
        outcome.failure = store.errorText();
        return outcome;
    }
    const NxResult<NxProjectContents> contents = (*store)->load();
    if (!contents || !contents->damage.isEmpty()) {
        outcome.failure = contents ? contents->damage : contents.errorText();
        return outcome;
    }
    writeAll(store->get(), half, int(session().size()), &outcome);
    return outcome;
}

void tst_NxProjectStoreFullDisk::writeAll(NxProjectStore *store, int from, int to, Outcome *outcome)
{
    const std::vector<NxStoreBatch> batches = session();
    for (int next = from; next < to; ++next) {
        store->write(batches.at(size_t(next)));
        if (next % 2 == 0)
            continue;
        const NxResult<void> committed = commitAndWait(store);
        if (committed)
            outcome->reported = next + 1;
        else if (outcome->failure.isEmpty())
            outcome->failure = committed.errorText();
    }
    const NxResult<void> closed = store->close();
    if (closed && outcome->failure.isEmpty())
        outcome->reported = to;
    if (!closed && outcome->failure.isEmpty())
        outcome->failure = closed.errorText();
}

void tst_NxProjectStoreFullDisk::initTestCase()
{
    m_batches = session();
    for (size_t count = 0; count <= m_batches.size(); ++count) {
        const NxTempDir folder;
        const QString path = folder.filePath(QStringLiteral("Media.brevano"));
        makeProject(path, {m_batches.begin(), m_batches.begin() + int(count)});
        m_states.append(contentsOf(path).filter(QRegularExpression(QStringLiteral("^(?!meta)"))));
    }
    // Batches that change nothing would prove nothing.
    for (int count = 1; count < m_states.size(); ++count)
        QVERIFY2(m_states.at(count) != m_states.at(count - 1), qPrintable(QString::number(count)));
}

void tst_NxProjectStoreFullDisk::keepsWholeBatchesAndAllThatWasReported_data()
{
    QTest::addColumn<bool>("forGood");
    QTest::newRow("full for good") << true;
    QTest::newRow("full for one write") << false;
}

void tst_NxProjectStoreFullDisk::keepsWholeBatchesAndAllThatWasReported()
{
    QFETCH(bool, forGood);
    const auto then = forGood ? NxFullDiskVfs::Then::FullForGood : NxFullDiskVfs::Then::RoomAgain;
    int failures = 0;
    for (int n = 1;; ++n) {
        const NxTempDir folder;
        const QString path = folder.filePath(QStringLiteral("Media.brevano"));
        NxFullDiskVfs disk;
        disk.fillAtWrite(n, then);
        const Outcome outcome = run(path, disk);
        const QByteArray where = "write " + QByteArray::number(n) + ": " + outcome.failure.toUtf8();

        if (!outcome.isCreated) {
            QVERIFY2(filesIn(folder.path()).isEmpty(), where.constData());
            QVERIFY2(outcome.failure.contains(QLatin1String("the disk is full")),
                     where.constData());
            ++failures;
            continue;
        }
        const QStringList found =
            contentsOf(path).filter(QRegularExpression(QStringLiteral("^(?!meta)")));
        const int whole = m_states.lastIndexOf(found);
        QVERIFY2(whole >= outcome.reported, where.constData());
        const auto reopened = NxProjectStore::open(path, {});
        QVERIFY2(reopened, where.constData());
        QVERIFY2((*reopened)->integrityProblems().isEmpty(), where.constData());

        if (outcome.failure.isEmpty() && disk.refusedWrites() == 0)
            break;
        if (outcome.failure.isEmpty())
            continue; // Only folding the log in was put off.
        QVERIFY2(outcome.failure.startsWith(path), where.constData());
        QVERIFY2(outcome.failure.contains(QLatin1String("the disk is full")), where.constData());
        ++failures;
    }
    QVERIFY(failures > 20);
}

void tst_NxProjectStoreFullDisk::theProjectGoesOnWhenThereIsRoomAgain()
{
    const NxTempDir folder;
    const QString path = folder.filePath(QStringLiteral("Media.brevano"));
    NxFullDiskVfs disk;
    NxProjectStoreOptions options;
    options.vfs = disk.name();
    {
        auto store = NxProjectStore::create(path, options);
        QVERIFY2(store, qUtf8Printable(store.errorText()));
        (*store)->write(addMedia(1, 10));
        QVERIFY(commitAndWait(store->get()));
        disk.fillAtWrite(1);
        (*store)->write(addMedia(11, 10));
        QVERIFY(!commitAndWait(store->get()));
        QVERIFY(!(*store)->close());
    }
    disk.fillAtWrite(0);
    auto store = NxProjectStore::open(path, options);
    QVERIFY2(store, qUtf8Printable(store.errorText()));
    const NxResult<NxProjectContents> contents = (*store)->load();
    QCOMPARE(int(contents->media.size()), 10);
    (*store)->write(addMedia(11, 10));
    QVERIFY((*store)->close());
    QCOMPARE(contentsOf(path).filter(QLatin1String("media|")).size(), 20);
    QCOMPARE(filesIn(folder.path()).keys(), QStringList{QStringLiteral("Media.brevano")});
}

NX_TEST_MAIN(tst_NxProjectStoreFullDisk)
#include "tst_NxProjectStoreFullDisk.moc"
