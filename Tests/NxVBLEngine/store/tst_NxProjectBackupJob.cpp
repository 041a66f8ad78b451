// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectStore.h>

#include "StoreSamples.h"

#include <Support/NxTempDir.h>
#include <Support/NxTestLog.h>
#include <Support/NxTestMain.h>

#include <QDir>

using namespace StoreSamples;

namespace {

constexpr qint64 Hour = 3600 * 1000;
constexpr qint64 Day = 24 * Hour;
constexpr qint64 Birth = 1'700'000'000'000;

} // namespace

class tst_NxProjectBackupJob : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void aYoungProjectKeepsNone_data();
    void aYoungProjectKeepsNone();
    void anOlderProjectKeepsOneOfWhatWasOpened();
    void theSameContentsAreKeptOnce();
    void changedContentsAreKeptAgain();
    void atMostFiveAreKept();
    void withoutAFolderNoneIsKept();
    void aReadOnlyOpeningKeepsNone();
    void aDamagedProjectKeepsNone();
    void writingGoesOnMeanwhile();
    void aFailureIsLoggedAndTheProjectGoesOn();

private:
    NxProjectStoreOptions optionsAt(qint64 now) const
    {
        NxProjectStoreOptions options;
        options.backupFolder = m_backups;
        options.now = [now] { return now; };
        return options;
    }
    /// Opens, loads, writes, closes; false when one of it failed.
    bool openAt(qint64 now, const NxStoreBatch &batch = {}) const
    {
        auto store = NxProjectStore::open(m_path, optionsAt(now));
        if (!store || !(*store)->load())
            return false;
        (*store)->write(batch);
        return bool((*store)->close());
    }
    QStringList backups() const
    {
        return QDir(m_backups).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    QScopedPointer<NxTempDir> m_folder;
    QString m_path;
    QString m_backups;
};

void tst_NxProjectBackupJob::init()
{
    m_folder.reset(new NxTempDir);
    m_path = m_folder->filePath(QStringLiteral("Media.brevano"));
    m_backups = m_folder->filePath(QStringLiteral("data/backups"));
    makeProject(m_path, session(), optionsAt(Birth));
}

void tst_NxProjectBackupJob::aYoungProjectKeepsNone_data()
{
    QTest::addColumn<qint64>("age");
    QTest::addColumn<int>("count");
    QTest::newRow("new") << qint64(0) << 0;
    QTest::newRow("23 hours") << 23 * Hour << 0;
    QTest::newRow("a day to the millisecond") << Day << 0;
    QTest::newRow("a millisecond more") << Day + 1 << 1;
}

void tst_NxProjectBackupJob::aYoungProjectKeepsNone()
{
    QFETCH(qint64, age);
    QFETCH(int, count);
    QVERIFY(openAt(Birth + age));
    QCOMPARE(backups().size(), count);
}

void tst_NxProjectBackupJob::anOlderProjectKeepsOneOfWhatWasOpened()
{
    const QStringList before = contentsOf(m_path);
    QVERIFY(openAt(Birth + 2 * Day));
    QCOMPARE(backups().size(), 1);
    QCOMPARE(contentsOf(m_backups + QLatin1Char('/') + backups().constFirst()), before);
}

void tst_NxProjectBackupJob::theSameContentsAreKeptOnce()
{
    for (int opening = 2; opening < 6; ++opening)
        QVERIFY(openAt(Birth + opening * Day));
    QCOMPARE(backups().size(), 1);
    QVERIFY(backups().constFirst().contains(QLatin1String("20231116T")));
}

void tst_NxProjectBackupJob::changedContentsAreKeptAgain()
{
    QVERIFY(openAt(Birth + 2 * Day, addMedia(101, 3)));
    QVERIFY(openAt(Birth + 3 * Day));
    const QStringList kept = backups();
    QCOMPARE(kept.size(), 2);
    QCOMPARE(contentsOf(m_backups + QLatin1Char('/') + kept.constLast()), contentsOf(m_path));
    // A change that leaves the size as it is counts, too.
    NxChangeState marked;
    marked.number = 4;
    QVERIFY(openAt(Birth + 4 * Day,
                   {NxStoreEntry::Apply{change(NxChangeKind::MediaFavourite, {1}, marked)}}));
    QVERIFY(openAt(Birth + 5 * Day));
    QCOMPARE(backups().size(), 3);
}

void tst_NxProjectBackupJob::atMostFiveAreKept()
{
    for (int day = 2; day < 12; ++day)
        QVERIFY(openAt(Birth + day * Day, addMedia(1000 * day, 3)));
    QCOMPARE(backups().size(), 5);
    QVERIFY(backups().constFirst().contains(QLatin1String("20231116T")));
    QVERIFY(backups().constLast().contains(QLatin1String("20231125T")));
}

void tst_NxProjectBackupJob::withoutAFolderNoneIsKept()
{
    m_backups.clear();
    QVERIFY(openAt(Birth + 2 * Day));
    QCOMPARE(filesIn(m_folder->path()).keys(), QStringList{QStringLiteral("Media.brevano")});
}

void tst_NxProjectBackupJob::aReadOnlyOpeningKeepsNone()
{
    NxProjectStoreOptions options = optionsAt(Birth + 2 * Day);
    options.readOnly = true;
    {
        auto store = NxProjectStore::open(m_path, options);
        QVERIFY2(store, qUtf8Printable(store.errorText()));
        QVERIFY((*store)->load());
    }
    QVERIFY(backups().isEmpty());
}

void tst_NxProjectBackupJob::aDamagedProjectKeepsNone()
{
    const QByteArray whole = readFile(m_path);
    writeFile(m_path, whole.left(whole.size() / 2));
    QVERIFY(openAt(Birth + 2 * Day));
    QVERIFY(backups().isEmpty());
}

void tst_NxProjectBackupJob::writingGoesOnMeanwhile()
{
    QVERIFY(openAt(Birth + Hour, addMedia(1001, 40000)));
    auto store = NxProjectStore::open(m_path, optionsAt(Birth + 2 * Day));
    QVERIFY2(store, qUtf8Printable(store.errorText()));
    QVERIFY((*store)->load());
    for (int round = 0; round < 20; ++round) {
        (*store)->write(addMedia(100001 + 10 * round, 10));
        QVERIFY(commitAndWait(store->get()));
    }
    QVERIFY((*store)->close());
    QCOMPARE(backups().size(), 1);
    const int kept = contentsOf(m_backups + QLatin1Char('/') + backups().constFirst())
                         .filter(QLatin1String("media|"))
                         .size();
    QVERIFY(kept >= 40000);
    QCOMPARE(contentsOf(m_path).filter(QLatin1String("media|")).size(), 40000 + 56 + 200);
}

void tst_NxProjectBackupJob::aFailureIsLoggedAndTheProjectGoesOn()
{
    m_folder->write(QStringLiteral("data"), "a file where the folder should be");
    NxTestLog::expectError(QStringLiteral("no backup is kept: ") + m_backups);
    QVERIFY(openAt(Birth + 2 * Day, addMedia(1001, 1)));
    QVERIFY(contentsOf(m_path).join(QLatin1Char('\n')).contains(QLatin1String("|Clip 1001|")));
}

NX_TEST_MAIN(tst_NxProjectBackupJob)
#include "tst_NxProjectBackupJob.moc"
