// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineMediaInfo.h>

#include <NxVBLEngine/Support/NxFootageSamples.h>
#include <NxVBLEngine/objects/NxStreamDescription.h>
#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXVBLMODEL;

Q_DECLARE_METATYPE(NxFootageKind)

class tst_NxEngineMediaInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFileThatWasNotReadSaysNothing()
    {
        const NxEngineMediaInfo info;
        QCOMPARE(info.kind(), int(mikUnknown));
        QCOMPARE(info.streamFlags(), int(sfNone));
        QVERIFY(!info.videoStream());
        QVERIFY(!info.audioStream());
        QVERIFY(!info.imageInfo());
        QCOMPARE(info.frameCount(), qint64(0));
        QVERIFY(!info.frameRate().isValid());
        QCOMPARE(info.duration(), qint64(0));
        QVERIFY(info.canSeek());
        QCOMPARE(info.demuxer(), QString());
        QCOMPARE(info.textEncoding(), QString());
    }

    void aFilmSaysWhatWasRead()
    {
        const NxFootageRecord film = NxFootageSamples::full(7);
        const NxStreamDescription streams(film.facts.streams);
        NxEngineMediaInfo info;
        info.set(NxFootageRow::of(film), &streams);
        QCOMPARE(info.kind(), int(mikVideo));
        QCOMPARE(info.streamFlags(), int(sfVideo) | int(sfAudio));
        QCOMPARE(info.frameCount(), qint64(107));
        QCOMPARE(info.frameRate(), (NxRational{24000, 1001}));
        QCOMPARE(info.duration(), qint64(107));
        QCOMPARE(info.videoStream(), &streams.video);
        QCOMPARE(info.audioStream(), &streams.audio);
        QVERIFY(!info.imageInfo());
        QCOMPARE(info.videoBitRate(), qint64(50'000'007));
        QCOMPARE(info.audioBitRate(), qint64(320'007));
        QCOMPARE(info.timecode(), QStringLiteral("01:02:03;7"));
        QCOMPARE(info.reelName(), QStringLiteral("A7"));
        QCOMPARE(info.textEncoding(), QStringLiteral("UTF-8"));
        QVERIFY(info.canSeek());
        QCOMPARE(info.demuxer(), QStringLiteral("mov,mp4"));
        QCOMPARE(info.shot(), qint64(1'500'000'000'007));
    }

    void whatIsNotThereHasNoStream_data()
    {
        QTest::addColumn<NxFootageKind>("kind");
        QTest::addColumn<bool>("hasAudio");
        QTest::addColumn<QString>("streams");
        QTest::newRow("silent film") << NxFootageKind::Video << false << "video";
        QTest::newRow("sound") << NxFootageKind::Audio << true << "audio";
        QTest::newRow("picture") << NxFootageKind::Image << false << "image";
        QTest::newRow("moving GIF") << NxFootageKind::AnimatedImage << false << "video";
        QTest::newRow("subtitle") << NxFootageKind::Subtitle << false << "";
    }

    void whatIsNotThereHasNoStream()
    {
        QFETCH(NxFootageKind, kind);
        QFETCH(bool, hasAudio);
        const NxFootageRecord record = NxFootageSamples::ofKind(kind, hasAudio);
        const NxStreamDescription streams(record.facts.streams);
        NxEngineMediaInfo info;
        info.set(NxFootageRow::of(record), &streams);
        QStringList found;
        if (info.videoStream())
            found += QStringLiteral("video");
        if (info.audioStream())
            found += QStringLiteral("audio");
        if (info.imageInfo())
            found += QStringLiteral("image");
        QTEST(found.join(QLatin1Char(' ')), "streams");
    }

    void onlySoundCountsHundredthsOfASecond_data()
    {
        QTest::addColumn<NxFootageKind>("kind");
        QTest::addColumn<qint64>("us");
        QTest::addColumn<qint64>("duration");
        QTest::newRow("film") << NxFootageKind::Video << qint64(4'000'000) << qint64(100);
        QTest::newRow("subtitle") << NxFootageKind::Subtitle << qint64(4'000'000) << qint64(100);
        QTest::newRow("sound") << NxFootageKind::Audio << qint64(4'000'000) << qint64(400);
        QTest::newRow("sound, just short of a half")
            << NxFootageKind::Audio << qint64(4'004'999) << qint64(400);
        QTest::newRow("sound, a half") << NxFootageKind::Audio << qint64(4'005'000) << qint64(401);
        QTest::newRow("picture") << NxFootageKind::Image << qint64(0) << qint64(0);
    }

    void onlySoundCountsHundredthsOfASecond()
    {
        QFETCH(NxFootageKind, kind);
        QFETCH(qint64, us);
        NxFootageRecord record = NxFootageSamples::ofKind(kind, true);
        record.facts.durationUs = us;
        const NxStreamDescription streams(record.facts.streams);
        NxEngineMediaInfo info;
        info.set(NxFootageRow::of(record), &streams);
        QTEST(info.duration(), "duration");
    }

    void itsOwnNumbersGoBackIntoARow()
    {
        const NxFootageRecord film = NxFootageSamples::full(7);
        const NxFootageRow row = NxFootageRow::of(film);
        const NxStreamDescription streams(film.facts.streams);
        NxEngineMediaInfo info;
        info.set(row, &streams);
        NxFootageRow back = row;
        back.frames = back.durationUs = back.videoBitRate = back.audioBitRate = back.shot = 0;
        back.rate = {};
        back.timecode.clear();
        back.reel.clear();
        info.writeTo(&back);
        QVERIFY(back == row);
    }
};

NX_TEST_MAIN(tst_NxEngineMediaInfo)
#include "tst_NxEngineMediaInfo.moc"
