// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectSchema.h>
#include <NxVBLEngine/store/NxSqliteDatabase.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

namespace {

bool makeNotes(NxSqliteDatabase &database)
{
    return database.execute("CREATE TABLE note(a); INSERT INTO note VALUES('one')");
}

bool addNote(NxSqliteDatabase &database)
{
    return database.execute("INSERT INTO note VALUES('two')");
}

bool breakOff(NxSqliteDatabase &database)
{
    return database.execute("INSERT INTO note VALUES('three')")
           && database.execute("INSERT INTO nowhere VALUES(1)");
}

} // namespace

class tst_NxProjectSchema : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void anEmptyFileBecomesAProject();
    void everyMissingStepIsTakenInOrder();
    void stepsThatWereTakenAreNotTakenAgain();
    void aStepThatFailsLeavesTheFileAsItWas();
    void aNewerFileIsRefused();

private:
    qint64 version() { return m_database->number("PRAGMA user_version", -1); }
    qint64 notes() { return m_database->number("SELECT count(*) FROM note", -1); }

    QScopedPointer<NxTempDir> m_folder;
    std::unique_ptr<NxSqliteDatabase> m_database;
};

void tst_NxProjectSchema::init()
{
    m_database.reset();
    m_folder.reset(new NxTempDir);
    auto database = NxSqliteDatabase::open(m_folder->filePath(QStringLiteral("a.db")),
                                           NxSqliteDatabase::Access::Create, nullptr);
    QVERIFY2(database, qUtf8Printable(database.errorText()));
    m_database = database.take();
}

void tst_NxProjectSchema::anEmptyFileBecomesAProject()
{
    const NxResult<void> done =
        NxProjectSchema::migrate(m_database.get(), NxProjectSchema::steps());
    QVERIFY2(done, qUtf8Printable(done.errorText()));
    QCOMPARE(version(), qint64(NxProjectSchema::currentVersion()));
    QCOMPARE(m_database->number("PRAGMA application_id", -1), NxProjectSchema::ApplicationId);
}

void tst_NxProjectSchema::everyMissingStepIsTakenInOrder()
{
    QVERIFY(NxProjectSchema::migrate(m_database.get(), {makeNotes}));
    QCOMPARE(version(), 1);
    QCOMPARE(notes(), 1);
    QVERIFY(NxProjectSchema::migrate(m_database.get(), {makeNotes, addNote, addNote}));
    QCOMPARE(version(), 3);
    QCOMPARE(notes(), 3);
}

void tst_NxProjectSchema::stepsThatWereTakenAreNotTakenAgain()
{
    QVERIFY(NxProjectSchema::migrate(m_database.get(), {makeNotes, addNote}));
    QVERIFY(NxProjectSchema::migrate(m_database.get(), {makeNotes, addNote}));
    QCOMPARE(notes(), 2);
}

void tst_NxProjectSchema::aStepThatFailsLeavesTheFileAsItWas()
{
    QVERIFY(NxProjectSchema::migrate(m_database.get(), {makeNotes}));
    const NxResult<void> done =
        NxProjectSchema::migrate(m_database.get(), {makeNotes, addNote, breakOff});
    QVERIFY(!done);
    QVERIFY2(done.errorText().startsWith(m_folder->path()), qUtf8Printable(done.errorText()));
    QCOMPARE(version(), 1);
    QCOMPARE(notes(), 1);
}

void tst_NxProjectSchema::aNewerFileIsRefused()
{
    QVERIFY(m_database->execute("PRAGMA user_version = 7"));
    const NxResult<void> done =
        NxProjectSchema::migrate(m_database.get(), NxProjectSchema::steps());
    QCOMPARE(
        done.errorText(),
        m_database->path()
            + QStringLiteral(": was made by a newer version (schema 7, this program knows 3)"));
}

NX_TEST_MAIN(tst_NxProjectSchema)
#include "tst_NxProjectSchema.moc"
