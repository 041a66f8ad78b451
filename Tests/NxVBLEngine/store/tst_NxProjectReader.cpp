// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectReader.h>
#include <NxVBLEngine/store/NxSqliteDatabase.h>

#include "StoreSamples.h"

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

using namespace StoreSamples;

class tst_NxProjectReader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void aSoundProjectHasNoDamage();
    void impossibleRowsAreLeftOutAndCounted_data();
    void impossibleRowsAreLeftOutAndCounted();
    void anImpossiblePlaceAmongTheStepsIsDamage();
    void lostCountersAreDamage_data();
    void lostCountersAreDamage();
    void whatIsKnownToBeWrongIsTold();

private:
    NxProjectContents read(const QString &damage = {})
    {
        auto database = NxSqliteDatabase::open(m_path, NxSqliteDatabase::Access::ReadOnly, nullptr);
        return NxProjectReader(database->get()).read(damage);
    }

    QScopedPointer<NxTempDir> m_folder;
    QString m_path;
};

void tst_NxProjectReader::init()
{
    m_folder.reset(new NxTempDir);
    m_path = m_folder->filePath(QStringLiteral("Media.brevano"));
    makeProject(m_path, session());
}

void tst_NxProjectReader::aSoundProjectHasNoDamage()
{
    QCOMPARE(read().damage, QString());
}

void tst_NxProjectReader::impossibleRowsAreLeftOutAndCounted_data()
{
    QTest::addColumn<QByteArray>("sql");
    for (const char *sql : {
             "UPDATE media SET id = -1 WHERE id = 20",
             "UPDATE media SET category = 11 WHERE id = 20",
             "UPDATE media SET category = -1 WHERE id = 20",
             "UPDATE media SET folder = -3 WHERE id = 20",
             "UPDATE media SET folder = 5000000000 WHERE id = 20",
             "UPDATE media SET size = -2 WHERE id = 20",
             "UPDATE media SET alive = 2 WHERE id = 20",
             "UPDATE folder SET id = 0 WHERE id = 1001",
             "UPDATE folder SET id = 5000000000 WHERE id = 1001",
             "UPDATE folder SET parent = -1 WHERE id = 1001",
             "UPDATE timeline SET id = 0 WHERE id = 2",
             "UPDATE timeline SET outer_clip = -1 WHERE id = 2",
             "UPDATE timeline SET alive = 2 WHERE id = 2",
             "UPDATE clip SET id = -5 WHERE id = 1",
             "UPDATE clip SET timeline = 0 WHERE id = 1",
             "UPDATE clip SET split = -1 WHERE id = 4",
             "UPDATE clip SET kind = 5 WHERE id = 1",
             "UPDATE clip SET kind = -1 WHERE id = 1",
             "UPDATE clip SET media = -1 WHERE id = 1",
             "UPDATE clip SET track = -1 WHERE id = 1",
             "UPDATE clip SET track = 2147483647 WHERE id = 1",
             "UPDATE clip SET track = 5000000000 WHERE id = 1",
             "UPDATE clip SET position = -1 WHERE id = 1",
             "UPDATE clip SET position = 9223372036854775800 WHERE id = 1",
             "UPDATE clip SET length = 0 WHERE id = 1",
             "UPDATE clip SET in_point = -1 WHERE id = 1",
             "UPDATE clip SET in_point = -1 WHERE id = 4",
             "UPDATE clip SET alive = 2 WHERE id = 1",
             "UPDATE undo_step SET serial = -1 WHERE serial = 8",
             "UPDATE undo_change SET kind = 0 WHERE step = 8",
             "UPDATE undo_change SET kind = 11 WHERE step = 8",
             "UPDATE undo_change SET kind = 20 WHERE step = 8",
             "UPDATE undo_change SET ids = x'ff' WHERE step = 8",
             "UPDATE undo_change SET after = x'ff' WHERE step = 8",
             "UPDATE undo_change SET step = 99 WHERE step = 8",
         })
        QTest::newRow(sql) << QByteArray(sql);
}

void tst_NxProjectReader::impossibleRowsAreLeftOutAndCounted()
{
    QFETCH(QByteArray, sql);
    const int before = described(read()).size();
    runSql(m_path, sql);
    const NxProjectContents contents = read();
    QVERIFY2(contents.damage.contains(QLatin1String("with impossible values")),
             qUtf8Printable(contents.damage));
    QVERIFY(described(contents).size() - 1 < before);
    QVERIFY(int(contents.media.size()) >= 55);
}

void tst_NxProjectReader::anImpossiblePlaceAmongTheStepsIsDamage()
{
    runSql(m_path, "UPDATE meta SET value = 77 WHERE key = 'undo_done'");
    const NxProjectContents contents = read();
    QVERIFY(!contents.damage.isEmpty());
    QCOMPARE(contents.undoDone, int(contents.undoSteps.size()));
}

void tst_NxProjectReader::lostCountersAreDamage_data()
{
    QTest::addColumn<QByteArray>("key");
    for (const char *key : {"next_media_id", "next_place", "next_folder_id", "next_step_serial",
                            "next_timeline_id", "next_clip_id"})
        QTest::newRow(key) << QByteArray(key);
}

void tst_NxProjectReader::lostCountersAreDamage()
{
    QFETCH(QByteArray, key);
    runSql(m_path, "DELETE FROM meta WHERE key = '" + key + '\'');
    QVERIFY(!read().damage.isEmpty());
}

void tst_NxProjectReader::whatIsKnownToBeWrongIsTold()
{
    QCOMPARE(read(QStringLiteral("it is cut off")).damage, QStringLiteral("it is cut off"));
}

NX_TEST_MAIN(tst_NxProjectReader)
#include "tst_NxProjectReader.moc"
