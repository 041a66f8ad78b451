// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxStoreCause.h>

#include <Support/NxTestMain.h>

#include <sqlite3.h>

#include <cerrno>

class tst_NxStoreCause : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aCauseIsSaidInWords_data();
    void aCauseIsSaidInWords();
    void everySentenceNamesTheFileFirst();
    void damageIsToldFromOtherErrors();
};

void tst_NxStoreCause::aCauseIsSaidInWords_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("systemError");
    QTest::addColumn<QString>("text");
    QTest::newRow("full") << SQLITE_FULL << 0 << QStringLiteral("the disk is full");
    QTest::newRow("full, as the system says it")
        << SQLITE_IOERR_WRITE << ENOSPC << QStringLiteral("the disk is full");
    QTest::newRow("full while a log's index grows")
        << SQLITE_IOERR_SHMSIZE << ENOSPC << QStringLiteral("the disk is full");
    QTest::newRow("no permission")
        << SQLITE_CANTOPEN << EACCES << QStringLiteral("permission denied");
    QTest::newRow("read-only drive")
        << SQLITE_IOERR_WRITE << EROFS << QStringLiteral("its drive is write-protected");
    QTest::newRow("write-protected")
        << SQLITE_READONLY_DBMOVED << 0 << QStringLiteral("it is write-protected");
    QTest::newRow("drive error") << SQLITE_IOERR_READ << EIO
                                 << QStringLiteral("the drive reports an error");
    QTest::newRow("damaged") << SQLITE_CORRUPT_INDEX << 0 << QStringLiteral("it is damaged");
    QTest::newRow("no project") << SQLITE_NOTADB << 0
                                << QStringLiteral("it is not a Brevano project");
    QTest::newRow("in use") << SQLITE_BUSY_RECOVERY << 0
                            << QStringLiteral("another program holds it");
    QTest::newRow("what no table knows, by SQLite")
        << SQLITE_CONSTRAINT << 0 << QStringLiteral("constraint failed");
    QTest::newRow("what no table knows, by the system")
        << SQLITE_IOERR << ELOOP << qt_error_string(ELOOP);
}

void tst_NxStoreCause::aCauseIsSaidInWords()
{
    QFETCH(int, code);
    QFETCH(int, systemError);
    QFETCH(QString, text);
    QCOMPARE(NxStoreCause::ofSqlite(code, systemError), text);
}

void tst_NxStoreCause::everySentenceNamesTheFileFirst()
{
    const NxError error = NxStoreCause::error(QStringLiteral("/a/b.brevano"), NxStoreDeed::Write,
                                              QStringLiteral("the disk is full"));
    QCOMPARE(error.message, QStringLiteral("/a/b.brevano: cannot be written: the disk is full"));
}

void tst_NxStoreCause::damageIsToldFromOtherErrors()
{
    QVERIFY(NxStoreCause::isDamage(SQLITE_CORRUPT_VTAB));
    QVERIFY(NxStoreCause::isDamage(SQLITE_NOTADB));
    QVERIFY(NxStoreCause::isDamage(SQLITE_IOERR_SHORT_READ));
    QVERIFY(!NxStoreCause::isDamage(SQLITE_FULL));
    QVERIFY(!NxStoreCause::isDamage(SQLITE_BUSY));
}

NX_TEST_MAIN(tst_NxStoreCause)
#include "tst_NxStoreCause.moc"
