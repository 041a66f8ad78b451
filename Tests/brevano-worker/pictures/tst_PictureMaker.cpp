// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PictureRun.h"

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxTestMain.h>
#include <brevano-worker/pictures/PictureMaker.h>

#include <QFile>
#include <QTest>

namespace {

QString footage(const char *name)
{
    return NxFootageSet::path(NxFootageRecipes::named(QLatin1String(name)));
}

NxReadRequest wishing(const PictureRun &run, int wishes)
{
    NxReadRequest request;
    request.path = run.file()->path();
    request.wishes = quint8(wishes);
    return request;
}

/// As nothing that is made looks.
QImage marked()
{
    QImage mark(20, 10, QImage::Format_RGB32);
    mark.fill(Qt::green);
    return mark;
}

} // namespace

class tst_PictureMaker : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void onlyWhatIsWishedIsMade_data();
    void onlyWhatIsWishedIsMade();
    void fileWithoutFingerprintFails();
    void cacheThatCannotBeWrittenIsAReason();
    void filmOfUnknownLengthShowsItsContainersLength();
    void filmThatNoDecoderKnowsIsAReason();
    void containerThatWasReadToItsEndIsNoHindrance();
    void coverThatCannotBeDecodedAtItsMomentIsTheFirstPicture();
    void coverArtThatIsNoPictureGivesTheWaveform();
    void picturesThatAreThereAreNotMadeAgain_data();
    void picturesThatAreThereAreNotMadeAgain();
    void picturesAreMadeAnewWhenAskedFor();
};

void tst_PictureMaker::onlyWhatIsWishedIsMade_data()
{
    QTest::addColumn<int>("wishes");
    QTest::addColumn<bool>("hasCover");
    QTest::addColumn<bool>("hasStrip");
    QTest::newRow("facts alone") << int(rwFacts) << false << false;
    QTest::newRow("cover") << int(rwCover) << true << false;
    QTest::newRow("strip") << int(rwStrip) << false << true;
    QTest::newRow("both") << int(rwCover | rwStrip) << true << true;
}

void tst_PictureMaker::onlyWhatIsWishedIsMade()
{
    QFETCH(int, wishes);
    QFETCH(bool, hasCover);
    QFETCH(bool, hasStrip);
    PictureRun run(footage("avc.mp4"));
    run.makeOfStream(6'000'000, wishes);
    const auto outcome = [](bool has) {
        return has ? NxPictureOutcome::Made : NxPictureOutcome::NotAsked;
    };
    QCOMPARE(run.answer().cover.outcome, outcome(hasCover));
    QCOMPARE(run.answer().strip.outcome, outcome(hasStrip));
    QCOMPARE(QFile::exists(run.path(NxPictureKind::Cover)), hasCover);
    QCOMPARE(QFile::exists(run.path(NxPictureKind::Strip)), hasStrip);
    QCOMPARE(run.answer().bitDepth, hasCover || hasStrip ? 8 : 0);
}

void tst_PictureMaker::fileWithoutFingerprintFails()
{
    const PictureRun run(footage("avc.mp4"));
    const auto container = Container::open(run.file());
    NxReadAnswer answer;
    PictureMaker(run.cacheFolder())
        .makeOfStream(wishing(run, rwCover | rwStrip), container->get(), 0, &answer);
    QCOMPARE(answer.cover.outcome, NxPictureOutcome::Failed);
    QCOMPARE(answer.cover.reason, QStringLiteral("The file cannot be read to its end."));
    QCOMPARE(answer.strip.reason, answer.cover.reason);
}

void tst_PictureMaker::cacheThatCannotBeWrittenIsAReason()
{
    const NxTempDir dir;
    const PictureMaker maker(dir.write(QStringLiteral("no folder")));
    const PictureRun run(footage("avc.mp4"));
    const auto container = Container::open(run.file());
    NxReadAnswer answer = run.answer();
    maker.makeOfStream(wishing(run, rwCover | rwStrip), container->get(), 0, &answer);
    const QString reason = QStringLiteral("The cache folder cannot be written: Not a directory.");
    QCOMPARE(answer.cover.outcome, NxPictureOutcome::Failed);
    QCOMPARE(answer.cover.reason, reason);
    QCOMPARE(answer.strip.outcome, NxPictureOutcome::Failed);
    QCOMPARE(answer.strip.reason, reason);
    // What was decoded is known all the same.
    QCOMPARE(answer.pixelFormat, QStringLiteral("yuv420p"));
}

void tst_PictureMaker::filmOfUnknownLengthShowsItsContainersLength()
{
    const NxFootageTruth &truth = NxFootageRecipes::named(QStringLiteral("avc.mkv")).truth;
    PictureRun run(footage("avc.mkv"));
    run.makeOfStream(0);
    const qint64 moment = NxPictureFile::momentUs(NxPictureFile::Moments - 1, truth.durationUs);
    const int last = NxPictureFile::Moments * NxPictureFile::RowsPerMoment - 1;
    QCOMPARE(
        NxNumberedFrames::readFitted(PictureRun::row(run.strip(), last), truth.size).value_or(-1),
        truth.keyNumberAt(moment));
}

void tst_PictureMaker::filmThatNoDecoderKnowsIsAReason()
{
    const PictureRun run(footage("avc.mp4"));
    const auto container = Container::open(run.file());
    (*container)->video()->codecpar->codec_id = AV_CODEC_ID_VVC;
    NxReadAnswer answer = run.answer();
    PictureMaker(run.cacheFolder())
        .makeOfStream(wishing(run, rwCover | rwStrip), container->get(), 6'000'000, &answer);
    QCOMPARE(answer.cover.outcome, NxPictureOutcome::Failed);
    QCOMPARE(answer.cover.reason, QStringLiteral("There is no decoder for vvc."));
    QCOMPARE(answer.strip.outcome, NxPictureOutcome::Failed);
    QCOMPARE(answer.strip.reason, answer.cover.reason);
}

void tst_PictureMaker::containerThatWasReadToItsEndIsNoHindrance()
{
    for (const char *name : {"avc.mp4", "avc.mkv", "avc.ts", "mpeg2.mpg", "mpeg2.mxf"}) {
        const NxFootageTruth &truth = NxFootageRecipes::named(QLatin1String(name)).truth;
        PictureRun run(footage(name));
        const auto container = Container::open(run.file());
        QVERIFY((*container)->analyse());
        AVPacket *packet = av_packet_alloc();
        while (av_read_frame((*container)->format(), packet) >= 0)
            av_packet_unref(packet);
        av_packet_free(&packet);
        NxReadAnswer answer = run.answer();
        PictureMaker(run.cacheFolder())
            .makeOfStream(wishing(run, rwCover | rwStrip), container->get(), truth.durationUs,
                          &answer);
        QCOMPARE(NxNumberedFrames::readFitted(run.cover(), truth.size).value_or(-1),
                 truth.keyNumberAt(NxPictureFile::coverMomentUs(truth.durationUs)));
        QCOMPARE(answer.strip.outcome, NxPictureOutcome::Made);
    }
}

void tst_PictureMaker::coverThatCannotBeDecodedAtItsMomentIsTheFirstPicture()
{
    const NxTempDir dir;
    QFile whole(footage("mjpeg.avi"));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    QByteArray bytes = whole.readAll();
    // Of 75 pictures the eighth stands at a tenth of the film.
    constexpr int pictureOfCover = 7;
    constexpr int chunkHeader = 8;
    const QByteArray chunk("00dc");
    int place = bytes.indexOf("movi");
    for (int picture = 0; picture <= pictureOfCover; ++picture)
        place = bytes.indexOf(chunk, place) + chunkHeader;
    constexpr int length = 1'000;
    bytes.replace(place, length, QByteArray(length, '\0'));
    PictureRun run(dir.write(QStringLiteral("damaged.avi"), bytes));
    run.makeOfStream(3'000'000, rwCover);
    QCOMPARE(run.answer().cover.outcome, NxPictureOutcome::Made);
    QCOMPARE(NxNumberedFrames::readFitted(run.cover(), {320, 180}).value_or(-1), 0);
}

void tst_PictureMaker::coverArtThatIsNoPictureGivesTheWaveform()
{
    const NxTempDir dir;
    QFile whole(footage("tone cover art.mp3"));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    QByteArray bytes = whole.readAll();
    const int place = bytes.indexOf("\xff\xd8\xff");
    QVERIFY(place > 0);
    constexpr int length = 200;
    bytes.replace(place, length, QByteArray(length, ' '));
    PictureRun run(dir.write(QStringLiteral("art.mp3"), bytes));
    run.makeOfStream(4'000'000);
    QCOMPARE(run.answer().cover.outcome, NxPictureOutcome::Made);
    QCOMPARE(run.cover().size(), QSize(NxPictureFile::CoverWidth, NxPictureFile::CoverHeight));
}

void tst_PictureMaker::picturesThatAreThereAreNotMadeAgain_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isStill");
    QTest::newRow("film") << QStringLiteral("prores.mov") << false;
    QTest::newRow("still") << QStringLiteral("picture.png") << true;
}

void tst_PictureMaker::picturesThatAreThereAreNotMadeAgain()
{
    QFETCH(QString, name);
    QFETCH(bool, isStill);
    PictureRun run(NxFootageSet::path(NxFootageRecipes::named(name)));
    const auto make = [&](int wishes) {
        if (isStill)
            run.makeOfStill(wishes);
        else
            run.makeOfStream(3'000'000, wishes);
    };
    make(rwCover | rwStrip);
    const NxReadAnswer first = run.answer();
    // Whoever made them again would write over this one.
    const QImage mark = marked();
    QVERIFY(PictureStore(run.cacheFolder())
                .write(first.fingerprint, NxPictureKind::Cover, mark,
                       {first.bitDepth, first.pixelFormat}));
    run.forget();
    make(rwCover | rwStrip);
    QCOMPARE(run.answer().cover.outcome, first.cover.outcome);
    QCOMPARE(run.answer().strip.outcome, first.strip.outcome);
    QCOMPARE(run.answer().bitDepth, first.bitDepth);
    QCOMPARE(run.answer().pixelFormat, first.pixelFormat);
    QVERIFY(!first.pixelFormat.isEmpty());
    QCOMPARE(run.cover().size(), mark.size());
}

void tst_PictureMaker::picturesAreMadeAnewWhenAskedFor()
{
    PictureRun run(footage("avc.mp4"));
    run.makeOfStream(6'000'000, rwCover);
    const QSize size = run.cover().size();
    QVERIFY(PictureStore(run.cacheFolder())
                .write(run.answer().fingerprint, NxPictureKind::Cover, marked()));
    run.makeOfStream(6'000'000, rwCover | rwAnew);
    QCOMPARE(run.cover().size(), size);
}

NX_TEST_MAIN(tst_PictureMaker)
#include "tst_PictureMaker.moc"
