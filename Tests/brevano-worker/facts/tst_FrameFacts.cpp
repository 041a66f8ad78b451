// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FactsOfFile.h"
#include "MadeClip.h"

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFileInfo>
#include <QObject>
#include <QtTest>

#include <cmath>

namespace {

constexpr qint64 MiB = 1'024 * 1'024;

} // namespace

class tst_FrameFacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void framesAreThoseOfThePicturesWhateverTheSound_data();
    void framesAreThoseOfThePicturesWhateverTheSound();
    void bothEndsOfALargeFileTellItsFrames_data();
    void bothEndsOfALargeFileTellItsFrames();
    void aRecordingWithoutALengthIsJudgedByItsBeginning_data();
    void aRecordingWithoutALengthIsJudgedByItsBeginning();
    void leftOutFramesMakeTheRateVary_data();
    void leftOutFramesMakeTheRateVary();
    void everySecondFrameIsHalfTheRate();
    void oneFrameIsAFilm_data();
    void oneFrameIsAFilm();
    void aLastFrameThatStandsLongVariesNothing();
    void severalCutsAreNoVariation();
    void aGifTellsItsPictures_data();
    void aGifTellsItsPictures();

private:
    const NxTempDir m_dir;
};

void tst_FrameFacts::framesAreThoseOfThePicturesWhateverTheSound_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("codecs");
    const auto row = [](const char *name, const char *codecs) {
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(codecs);
    };
    row("long sound.mkv", "-c:v libx264 -bf 3 -c:a aac");
    row("long sound.webm", "-c:v libvpx-vp9 -deadline realtime -cpu-used 8 -c:a libopus");
    row("long sound.ts", "-c:v libx264 -bf 3 -c:a aac");
    row("long sound.mpg", "-c:v mpeg2video -bf 2 -c:a mp2");
    row("long sound.flv", "-c:v flv -c:a mp3 -ar 44100");
    row("long sound.wmv", "-c:v wmv2 -c:a wmav2");
    row("long sound.3gp", "-c:v mpeg4 -c:a aac");
    row("long sound.ogv", "-c:v libtheora -c:a libvorbis");
    row("long sound.mp4", "-c:v libx264 -bf 3 -c:a aac");
    row("long sound fragments.mp4",
        "-c:v libx264 -g 10 -c:a aac -movflags frag_keyframe+empty_moov+dash");
    row("long sound.mxf", "-c:v mpeg2video -c:a pcm_s16le");
}

void tst_FrameFacts::framesAreThoseOfThePicturesWhateverTheSound()
{
    QFETCH(QString, name);
    QFETCH(QString, codecs);
    constexpr int frames = 50;
    const auto facts = FactsOfFile::read(
        MadeClip::make(m_dir, name, MadeClip::pictures(frames) + MadeClip::sound(5) + codecs));
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QCOMPARE(facts->frames, frames);
    QCOMPARE(facts->durationUs, 2'000'000);
    QVERIFY(!facts->streams.variableRate);
    QVERIFY(facts->streams.hasAudio);
}

void tst_FrameFacts::bothEndsOfALargeFileTellItsFrames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("arguments");
    const auto row = [](const char *name, const char *arguments) {
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(arguments);
    };
    row("large.mkv", "-c:v mjpeg -q:v 2 -c:a pcm_s16le");
    row("large.ts", "-c:v mpeg2video -q:v 2 -bf 2 -c:a mp2");
    row("large.mpg", "-c:v mpeg2video -q:v 2 -bf 2 -c:a mp2");
    row("large.wmv", "-c:v wmv2 -q:v 2 -c:a wmav2");
    row("large with key frames apart.ts", "-c:v libx264 -preset ultrafast -bf 3 -qp 10 -c:a aac");
    row("large whose clock begins anew.ts",
        "-c:v mpeg2video -q:v 2 -c:a mp2 -output_ts_offset 95441");
}

void tst_FrameFacts::bothEndsOfALargeFileTellItsFrames()
{
    QFETCH(QString, name);
    QFETCH(QString, arguments);
    constexpr int frames = 100;
    const QString path =
        MadeClip::make(m_dir, name, MadeClip::noise(frames) + MadeClip::sound(6) + arguments);
    QVERIFY(QFileInfo(path).size() > 8 * MiB);
    const auto facts = FactsOfFile::read(path);
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QCOMPARE(facts->frames, frames);
    QCOMPARE(facts->durationUs, 4'000'000);
    QVERIFY(!facts->streams.variableRate);
}

void tst_FrameFacts::aRecordingWithoutALengthIsJudgedByItsBeginning_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("arguments");
    QTest::newRow("recorded live")
        << QStringLiteral("live.mkv") << QStringLiteral("-c:v mjpeg -q:v 2 -live 1");
    QTest::newRow("a stream without a container")
        << QStringLiteral("bare.m2v") << QStringLiteral("-c:v mpeg2video -q:v 2");
}

void tst_FrameFacts::aRecordingWithoutALengthIsJudgedByItsBeginning()
{
    QFETCH(QString, name);
    QFETCH(QString, arguments);
    constexpr int frames = 100;
    constexpr int nearly = 5;
    const auto facts =
        FactsOfFile::read(MadeClip::make(m_dir, name, MadeClip::noise(frames) + arguments));
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QVERIFY2(std::abs(facts->frames - frames) <= nearly,
             qPrintable(QString::number(facts->frames)));
}

void tst_FrameFacts::leftOutFramesMakeTheRateVary_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"varies.mp4", "varies.mkv", "varies.ts"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_FrameFacts::leftOutFramesMakeTheRateVary()
{
    QFETCH(QString, name);
    // Fifty frames, then every fifth of fifty more.
    const auto facts = FactsOfFile::read(MadeClip::make(
        m_dir, name,
        MadeClip::pictures(100)
            + QLatin1String(
                "-vf select=not(mod(n\\,5)*gt(n\\,50)) -vsync vfr -c:v libx264 -bf 2")));
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QVERIFY(facts->streams.variableRate);
    QCOMPARE(facts->frames, 60);
    QVERIFY2(facts->rate.toDouble() > 15.0 && facts->rate.toDouble() < 17.5,
             qPrintable(QString::number(facts->rate.toDouble())));
}

void tst_FrameFacts::everySecondFrameIsHalfTheRate()
{
    const auto facts = FactsOfFile::read(
        MadeClip::make(m_dir, QStringLiteral("half.mkv"),
                       MadeClip::pictures(100)
                           + QLatin1String("-vf select=not(mod(n\\,2)) -vsync vfr -c:v libx264")));
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QVERIFY(!facts->streams.variableRate);
    QCOMPARE(facts->rate.num, 25);
    QCOMPARE(facts->rate.den, 2);
    QCOMPARE(facts->frames, 50);
}

void tst_FrameFacts::oneFrameIsAFilm_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"one.mp4", "one.mkv", "one.avi"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_FrameFacts::oneFrameIsAFilm()
{
    QFETCH(QString, name);
    const auto facts = FactsOfFile::read(
        MadeClip::make(m_dir, name, MadeClip::pictures(1) + QLatin1String("-c:v mpeg4")));
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QCOMPARE(facts->streams.kind, NxFootageKind::Video);
    QCOMPARE(facts->frames, 1);
    QCOMPARE(facts->durationUs, 40'000);
}

void tst_FrameFacts::aLastFrameThatStandsLongVariesNothing()
{
    const QString even = MadeClip::make(m_dir, QStringLiteral("even.mov"),
                                        MadeClip::pictures(50) + QLatin1String("-c:v mjpeg"));
    const auto facts = FactsOfFile::read(MadeClip::make(
        m_dir, QStringLiteral("last long.mov"),
        QStringLiteral("-i %1 -c copy -use_editlist 0 "
                       "-bsf:v setts=duration=if(eq(N\\,49)\\,10*DURATION\\,DURATION)")
            .arg(QFileInfo(even).fileName())));
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QVERIFY(!facts->streams.variableRate);
    QCOMPARE(facts->rate.num, 25);
    QCOMPARE(facts->rate.den, 1);
    QCOMPARE(facts->frames, 50);
}

void tst_FrameFacts::severalCutsAreNoVariation()
{
    const QString whole =
        MadeClip::make(m_dir, QStringLiteral("whole.mp4"),
                       MadeClip::pictures(100) + QLatin1String("-c:v libx264 -bf 2 -g 100"));
    const auto facts = FactsOfFile::read(MadeClip::make(
        m_dir, QStringLiteral("cut.mp4"),
        QStringLiteral("-ss 1 -i %1 -c copy").arg(QFileInfo(whole).fileName())));
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QVERIFY(!facts->streams.variableRate);
    QCOMPARE(facts->frames, 75);
    QCOMPARE(facts->durationUs, 3'000'000);
}

void tst_FrameFacts::aGifTellsItsPictures_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<int>("frames");
    QTest::addColumn<bool>("variable");
    QTest::addColumn<qint64>("durationUs");
    QTest::newRow("even") << QStringLiteral("null") << 25 << false << qint64(1'000'000);
    QTest::newRow("one stands longer")
        << QStringLiteral("select=not(between(n\\,5\\,14))") << 15 << true << qint64(1'000'000);
    QTest::newRow("one alone is a picture")
        << QStringLiteral("select=eq(n\\,0)") << 0 << false << qint64(0);
}

void tst_FrameFacts::aGifTellsItsPictures()
{
    QFETCH(QString, filter);
    QFETCH(int, frames);
    QFETCH(bool, variable);
    const auto facts = FactsOfFile::read(MadeClip::make(
        m_dir, QStringLiteral("pictures.gif"),
        MadeClip::pictures(25) + QStringLiteral("-vf %1 -vsync vfr -c:v gif").arg(filter)));
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    const bool isAnimated = frames > 0;
    QCOMPARE(facts->streams.kind, isAnimated ? NxFootageKind::AnimatedImage : NxFootageKind::Image);
    QCOMPARE(facts->streams.hasVideo, isAnimated);
    QCOMPARE(facts->rate.isValid(), isAnimated);
    QCOMPARE(facts->frames, frames);
    QCOMPARE(facts->streams.variableRate, variable);
    QTEST(facts->durationUs, "durationUs");
}

NX_TEST_MAIN(tst_FrameFacts)
#include "tst_FrameFacts.moc"
