// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFullDiskVfs.h"

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>

#include <sqlite3.h>

class tst_NxFullDiskVfs : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void passesEverythingWhileThereIsRoom();
    void refusesTheChosenWriteAndAllLaterOnes();
    void refusesOnlyTheChosenWriteWhenRoomReturns();
    void countsSyncs();

private:
    static sqlite3 *open(const NxFullDiskVfs &disk, const NxTempDir &folder)
    {
        sqlite3 *database = nullptr;
        sqlite3_open_v2(QFile::encodeName(folder.filePath(QStringLiteral("a.db"))).constData(),
                        &database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, disk.name());
        return database;
    }
    static int run(sqlite3 *database, const char *sql)
    {
        return sqlite3_exec(database, sql, nullptr, nullptr, nullptr);
    }
};

void tst_NxFullDiskVfs::passesEverythingWhileThereIsRoom()
{
    const NxTempDir folder;
    const NxFullDiskVfs disk;
    sqlite3 *const database = open(disk, folder);
    QCOMPARE(run(database, "PRAGMA journal_mode = WAL; CREATE TABLE t(a); INSERT INTO t VALUES(1)"),
             SQLITE_OK);
    QVERIFY(disk.writes() > 0);
    QCOMPARE(disk.refusedWrites(), 0);
    sqlite3_close(database);
}

void tst_NxFullDiskVfs::refusesTheChosenWriteAndAllLaterOnes()
{
    const NxTempDir folder;
    NxFullDiskVfs disk;
    sqlite3 *const database = open(disk, folder);
    disk.fillAtWrite(1);
    QCOMPARE(run(database, "CREATE TABLE t(a)"), SQLITE_FULL);
    QCOMPARE(run(database, "CREATE TABLE t(a)"), SQLITE_FULL);
    QVERIFY(disk.refusedWrites() >= 2);
    disk.fillAtWrite(0);
    QCOMPARE(run(database, "CREATE TABLE t(a)"), SQLITE_OK);
    sqlite3_close(database);
}

void tst_NxFullDiskVfs::refusesOnlyTheChosenWriteWhenRoomReturns()
{
    const NxTempDir folder;
    NxFullDiskVfs disk;
    sqlite3 *const database = open(disk, folder);
    disk.fillAtWrite(1, NxFullDiskVfs::Then::RoomAgain);
    QCOMPARE(run(database, "CREATE TABLE t(a)"), SQLITE_FULL);
    QCOMPARE(run(database, "CREATE TABLE t(a)"), SQLITE_OK);
    QCOMPARE(disk.refusedWrites(), 1);
    sqlite3_close(database);
}

void tst_NxFullDiskVfs::countsSyncs()
{
    const NxTempDir folder;
    const NxFullDiskVfs disk;
    sqlite3 *const database = open(disk, folder);
    QCOMPARE(run(database, "PRAGMA synchronous = OFF; CREATE TABLE t(a)"), SQLITE_OK);
    QCOMPARE(disk.syncs(), 0);
    QCOMPARE(run(database, "PRAGMA synchronous = FULL; CREATE TABLE u(a)"), SQLITE_OK);
    QVERIFY(disk.syncs() > 0);
    sqlite3_close(database);
}

NX_TEST_MAIN(tst_NxFullDiskVfs)
#include "tst_NxFullDiskVfs.moc"
