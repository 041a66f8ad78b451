// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>
#include <brevano-worker/input/Container.h>
#include <brevano-worker/input/FootageFile.h>
#include <brevano-worker/pictures/FilmReader.h>
#include <brevano-worker/pictures/KeyPictures.h>
#include <brevano-worker/pictures/PictureScaler.h>

#include <QFile>
#include <QTest>

namespace {

constexpr int NotReadable = -1;

/// A film whose key frames can be asked for.
struct OpenFilm
{
    explicit OpenFilm(const QString &path)
    {
        auto opened = FootageFile::open(QFile::encodeName(path));
        if (!opened)
            qFatal("%s", qUtf8Printable(opened.error().message));
        file = opened.take();
        auto read = Container::open(file.get());
        if (!read || !(*read)->analyse() || !(*read)->video())
            qFatal("%s cannot be read", qUtf8Printable(path));
        container = read.take();
        film = std::make_unique<FilmReader>(container.get(), container->video(), 0);
        auto made = StreamDecoder::open(film->stream(), StreamDecoder::Use::SingleFrames);
        if (!made)
            qFatal("%s", qUtf8Printable(made.error().message));
        decoder = made.take();
        keys = std::make_unique<KeyPictures>(film.get(), decoder.get());
    }

    [[nodiscard]] int number(const AVFrame *frame) const
    {
        if (!frame)
            return NotReadable;
        PictureScaler scaler = PictureScaler::of(film->stream());
        return NxNumberedFrames::read(scaler.fitted(frame, {320, 180}, PictureFit::Enlarge::Never))
            .value_or(NotReadable);
    }

    std::unique_ptr<FootageFile> file;
    std::unique_ptr<Container> container;
    std::unique_ptr<FilmReader> film;
    std::unique_ptr<StreamDecoder> decoder;
    std::unique_ptr<KeyPictures> keys;
};

QString footage(const char *name)
{
    return NxFootageSet::path(NxFootageRecipes::named(QLatin1String(name)));
}

} // namespace

class tst_KeyPictures : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyFrameFindsItsKeyFrame_data();
    void everyFrameFindsItsKeyFrame();
    void oneThatIsAskedForAgainIsNotDecodedAgain();
    void damagedBeginningShowsTheFirstPictureThatIsWhole();
    void otherStreamsAreReadAgainAfterwards();
    void lengthsThatCannotBeAreUnknown();
};

void tst_KeyPictures::everyFrameFindsItsKeyFrame_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"avc.mp4", "avc.mkv", "avc.ts", "avc fragments.mp4", "hevc.mkv",
                             "vp9.webm", "mpeg2.mpg", "mpeg2.ts", "mpeg2.mxf", "mpeg4.avi",
                             "mjpeg.avi", "mjpeg.mov", "dnxhr.mxf", "prores.mov", "60.mp4"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_KeyPictures::everyFrameFindsItsKeyFrame()
{
    QFETCH(QString, name);
    const NxFootageTruth &truth = NxFootageRecipes::named(name).truth;
    const OpenFilm open(NxFootageSet::path(NxFootageRecipes::named(name)));
    // Backwards and in jumps, so that nothing is found by having been passed already. The middle
    // of a frame, so that clocks of containers may round as they like.
    constexpr int jump = 7;
    for (int frame = int(truth.frames) - 1; frame >= 0; frame -= jump) {
        const qint64 middle = (truth.frameTimeUs(frame) + truth.frameTimeUs(frame + 1)) / 2;
        const AVFrame *picture = open.keys->atOrBefore(open.film->timeOf(middle));
        QCOMPARE(open.number(picture), truth.keyNumberAt(middle));
    }
}

void tst_KeyPictures::oneThatIsAskedForAgainIsNotDecodedAgain()
{
    const OpenFilm open(footage("avc.mp4"));
    const AVFrame *first = open.keys->atOrBefore(open.film->timeOf(qint64(500'000)));
    QVERIFY(first);
    QCOMPARE(open.keys->atOrBefore(open.film->timeOf(qint64(600'000))), first);
    QVERIFY(open.keys->atOrBefore(open.film->timeOf(qint64(2'000'000))) != first);
}

void tst_KeyPictures::damagedBeginningShowsTheFirstPictureThatIsWhole()
{
    const NxTempDir dir;
    QFile whole(footage("mjpeg.avi"));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    QByteArray bytes = whole.readAll();
    // The first two pictures, behind the headers of their chunks, become zeros.
    const QByteArray chunk("00dc");
    constexpr int chunkHeader = 8;
    int place = bytes.indexOf("movi");
    for (int picture = 0; picture < 2; ++picture) {
        place = bytes.indexOf(chunk, place) + chunkHeader;
        const int next = bytes.indexOf(chunk, place);
        constexpr int most = 1'000;
        const int length = qMin(next - place, most);
        QVERIFY(length > 0);
        bytes.replace(place, length, QByteArray(length, '\0'));
    }
    const OpenFilm open(dir.write(QStringLiteral("damaged.avi"), bytes));
    QCOMPARE(open.number(open.keys->firstThere()), 2);
}

void tst_KeyPictures::otherStreamsAreReadAgainAfterwards()
{
    OpenFilm open(footage("avc.mp4"));
    const AVStream *audio = open.container->audio();
    QVERIFY(audio);
    QCOMPARE(audio->discard, AVDISCARD_ALL);
    open.keys.reset();
    open.decoder.reset();
    open.film.reset();
    QCOMPARE(audio->discard, AVDISCARD_DEFAULT);
}

void tst_KeyPictures::lengthsThatCannotBeAreUnknown()
{
    constexpr qint64 thousandYearsUs = 1'000LL * 366 * 24 * 3600 * 1'000'000;
    const OpenFilm open(footage("avc.mp4"));
    const FilmReader absurd(open.container.get(), open.container->video(), thousandYearsUs);
    QCOMPARE(absurd.durationUs(), qint64(6'000'000));
    const FilmReader negative(open.container.get(), open.container->video(), -1);
    QCOMPARE(negative.durationUs(), qint64(6'000'000));
    const FilmReader told(open.container.get(), open.container->video(), 5'000'000);
    QCOMPARE(told.durationUs(), qint64(5'000'000));
}

NX_TEST_MAIN(tst_KeyPictures)
#include "tst_KeyPictures.moc"
