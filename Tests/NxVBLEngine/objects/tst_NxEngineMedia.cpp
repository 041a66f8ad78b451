// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineFixture.h"

#include <NxVBLModel/INxMediaInfo.h>

#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXVBLMODEL;

class tst_NxEngineMedia : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesAtMost350BytesBesideItsStrings()
    {
        // Beside the object itself: its slot in the folder and by id, and its entry in the index
        // of paths (24 bytes, 32 as the heap hands them out, and one slot of the table).
        constexpr size_t Folder = sizeof(void *);
        constexpr size_t ById = sizeof(qint64) + sizeof(void *);
        constexpr size_t ByPath = 32 + 2 * sizeof(void *);
        QVERIFY2(sizeof(NxEngineMedia) + Folder + ById + ByPath <= 350,
                 qPrintable(QString::number(sizeof(NxEngineMedia))));
    }

    void answersWhatTheSuffixTells_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("subKind");
        QTest::addColumn<int>("kindCode");
        QTest::addColumn<int>("infoKind");
        QTest::addColumn<int>("streams");
        QTest::addColumn<bool>("hasDuration");

        QTest::newRow("video") << "a.mp4" << int(mtVideoAudio) << 0 << 0 << int(mikVideo)
                               << (sfVideo | sfAudio) << true;
        QTest::newRow("sound") << "a.WAV" << int(mtAudio) << 0 << 0 << int(mikAudio) << int(sfAudio)
                               << true;
        QTest::newRow("picture") << "a.jpg" << int(mtImage) << 0 << int(mkcStillImage)
                                 << int(mikImage) << int(sfImage) << false;
        QTest::newRow("gif") << "a.gif" << int(mtElement) << int(mskGif) << int(mkcAnimatedImage)
                             << int(mikVideo) << int(sfVideo) << true;
        QTest::newRow("subtitle") << "a.srt" << int(mtSubtitle) << 0 << 0 << int(mikSubtitle) << 0
                                  << true;
    }

    void answersWhatTheSuffixTells()
    {
        QFETCH(QString, name);
        EngineFixture project;
        const NxEngineMedia *media = project.addMedia(project.section, name);
        QTEST(int(media->mediaType()), "type");
        QTEST(media->subKind(), "subKind");
        QTEST(media->kindCode(), "kindCode");
        QTEST(media->mediaInfo()->kind(), "infoKind");
        QTEST(media->mediaInfo()->streamFlags(), "streams");
        QTEST(media->hasDuration(), "hasDuration");
        QCOMPARE(media->state(), int(lsNone));
        QVERIFY(!media->isResource());
        QVERIFY(!media->isUnavailable());
    }

    void aPointInAFolderIsNoSuffix()
    {
        NxMediaRecord record;
        record.path = QStringLiteral("/shots.mp4/readme");
        QCOMPARE(NxEngineMedia(record).mediaType(), mtNone);
    }

    void recordHoldsEverythingItWasMadeFrom()
    {
        NxMediaRecord record;
        record.id = 77;
        record.category = mctAudio;
        record.folder = 1003;
        record.place = 12;
        record.name = QStringLiteral("name");
        record.path = QStringLiteral("/a/b.mp4");
        record.canonicalPath = QStringLiteral("/c/b.mp4");
        record.size = 1234;
        record.created = 1;
        record.modified = -2;
        record.favourite = 3;
        record.used = 4;
        record.importKind = mitCameraPhone;
        record.kindCode = mkcStockCopy;

        const NxMediaRecord again = NxEngineMedia(record).record();

        QCOMPARE(again.id, record.id);
        QCOMPARE(again.category, record.category);
        QCOMPARE(again.folder, record.folder);
        QCOMPARE(again.place, record.place);
        QCOMPARE(again.name, record.name);
        QCOMPARE(again.path, record.path);
        QCOMPARE(again.canonicalPath, record.canonicalPath);
        QCOMPARE(again.size, record.size);
        QCOMPARE(again.created, record.created);
        QCOMPARE(again.modified, record.modified);
        QCOMPARE(again.favourite, record.favourite);
        QCOMPARE(again.used, record.used);
        QCOMPARE(again.importKind, record.importKind);
        QCOMPARE(again.kindCode, record.kindCode);
        QVERIFY(!again.alive); // It stands in no folder.
    }

    void unknownTimesAreInvalidDates()
    {
        const NxEngineMedia media((NxMediaRecord()));
        QVERIFY(!media.dateCreated().isValid());
        QVERIFY(!media.lastModified().isValid());
        QVERIFY(!media.favouriteTime().isValid());
        QVERIFY(!media.isFavourite());
    }

    void timesAreUtc()
    {
        NxMediaRecord record;
        record.created = 1000;
        const NxEngineMedia media(record);
        QCOMPARE(media.dateCreated(), QDateTime::fromMSecsSinceEpoch(1000, Qt::UTC));
        QCOMPARE(media.dateCreated().timeSpec(), Qt::UTC);
    }

    void presenceDecidesWhetherItIsUnavailable_data()
    {
        QTest::addColumn<int>("presence");
        QTest::addColumn<bool>("unavailable");
        QTest::newRow("not looked at yet") << int(NxPresence::Unknown) << false;
        QTest::newRow("there") << int(NxPresence::Present) << false;
        QTest::newRow("missing") << int(NxPresence::Missing) << true;
        QTest::newRow("drive away") << int(NxPresence::Unreachable) << true;
        QTest::newRow("no permission") << int(NxPresence::Unreadable) << true;
    }

    void presenceDecidesWhetherItIsUnavailable()
    {
        QFETCH(int, presence);
        QFETCH(bool, unavailable);
        NxEngineMedia media((NxMediaRecord()));
        media.setPresence(NxPresence(presence));
        QCOMPARE(media.isUnavailable(), unavailable);
        QCOMPARE(media.unavailableReason().isEmpty(), !unavailable);
    }
};

NX_TEST_MAIN(tst_NxEngineMedia)
#include "tst_NxEngineMedia.moc"
