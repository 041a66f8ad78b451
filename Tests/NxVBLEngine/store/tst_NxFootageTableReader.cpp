// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectChecker.h>
#include <NxVBLEngine/store/NxProjectReader.h>
#include <NxVBLEngine/store/NxSqliteDatabase.h>

#include "StoreSamples.h"

#include <NxVBLEngine/Support/NxFootageSamples.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <algorithm>

using namespace StoreSamples;

namespace {

/// What is known of a media; null when nothing is.
const NxFootageRow *rowOf(const NxProjectContents &contents, qint64 media)
{
    const auto found =
        std::find_if(contents.footage.begin(), contents.footage.end(),
                     [media](const NxFootageRow &row) { return row.media == media; });
    return found == contents.footage.end() ? nullptr : &*found;
}

} // namespace

class tst_NxFootageTableReader : public QObject
{
    Q_OBJECT

private:
    QScopedPointer<NxTempDir> m_folder;
    QString m_path;

    NxProjectContents read()
    {
        auto database = NxSqliteDatabase::open(m_path, NxSqliteDatabase::Access::ReadOnly, nullptr);
        return NxProjectReader(database->get()).read();
    }

private Q_SLOTS:
    void init()
    {
        m_folder.reset(new NxTempDir);
        m_path = m_folder->filePath(QStringLiteral("Media.brevano"));
        NxStoreBatch media = addMedia(1, 4);
        media.push_back(
            NxStoreEntry::Footage{{NxFootageSamples::full(1), NxFootageSamples::full(2, 2),
                                   NxFootageSamples::failed(3)}});
        makeProject(m_path, {media});
    }

    void aRowThatMakesNoSenseLeavesItsFileUnreadAndNothingElse_data()
    {
        QTest::addColumn<QByteArray>("sql");
        for (const char *sql : {
                 "UPDATE footage SET state = 3 WHERE media = 2",
                 "UPDATE footage SET state = -1 WHERE media = 2",
                 "UPDATE footage SET state = 0 WHERE media = 2",
                 "UPDATE footage SET state = 2 WHERE media = 2",
                 "UPDATE footage SET description = NULL WHERE media = 2",
                 "UPDATE footage SET description = 77 WHERE media = 2",
                 "UPDATE footage SET cover = 4 WHERE media = 2",
                 "UPDATE footage SET strip = 4 WHERE media = 2",
                 "UPDATE footage SET file_size = -2 WHERE media = 2",
                 "UPDATE footage SET frames = -1 WHERE media = 2",
                 "UPDATE footage SET duration_us = -1 WHERE media = 2",
                 "UPDATE footage SET video_bit_rate = -1 WHERE media = 2",
                 "UPDATE footage SET audio_bit_rate = -1 WHERE media = 2",
                 "UPDATE footage SET rate_num = 5000000000 WHERE media = 2",
                 "UPDATE footage SET rate_den = 5000000000 WHERE media = 2",
                 "UPDATE footage SET media = -2 WHERE media = 2",
             })
            QTest::newRow(sql) << QByteArray(sql);
    }

    void aRowThatMakesNoSenseLeavesItsFileUnreadAndNothingElse()
    {
        QFETCH(QByteArray, sql);
        QVERIFY(rowOf(read(), 2));
        runSql(m_path, sql);
        const NxProjectContents contents = read();
        QVERIFY(!rowOf(contents, 2));
        QVERIFY(rowOf(contents, 1));
        QVERIFY(rowOf(contents, 3));
        QCOMPARE(contents.senselessFootage, qint64(1));
        QCOMPARE(contents.damage, QString()); // It can be read again: the project is sound.
        QCOMPARE(int(contents.media.size()), 4);
    }

    void filesWhoseDescriptionCannotBeReadAreUnread_data()
    {
        QTest::addColumn<QByteArray>("streams");
        QTest::newRow("nothing") << QByteArray("x''");
        QTest::newRow("garbage") << QByteArray("x'01ffffff'");
        QTest::newRow("cut off") << QByteArray("substr(streams, 1, 40)");
        QTest::newRow("of a later form") << QByteArray("x'02' || substr(streams, 2)");
    }

    void filesWhoseDescriptionCannotBeReadAreUnread()
    {
        QFETCH(QByteArray, streams);
        runSql(m_path,
               "UPDATE stream_description SET streams = CAST(" + streams
                   + " AS BLOB) WHERE id = (SELECT description FROM footage WHERE media = 2)");
        const NxProjectContents contents = read();
        QVERIFY(!rowOf(contents, 2));
        QVERIFY(rowOf(contents, 1));
        QCOMPARE(contents.senselessFootage, qint64(2)); // The description and the row.
        QCOMPARE(contents.damage, QString());
    }

    void aFingerprintMadeInAnotherWayIsNone()
    {
        runSql(m_path, "UPDATE footage SET fingerprint_version = 2 WHERE media = 2");
        const NxProjectContents contents = read();
        const NxFootageRow *row = rowOf(contents, 2);
        QVERIFY(row);
        QVERIFY(row->fingerprint.isNull());
        QCOMPARE(row->state, NxReadState::Read);
        QCOMPARE(row->cover, NxPictureState::Unknown);
        QCOMPARE(row->strip, NxPictureState::Failed);
        QCOMPARE(contents.senselessFootage, qint64(0));
        QVERIFY(!rowOf(contents, 1)->fingerprint.isNull());
    }

    void theCheckTellsWhatDoesNotFit_data()
    {
        QTest::addColumn<QByteArray>("sql");
        QTest::addColumn<QString>("problem");
        QTest::newRow("footage of no media")
            << QByteArray("DELETE FROM media WHERE id = 2")
            << QStringLiteral("facts are kept of media 2, which is not there");
        QTest::newRow("senseless")
            << QByteArray("UPDATE footage SET state = 9 WHERE media > 1")
            << QStringLiteral("facts that make no sense, whose files are to be read again: 2");
    }

    void theCheckTellsWhatDoesNotFit()
    {
        QFETCH(QByteArray, sql);
        QFETCH(QString, problem);
        const auto problems = [this] {
            auto database =
                NxSqliteDatabase::open(m_path, NxSqliteDatabase::Access::ReadOnly, nullptr);
            return NxProjectChecker::problems(database->get());
        };
        QCOMPARE(problems(), QStringList());
        runSql(m_path, sql);
        QCOMPARE(problems(), QStringList(problem));
    }
};

NX_TEST_MAIN(tst_NxFootageTableReader)
#include "tst_NxFootageTableReader.moc"
