// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxStreamDescription.h>

#include <NxVBLEngine/Support/NxFootageSamples.h>
#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXVBLMODEL;

Q_DECLARE_METATYPE(NxFootageKind)

class tst_NxStreamDescription : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void codesFollowTheKindOfTheFile_data()
    {
        QTest::addColumn<NxFootageKind>("kind");
        QTest::addColumn<bool>("hasAudio");
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("subKind");
        QTest::addColumn<int>("kindCode");
        QTest::addColumn<int>("infoKind");
        QTest::addColumn<int>("streams");
        using Kind = NxFootageKind;
        QTest::newRow("film with sound") << Kind::Video << true << int(mtVideoAudio) << 0 << 0
                                         << int(mikVideo) << (sfVideo | sfAudio);
        QTest::newRow("silent film")
            << Kind::Video << false << int(mtVideo) << 0 << 0 << int(mikVideo) << int(sfVideo);
        QTest::newRow("sound") << Kind::Audio << true << int(mtAudio) << 0 << 0 << int(mikAudio)
                               << int(sfAudio);
        QTest::newRow("picture") << Kind::Image << false << int(mtImage) << 0 << int(mkcStillImage)
                                 << int(mikImage) << int(sfImage);
        QTest::newRow("moving GIF") << Kind::AnimatedImage << false << int(mtElement) << int(mskGif)
                                    << int(mkcAnimatedImage) << int(mikVideo) << int(sfVideo);
        QTest::newRow("subtitle") << Kind::Subtitle << false << int(mtSubtitle) << 0 << 0
                                  << int(mikSubtitle) << int(sfNone);
    }

    void codesFollowTheKindOfTheFile()
    {
        QFETCH(NxFootageKind, kind);
        QFETCH(bool, hasAudio);
        const NxStreamDescription is(NxFootageSamples::ofKind(kind, hasAudio).facts.streams);
        QTEST(int(is.type), "type");
        QTEST(int(is.subKind), "subKind");
        QTEST(int(is.kindCode), "kindCode");
        QTEST(int(is.infoKind), "infoKind");
        QTEST(is.streamFlags, "streams");
    }

    void aFilmTellsItsPicturesAndItsSound()
    {
        const NxStreamDescription is(NxFootageSamples::full(1).facts.streams);
        QCOMPARE(is.video.frameSize, QSize(1080, 1920));
        QCOMPARE(is.video.rotation, 90);
        QCOMPARE(is.video.codecName, QStringLiteral("hevc"));
        QCOMPARE(is.video.codecTag, QStringLiteral("hvc1"));
        QCOMPARE(is.video.bitDepth, 10);
        QCOMPARE(is.video.pixelFormat, QStringLiteral("yuv420p10le"));
        QCOMPARE(is.video.colorRange, QStringLiteral("tv"));
        QCOMPARE(is.video.colorPrimaries, QStringLiteral("bt2020"));
        QCOMPARE(is.video.colorTransfer, QStringLiteral("arib-std-b67"));
        QCOMPARE(is.video.colorMatrix, QStringLiteral("bt2020nc"));
        QVERIFY(is.video.variableFrameRate);
        QCOMPARE(is.audio.sampleRate, 48000);
        QCOMPARE(is.audio.channels, 6);
        QCOMPARE(is.audio.format, QStringLiteral("aac"));
        QCOMPARE(is.audio.codecTag, QStringLiteral("mp4a"));
        QCOMPARE(is.audioFormat, QStringLiteral("48000 Hz, 6 ch"));
        QCOMPARE(is.camera, QStringLiteral("Maker Model 1"));
    }

    void aPictureTellsItsSizeFormatAndTheMakerOfItsCamera()
    {
        NxFootageStreams streams = NxFootageSamples::ofKind(NxFootageKind::Image).facts.streams;
        streams.cameraMaker = QStringLiteral("Maker");
        streams.videoCodec = QStringLiteral("jpeg");
        streams.rotation = 270;
        const NxStreamDescription is(streams);
        QCOMPARE(is.image.size, QSize(640, 360));
        QCOMPARE(is.image.exifMaker, QStringLiteral("Maker"));
        QCOMPARE(is.image.format, QStringLiteral("jpeg"));
        QCOMPARE(is.image.rotation, 270);
    }

    void anUnknownSizeIsNoSize()
    {
        NxFootageStreams streams = NxFootageSamples::ofKind(NxFootageKind::Video).facts.streams;
        streams.height = 0;
        QVERIFY(!NxStreamDescription(streams).video.frameSize.isValid());
    }

    void theMakerIsNotSaidTwice_data()
    {
        QTest::addColumn<QString>("maker");
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("camera");
        QTest::newRow("nothing known") << ""
                                       << ""
                                       << "";
        QTest::newRow("both") << "Acme"
                              << "X100"
                              << "Acme X100";
        QTest::newRow("maker alone") << "Acme"
                                     << ""
                                     << "Acme";
        QTest::newRow("model alone") << ""
                                     << "X100"
                                     << "X100";
        QTest::newRow("model begins with the maker") << "Acme"
                                                     << "ACME X100"
                                                     << "ACME X100";
        QTest::newRow("model ends with the maker") << "Acme"
                                                   << "by Acme"
                                                   << "Acme by Acme";
    }

    void theMakerIsNotSaidTwice()
    {
        QFETCH(QString, maker);
        QFETCH(QString, model);
        QTEST(NxStreamDescription::cameraName(maker, model), "camera");
    }

    void soundIsDescribedByWhatIsKnown()
    {
        QCOMPARE(NxStreamDescription::audioText(48000, 2), QStringLiteral("48000 Hz, 2 ch"));
        QCOMPARE(NxStreamDescription::audioText(48000, 0), QStringLiteral("48000 Hz"));
        QCOMPARE(NxStreamDescription::audioText(0, 1), QStringLiteral("1 ch"));
        QCOMPARE(NxStreamDescription::audioText(0, 0), QString());
    }
};

NX_TEST_MAIN(tst_NxStreamDescription)
#include "tst_NxStreamDescription.moc"
