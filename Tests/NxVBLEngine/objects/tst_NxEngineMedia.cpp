// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineFixture.h"

#include <NxVBLEngine/objects/NxStreamDescription.h>
#include <NxVBLModel/INxMediaInfo.h>

#include <NxVBLEngine/Support/NxFootageSamples.h>
#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXVBLMODEL;

namespace {

NxEngineMedia mediaOf(const QString &path, qint64 created = NxNoTime, qint64 modified = NxNoTime)
{
    NxMediaRecord record;
    record.path = path;
    record.created = created;
    record.modified = modified;
    return NxEngineMedia(record);
}

} // namespace

Q_DECLARE_METATYPE(NxFootageKind)

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

    void onceReadItAnswersWhatTheFileIs_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<NxFootageKind>("kind");
        QTest::addColumn<bool>("hasAudio");
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("subKind");
        QTest::addColumn<int>("kindCode");
        QTest::addColumn<int>("infoKind");
        QTest::addColumn<bool>("hasDuration");
        using Kind = NxFootageKind;
        QTest::newRow("silent film")
            << "a.mp4" << Kind::Video << false << int(mtVideo) << 0 << 0 << int(mikVideo) << true;
        QTest::newRow("sound in a film's container")
            << "a.mp4" << Kind::Audio << true << int(mtAudio) << 0 << 0 << int(mikAudio) << true;
        QTest::newRow("GIF of one picture") << "a.gif" << Kind::Image << false << int(mtImage) << 0
                                            << int(mkcStillImage) << int(mikImage) << false;
        QTest::newRow("moving GIF")
            << "a.gif" << Kind::AnimatedImage << false << int(mtElement) << int(mskGif)
            << int(mkcAnimatedImage) << int(mikVideo) << true;
    }

    void onceReadItAnswersWhatTheFileIs()
    {
        QFETCH(QString, name);
        QFETCH(NxFootageKind, kind);
        QFETCH(bool, hasAudio);
        const NxFootageRecord record = NxFootageSamples::ofKind(kind, hasAudio);
        const NxStreamDescription streams(record.facts.streams);
        NxEngineMedia media = mediaOf(QStringLiteral("/footage/") + name);
        const int typeBefore = media.mediaType();
        const INxMediaInfo *const provisional = media.mediaInfo();
        media.setFootage(NxFootageRow::of(record), &streams);
        QTEST(int(media.mediaType()), "type");
        QTEST(media.subKind(), "subKind");
        QTEST(media.kindCode(), "kindCode");
        QTEST(media.mediaInfo()->kind(), "infoKind");
        QTEST(media.hasDuration(), "hasDuration");
        QVERIFY(media.mediaInfo() != provisional);
        media.setFootage(NxFootageRow(), nullptr);
        QCOMPARE(int(media.mediaType()), typeBefore);
        QCOMPARE(media.mediaInfo(), provisional);
    }

    void aCopyOfAStockResourceStaysOne()
    {
        NxMediaRecord made;
        made.path = QStringLiteral("/a.mp4");
        made.kindCode = mkcStockCopy;
        NxEngineMedia media(made);
        const NxFootageRecord record = NxFootageSamples::ofKind(NxFootageKind::Image);
        const NxStreamDescription streams(record.facts.streams);
        media.setFootage(NxFootageRow::of(record), &streams);
        QCOMPARE(media.kindCode(), int(mkcStockCopy));
    }

    void everythingThatWasReadComesBack()
    {
        NxFootageRecord record = NxFootageSamples::full(0);
        const NxStreamDescription streams(record.facts.streams);
        NxEngineMedia media = mediaOf(QStringLiteral("/a.mp4"));
        media.setFootage(NxFootageRow::of(record), &streams);
        const NxFootageRecord back = media.footage();
        QVERIFY(NxFootageRow::of(back) == NxFootageRow::of(record));
        QCOMPARE(back.facts.streams.cameraModel, record.facts.streams.cameraModel);
        QCOMPARE(media.readState(), NxReadState::Read);
        QCOMPARE(media.stamp(), record.stamp);
        QCOMPARE(media.fingerprint(), record.fingerprint);
        QCOMPARE(media.coverState(), NxPictureState::Made);
        QCOMPARE(media.stripState(), NxPictureState::Failed);
        QCOMPARE(media.audioInfoText(), QStringLiteral("48000 Hz, 6 ch"));
        QCOMPARE(media.cameraName(), QStringLiteral("Maker Model 1"));
    }

    void aFileThatCannotBeReadIsUnavailableAndSaysWhy()
    {
        NxEngineMedia media = mediaOf(QStringLiteral("/a.mp4"));
        NxFootageRecord record = NxFootageSamples::failed(0);
        media.setFootage(NxFootageRow::of(record), nullptr);
        QVERIFY(media.isUnavailable());
        QCOMPARE(media.unavailableReason(), QStringLiteral("The file is damaged."));
        QCOMPARE(media.footage().reason, QStringLiteral("The file is damaged."));
        QCOMPARE(int(media.mediaType()), int(mtVideoAudio));
        QCOMPARE(media.audioInfoText(), QString());
        QCOMPARE(media.cameraName(), QString());

        media.setPresence(NxPresence::Missing); // What is missing is not called damaged.
        QCOMPARE(media.unavailableReason(), QStringLiteral("The file is missing."));
        media.setPresence(NxPresence::Present);
        record.reason.clear();
        media.setFootage(NxFootageRow::of(record), nullptr);
        QCOMPARE(media.unavailableReason(), QStringLiteral("The file cannot be read."));
        media.setFootage(NxFootageRow(), nullptr);
        QVERIFY(!media.isUnavailable());
        QCOMPARE(media.unavailableReason(), QString());
    }

    void anotherPathOfTheSameFileKeepsWhatWasRead()
    {
        const NxFootageRecord record = NxFootageSamples::ofKind(NxFootageKind::Video);
        const NxStreamDescription streams(record.facts.streams);
        NxEngineMedia media = mediaOf(QStringLiteral("/a.mp4"));
        media.setFootage(NxFootageRow::of(record), &streams);
        media.setPaths(QStringLiteral("/b.wav"), QString());
        QCOMPARE(media.readState(), NxReadState::Read);
        QCOMPARE(int(media.mediaType()), int(mtVideo));
    }

    void theFirstBelievableTimeIsWhenItWasMade_data()
    {
        QTest::addColumn<qint64>("shot");
        QTest::addColumn<qint64>("born");
        QTest::addColumn<qint64>("modified");
        QTest::addColumn<qint64>("created");
        const qint64 now = QDateTime::currentMSecsSinceEpoch();
        constexpr qint64 hour = 60 * 60 * 1000;
        QTest::newRow("shot") << qint64(3000) << qint64(2000) << qint64(1000) << qint64(3000);
        QTest::newRow("born") << NxNoTime << qint64(2000) << qint64(1000) << qint64(2000);
        QTest::newRow("modified") << NxNoTime << NxNoTime << qint64(1000) << qint64(1000);
        QTest::newRow("shot before 1970")
            << qint64(-1) << qint64(2000) << qint64(1000) << qint64(2000);
        QTest::newRow("shot in 1970") << qint64(0) << qint64(2000) << qint64(1000) << qint64(0);
        QTest::newRow("shot within the next day, in another zone perhaps")
            << now + 23 * hour << qint64(2000) << qint64(1000) << now + 23 * hour;
        QTest::newRow("shot after tomorrow")
            << now + 25 * hour << qint64(2000) << qint64(1000) << qint64(2000);
        QTest::newRow("born after tomorrow, too")
            << now + 25 * hour << now + 25 * hour << qint64(1000) << qint64(1000);
        QTest::newRow("none believable") << qint64(-1) << qint64(-1) << qint64(-1) << NxNoTime;
    }

    void theFirstBelievableTimeIsWhenItWasMade()
    {
        QFETCH(qint64, shot);
        QFETCH(qint64, born);
        QFETCH(qint64, modified);
        QFETCH(qint64, created);
        NxFootageRecord record = NxFootageSamples::ofKind(NxFootageKind::Video);
        record.facts.shot = shot;
        const NxStreamDescription streams(record.facts.streams);
        NxEngineMedia media = mediaOf(QStringLiteral("/a.mp4"), born, modified);
        media.setFootage(NxFootageRow::of(record), &streams);
        const QDateTime expected =
            created == NxNoTime ? QDateTime() : QDateTime::fromMSecsSinceEpoch(created, Qt::UTC);
        QCOMPARE(media.dateCreated(), expected);
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
        QTest::addColumn<QString>("reason");
        QTest::newRow("not looked at yet") << int(NxPresence::Unknown) << QString();
        QTest::newRow("there") << int(NxPresence::Present) << QString();
        QTest::newRow("missing") << int(NxPresence::Missing)
                                 << QStringLiteral("The file is missing.");
        QTest::newRow("drive away") << int(NxPresence::Unreachable)
                                    << QStringLiteral("The drive does not answer.");
        QTest::newRow("a pipe in its place")
            << int(NxPresence::Unreadable)
            << QStringLiteral("There is no file of this name, but something else.");
        QTest::newRow("no permission")
            << int(NxPresence::Denied)
            << QStringLiteral("You have no permission to read the file.");
    }

    void presenceDecidesWhetherItIsUnavailable()
    {
        QFETCH(int, presence);
        QFETCH(QString, reason);
        NxEngineMedia media((NxMediaRecord()));
        media.setPresence(NxPresence(presence));
        QCOMPARE(media.isUnavailable(), !reason.isEmpty());
        QCOMPARE(media.unavailableReason(), reason);
    }
};

NX_TEST_MAIN(tst_NxEngineMedia)
#include "tst_NxEngineMedia.moc"
