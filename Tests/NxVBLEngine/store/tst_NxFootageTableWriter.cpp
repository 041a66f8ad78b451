// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectReader.h>
#include <NxVBLEngine/store/NxProjectSchema.h>
#include <NxVBLEngine/store/NxProjectWriter.h>
#include <NxVBLEngine/store/NxSqliteDatabase.h>

#include "StoreSamples.h"

#include <NxVBLEngine/Support/NxFootageSamples.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <limits>

using namespace StoreSamples;
using NxStoreEntry::Footage;

Q_DECLARE_METATYPE(NxFootageRecord)

/// Footage as the writer of projects writes it and their reader reads it.
class tst_NxFootageTableWriter : public QObject
{
    Q_OBJECT

private:
    QScopedPointer<NxTempDir> m_folder;
    std::unique_ptr<NxSqliteDatabase> m_database;
    std::unique_ptr<NxProjectWriter> m_writer;

    NxProjectContents read() { return NxProjectReader(m_database.get()).read(); }
    NxResult<void> write(const NxStoreBatch &batch) { return m_writer->write(batch); }
    qint64 count(const char *table)
    {
        return m_database->number(QByteArray("SELECT count(*) FROM ").append(table).constData(),
                                  -1);
    }
    /// What comes back of the only row, with its streams.
    NxFootageRow onlyRow(NxFootageStreams *streams)
    {
        const NxProjectContents contents = read();
        if (contents.footage.size() != 1 || contents.senselessFootage != 0)
            return {};
        const NxFootageRow row = contents.footage.front();
        *streams = row.streams < 0 ? NxFootageStreams() : contents.streams.at(size_t(row.streams));
        return row;
    }

private Q_SLOTS:
    void init()
    {
        m_writer.reset();
        m_database.reset();
        m_folder.reset(new NxTempDir);
        auto database = NxSqliteDatabase::open(m_folder->filePath(QStringLiteral("a.brevano")),
                                               NxSqliteDatabase::Access::Create, nullptr);
        QVERIFY2(database, qUtf8Printable(database.errorText()));
        m_database = database.take();
        QVERIFY(m_database->execute("PRAGMA synchronous = OFF"));
        QVERIFY(NxProjectSchema::migrate(m_database.get(), NxProjectSchema::steps()));
        m_writer = std::make_unique<NxProjectWriter>(m_database.get());
        QVERIFY(m_writer->writeBeginning(QStringLiteral("/projects"), 1000));
        QVERIFY(write(addMedia(1, 5)));
    }

    void everyFieldComesBack_data()
    {
        QTest::addColumn<NxFootageRecord>("record");
        QTest::newRow("a value in every field") << NxFootageSamples::full(3);
        QTest::newRow("failed") << NxFootageSamples::failed(3);
        NxFootageRecord picture = NxFootageSamples::ofKind(NxFootageKind::Image);
        picture.media = 3;
        QTest::newRow("little known") << picture;
        NxFootageRecord extreme = NxFootageSamples::full(3);
        extreme.stamp = {std::numeric_limits<qint64>::max(), -1};
        extreme.facts.frames = extreme.facts.durationUs = std::numeric_limits<qint64>::max();
        extreme.facts.rate = {std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
        extreme.facts.shot = std::numeric_limits<qint64>::max();
        extreme.facts.timecode = QString(QChar(0xD800)) + QChar(0);
        extreme.fingerprint = {0, ~quint64(0), 0};
        QTest::newRow("extremes") << extreme;
        NxFootageRecord pictures;
        pictures.media = 3;
        pictures.cover = NxPictureState::Failed;
        pictures.coverReason = QStringLiteral("no");
        pictures.strip = NxPictureState::None;
        QTest::newRow("not read, but tried for pictures") << pictures;
    }

    void everyFieldComesBack()
    {
        QFETCH(NxFootageRecord, record);
        QVERIFY(write({Footage{{record}}}));
        NxFootageStreams streams;
        const NxFootageRow back = onlyRow(&streams);
        QVERIFY(back == NxFootageRow::of(record));
        const bool isRead = record.state == NxReadState::Read;
        QCOMPARE(back.streams, isRead ? 0 : -1);
        QCOMPARE(streams.cameraModel, record.facts.streams.cameraModel);
        QCOMPARE(int(streams.kind), int(record.facts.streams.kind));
    }

    void filesOfOneCameraAreDescribedOnce()
    {
        QVERIFY(write({Footage{{NxFootageSamples::full(1), NxFootageSamples::full(2, 2)}},
                       Footage{{NxFootageSamples::full(3)}}}));
        QCOMPARE(count("stream_description"), qint64(2));
        QCOMPARE(count("footage"), qint64(3));
        // Another session knows nothing of what this one met.
        NxProjectWriter next(m_database.get());
        QVERIFY(next.write({Footage{{NxFootageSamples::full(4), NxFootageSamples::full(5, 2)}}}));
        QCOMPARE(count("stream_description"), qint64(2));
        QCOMPARE(int(read().footage.size()), 5);
    }

    void whatIsReadAgainTakesTheOldPlace()
    {
        QVERIFY(write({Footage{{NxFootageSamples::full(3, 1)}}}));
        QVERIFY(write({Footage{{NxFootageSamples::full(3, 2)}}}));
        NxFootageStreams streams;
        QCOMPARE(onlyRow(&streams).media, qint64(3));
        QCOMPARE(streams.cameraModel, QStringLiteral("Model 2"));
    }

    void whatKnowsNothingLeavesNoRow()
    {
        QVERIFY(write({Footage{{NxFootageSamples::full(2), NxFootageSamples::full(3)}}}));
        NxFootageRecord blank;
        blank.media = 3;
        QVERIFY(write({Footage{{blank}}}));
        NxFootageStreams streams;
        QCOMPARE(onlyRow(&streams).media, qint64(2));
    }

    void footageOfMediaThatAreNotThereIsPassedOver()
    {
        QVERIFY(write({Footage{{NxFootageSamples::full(99)}}}));
        QCOMPARE(count("footage"), qint64(0));
    }

    void removedMediaKeepTheirsUntilTheyAreForgotten()
    {
        QVERIFY(write({Footage{{NxFootageSamples::full(2), NxFootageSamples::full(3)}},
                       NxStoreEntry::StepBegin{1, {}, {}},
                       NxStoreEntry::Apply{change(NxChangeKind::MediaRemove, {2})}}));
        QCOMPARE(count("footage"), qint64(2));
        // The third lives: whoever says it is to be forgotten is wrong.
        QVERIFY(write({NxStoreEntry::StepDrop{{1}, {2, 3}, {}}}));
        NxFootageStreams streams;
        QCOMPARE(onlyRow(&streams).media, qint64(3));
    }

    void aTableThatCannotBeWrittenIsAnError()
    {
        QVERIFY(m_database->execute("DROP TABLE stream_description"));
        const NxResult<void> written = write({Footage{{NxFootageSamples::full(3)}}});
        QVERIFY(!written);
        QVERIFY2(written.errorText().contains(QLatin1String("cannot be written")),
                 qUtf8Printable(written.errorText()));
        QCOMPARE(count("footage"), qint64(0));
    }
};

NX_TEST_MAIN(tst_NxFootageTableWriter)
#include "tst_NxFootageTableWriter.moc"
