// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxSqliteDatabase.h>
#include <NxVBLEngine/store/NxSqliteTransaction.h>

#include "StoreSamples.h"

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <limits>

using Access = NxSqliteDatabase::Access;
using Step = NxSqliteStatement::Step;

class tst_NxSqliteDatabase : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void valuesComeBackAsTheyWereBound();
    void aStatementServesManyRows();
    void aStatementThatCannotBePreparedFails();
    void anOpenTransactionIsTakenBack();
    void aCommittedTransactionStays();
    void anyPathCanBeReadImmutably_data();
    void anyPathCanBeReadImmutably();
    void errorsNameTheFileAndTheCause();

private:
    std::unique_ptr<NxSqliteDatabase> create(const QString &name)
    {
        auto database = NxSqliteDatabase::open(m_folder->filePath(name), Access::Create, nullptr);
        return database ? database.take() : nullptr;
    }

    QScopedPointer<NxTempDir> m_folder;
};

void tst_NxSqliteDatabase::init()
{
    m_folder.reset(new NxTempDir);
}

void tst_NxSqliteDatabase::valuesComeBackAsTheyWereBound()
{
    const auto database = create(QStringLiteral("a.db"));
    QVERIFY(database->execute("CREATE TABLE t(a, b, c, d, e, f)"));
    const QString odd =
        QString(QChar(0)) + QChar(0xDC00) + QStringLiteral("\u20ac") + QChar(0xFEFF);
    const QByteArray blob("\0\xff\x01", 3);
    NxSqliteStatement insert = database->prepare("INSERT INTO t VALUES(?, ?, ?, ?, ?, ?)");
    insert.bind(1, std::numeric_limits<qint64>::min());
    insert.bindNull(2);
    insert.bind(3, blob);
    insert.bindTexts(4, odd, QString(), QStringLiteral("z"));
    QVERIFY(insert.run());

    NxSqliteStatement read = database->prepare("SELECT * FROM t");
    QCOMPARE(int(read.step()), int(Step::Row));
    QCOMPARE(read.integer(0), std::numeric_limits<qint64>::min());
    QVERIFY(read.isNull(1));
    QCOMPARE(read.blob(2), blob);
    QCOMPARE(read.text(3), odd);
    QVERIFY(read.text(4).isEmpty() && !read.isNull(4));
    QCOMPARE(read.text(5), QStringLiteral("z"));
    QCOMPARE(int(read.step()), int(Step::Done));
}

void tst_NxSqliteDatabase::aStatementServesManyRows()
{
    const auto database = create(QStringLiteral("a.db"));
    QVERIFY(database->execute("CREATE TABLE t(a TEXT)"));
    NxSqliteStatement insert = database->prepare("INSERT INTO t VALUES(?)");
    for (int length = 0; length < 300; length += 50) {
        insert.bindTexts(1, QString(length, QChar(0x20AC)));
        QVERIFY(insert.run());
        QCOMPARE(database->changedRows(), 1);
    }
    QCOMPARE(database->number("SELECT sum(length(a)) FROM t", -1), 0 + 50 + 100 + 150 + 200 + 250);
}

void tst_NxSqliteDatabase::aStatementThatCannotBePreparedFails()
{
    const auto database = create(QStringLiteral("a.db"));
    NxSqliteStatement statement = database->prepare("SELECT nothing FROM nowhere");
    QVERIFY(!statement.isValid());
    QCOMPARE(int(statement.step()), int(Step::Failed));
    QCOMPARE(database->number("SELECT nothing FROM nowhere", -7), -7);
}

void tst_NxSqliteDatabase::anOpenTransactionIsTakenBack()
{
    const auto database = create(QStringLiteral("a.db"));
    QVERIFY(database->execute("CREATE TABLE t(a)"));
    {
        const NxSqliteTransaction transaction(database.get());
        QVERIFY(transaction.isOpen());
        QVERIFY(database->isInTransaction());
        QVERIFY(database->execute("INSERT INTO t VALUES(1)"));
    }
    QVERIFY(!database->isInTransaction());
    QCOMPARE(database->number("SELECT count(*) FROM t", -1), 0);
}

void tst_NxSqliteDatabase::aCommittedTransactionStays()
{
    const auto database = create(QStringLiteral("a.db"));
    QVERIFY(database->execute("CREATE TABLE t(a)"));
    {
        NxSqliteTransaction transaction(database.get());
        QVERIFY(database->execute("INSERT INTO t VALUES(1)"));
        QVERIFY(transaction.commit());
        QVERIFY(!transaction.commit());
    }
    QCOMPARE(database->number("SELECT count(*) FROM t", -1), 1);
}

void tst_NxSqliteDatabase::anyPathCanBeReadImmutably_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << QStringLiteral("a.db");
    QTest::newRow("what a URI reads as its own") << QStringLiteral("a?b#c%20d&e=f;g+h.db");
    QTest::newRow("spaces, quotes, a line end") << QStringLiteral("a 'b' \"c\"\nd.db");
    QTest::newRow("other scripts")
        << QString::fromUtf8("\xF0\x9F\x8E\xAC \xE6\x98\xA0\xE7\x94\xBB.db");
}

void tst_NxSqliteDatabase::anyPathCanBeReadImmutably()
{
    QFETCH(QString, name);
    QVERIFY(create(name)->execute("CREATE TABLE t(a); INSERT INTO t VALUES(5)"));
    auto database = NxSqliteDatabase::open(m_folder->filePath(name), Access::Immutable, nullptr);
    QVERIFY2(database, qUtf8Printable(database.errorText()));
    QCOMPARE((*database)->number("SELECT a FROM t", -1), 5);
    QVERIFY(!(*database)->execute("INSERT INTO t VALUES(6)"));
}

void tst_NxSqliteDatabase::errorsNameTheFileAndTheCause()
{
    const QString path = m_folder->filePath(QStringLiteral("no such folder/a.db"));
    auto database = NxSqliteDatabase::open(path, Access::ReadWrite, nullptr);
    QVERIFY(!database);
    QCOMPARE(database.errorText(),
             path + QStringLiteral(": cannot be opened: there is no such file"));
}

NX_TEST_MAIN(tst_NxSqliteDatabase)
#include "tst_NxSqliteDatabase.moc"
