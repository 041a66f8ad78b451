// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxProbedFile.h"

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxTestMain.h>

#include <QDateTime>
#include <QImageReader>
#include <QProcess>
#include <QSet>
#include <QtTest>

#include <map>

using Recipes = std::vector<NxFootageRecipe>;

namespace {

constexpr int nothing = -1;
constexpr int longestRun = 60000; // ms
constexpr QSize stripSize(144, 81);
constexpr double second = 1e6; // us

QString pathOf(const NxFootageRecipe &recipe)
{
    return NxFootageSet::path(recipe);
}

/// What ffprobe says of a file, asked once.
const NxProbedFile &probed(const NxFootageRecipe &recipe)
{
    static std::map<QString, NxProbedFile> answers;
    const auto found = answers.find(recipe.name);
    if (found != answers.end())
        return found->second;
    return answers.emplace(recipe.name, NxProbedFile(pathOf(recipe))).first->second;
}

/// One row for each recipe that fits.
template<typename Fits>
void rows(Fits fits)
{
    QTest::addColumn<QString>("name");
    for (const NxFootageRecipe &recipe : NxFootageRecipes::all()) {
        if (fits(recipe.truth))
            QTest::newRow(qPrintable(recipe.name)) << recipe.name;
    }
}

/// All pictures of a file in grey, of the size of a film strip's or turned so; ffmpeg applies the
/// display matrix where that is asked for.
QVector<QImage> decoded(const NxFootageRecipe &recipe, QSize size, bool isTurned)
{
    QStringList arguments{QStringLiteral("-v"), QStringLiteral("error")};
    if (!isTurned)
        arguments += QStringLiteral("-noautorotate");
    arguments += QStringList{QStringLiteral("-i"),
                             pathOf(recipe),
                             QStringLiteral("-map"),
                             QStringLiteral("0:v:0"),
                             QStringLiteral("-vsync"),
                             QStringLiteral("passthrough"),
                             QStringLiteral("-vf"),
                             QStringLiteral("scale=%1:%2").arg(size.width()).arg(size.height()),
                             QStringLiteral("-f"),
                             QStringLiteral("rawvideo"),
                             QStringLiteral("-pix_fmt"),
                             QStringLiteral("gray"),
                             QStringLiteral("pipe:1")};
    QProcess program;
    program.start(QStringLiteral(NX_FFMPEG), arguments);
    program.waitForFinished(longestRun);
    const QByteArray bytes = program.readAllStandardOutput();
    QVector<QImage> pictures;
    const int length = size.width() * size.height();
    for (int place = 0; place + length <= bytes.size(); place += length) {
        const auto *first = reinterpret_cast<const uchar *>(bytes.constData()) + place;
        pictures.append(
            QImage(first, size.width(), size.height(), size.width(), QImage::Format_Grayscale8)
                .copy());
    }
    return pictures;
}

bool isFilm(const NxFootageTruth &truth)
{
    return truth.isFilm();
}

} // namespace

class tst_NxFootageRecipes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileHasItsOwnNameAndIsThere();
    void everyKindThatCamerasWriteIsThere();
    void twoFilmsHaveMoreKeyFramesThanAStripHasMoments();
    void theStreamsAreAsTold_data();
    void theStreamsAreAsTold();
    void theLengthIsAsTold_data();
    void theLengthIsAsTold();
    void everyFrameStandsWhereToldAndKeyFramesToo_data();
    void everyFrameStandsWhereToldAndKeyFramesToo();
    void theTagsAreAsTold_data();
    void theTagsAreAsTold();
    void everyFrameBearsItsNumber_data();
    void everyFrameBearsItsNumber();
    void turnedFilmsAreTurnedAsTold_data();
    void turnedFilmsAreTurnedAsTold();
    void picturesAreAsTold_data();
    void picturesAreAsTold();
    void photosCarryTheirCamera_data();
    void photosCarryTheirCamera();
    void aMomentIsCountedToItsFrame();
};

void tst_NxFootageRecipes::everyFileHasItsOwnNameAndIsThere()
{
    QSet<QString> names;
    for (const NxFootageRecipe &recipe : NxFootageRecipes::all()) {
        names.insert(recipe.name);
        QVERIFY2(QFileInfo(pathOf(recipe)).size() > 0, qPrintable(recipe.name));
    }
    QCOMPARE(names.size(), int(NxFootageRecipes::all().size()));
}

void tst_NxFootageRecipes::everyKindThatCamerasWriteIsThere()
{
    QSet<QString> codecs;
    QSet<QString> suffixes;
    for (const NxFootageRecipe &recipe : NxFootageRecipes::all()) {
        codecs << recipe.truth.videoCodec << recipe.truth.audioCodec;
        suffixes << recipe.name.section(QLatin1Char('.'), -1);
    }
    for (const char *codec :
         {"h264", "hevc", "vp9", "prores", "mpeg2video", "mjpeg", "dnxhd", "mp3", "flac", "aac",
          "vorbis", "png", "jpeg", "webp", "tiff", "heic", "gif"})
        QVERIFY2(codecs.contains(QLatin1String(codec)), codec);
    for (const char *suffix : {"mp4", "mov", "mkv", "webm", "ts", "mpg", "avi", "mxf", "wav", "ogg",
                               "m4a", "srt", "lrc"})
        QVERIFY2(suffixes.contains(QLatin1String(suffix)), suffix);
}

void tst_NxFootageRecipes::twoFilmsHaveMoreKeyFramesThanAStripHasMoments()
{
    constexpr int moments = 10;
    int films = 0;
    for (const NxFootageRecipe &recipe : NxFootageRecipes::all()) {
        const NxFootageTruth &truth = recipe.truth;
        if (truth.isFilm() && !truth.isExact())
            films += truth.frames / truth.keyFrameDistance >= moments ? 1 : 0;
    }
    QVERIFY2(films >= 2, qPrintable(QString::number(films)));
}

void tst_NxFootageRecipes::theStreamsAreAsTold_data()
{
    rows([](const NxFootageTruth &truth) {
        return truth.isFilm() || truth.kind == NxFootageKind::Audio;
    });
}

void tst_NxFootageRecipes::theStreamsAreAsTold()
{
    QFETCH(QString, name);

    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    const NxFootageTruth &truth = recipe.truth;
    const QJsonObject video = probed(recipe).stream("video");
    QCOMPARE(video.isEmpty(), !truth.isFilm());
    if (truth.isFilm()) {
        QSize size(video.value(QLatin1String("width")).toInt(),
                   video.value(QLatin1String("height")).toInt());
        if (truth.rotation % 180 != 0)
            size.transpose();
        QCOMPARE(size, truth.size);
        QCOMPARE(probed(recipe).rotation(), truth.rotation);
        QCOMPARE(video.value(QLatin1String("codec_name")).toString(), truth.videoCodec);
        QCOMPARE(NxProbedFile::rational(video.value(QLatin1String("avg_frame_rate"))), truth.rate);
    }
    if (truth.kind == NxFootageKind::Video) {
        QCOMPARE(video.value(QLatin1String("pix_fmt")).toString(), truth.pixelFormat);
        const NxRational aspect =
            NxProbedFile::rational(video.value(QLatin1String("sample_aspect_ratio")), ':');
        QCOMPARE(aspect.isValid() ? aspect : NxRational({1, 1}), truth.pixelAspect);
    }
    const QJsonObject sound = probed(recipe).stream("audio");
    QCOMPARE(sound.value(QLatin1String("codec_name")).toString(), truth.audioCodec);
    QCOMPARE(sound.value(QLatin1String("sample_rate")).toString().toInt(), truth.sampleRate);
    QCOMPARE(sound.value(QLatin1String("channels")).toInt(), truth.channels);
    QCOMPARE(!probed(recipe).stream("video", true).isEmpty(), truth.hasCoverArt);
}

void tst_NxFootageRecipes::theLengthIsAsTold_data()
{
    rows([](const NxFootageTruth &truth) {
        return truth.isFilm() || truth.kind == NxFootageKind::Audio;
    });
}

void tst_NxFootageRecipes::theLengthIsAsTold()
{
    QFETCH(QString, name);

    constexpr double rounding = 1000; // us
    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    const NxFootageTruth &truth = recipe.truth;
    if (truth.isFilm()) {
        QCOMPARE(qint64(probed(recipe).frames().size()), truth.frames);
    }
    QVERIFY2(qAbs(truth.frames / truth.rate.toDouble() - truth.durationUs / second) < 0.02,
             qPrintable(name));
    const double told = probed(recipe).containerSeconds() * second;
    const double slack = double(truth.durationSlackUs) + rounding;
    const bool isWhole = qAbs(told - double(truth.durationUs)) <= slack;
    QVERIFY2(isWhole,
             qPrintable(QStringLiteral("%1 us instead of %2").arg(told).arg(truth.durationUs)));
}

void tst_NxFootageRecipes::everyFrameStandsWhereToldAndKeyFramesToo_data()
{
    rows(isFilm);
}

void tst_NxFootageRecipes::everyFrameStandsWhereToldAndKeyFramesToo()
{
    QFETCH(QString, name);

    constexpr qint64 rounding = 1500; // us; Matroska's clock ticks once a millisecond.
    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    const NxFootageTruth &truth = recipe.truth;
    const QVector<NxProbedFile::Frame> frames = probed(recipe).frames();
    for (int frame = 0; frame < frames.size(); ++frame) {
        const bool isLast = frame == frames.size() - 1;
        const qint64 expected = truth.frameTimeUs(frame);
        const std::optional<qint64> time = frames.at(frame).timeUs;
        const QString said =
            QStringLiteral("frame %1 at %2 us").arg(frame).arg(time.value_or(nothing));
        QVERIFY2(time ? qAbs(*time - expected) <= rounding : isLast, qPrintable(said));
        const bool isKey = (truth.firstNumber + frame) % truth.keyFrameDistance == 0;
        if (truth.kind == NxFootageKind::Video)
            QVERIFY2(frames.at(frame).isKey == isKey, qPrintable(said));
    }
}

void tst_NxFootageRecipes::theTagsAreAsTold_data()
{
    rows([](const NxFootageTruth &truth) {
        return truth.kind == NxFootageKind::Video || truth.kind == NxFootageKind::Audio;
    });
}

void tst_NxFootageRecipes::theTagsAreAsTold()
{
    QFETCH(QString, name);

    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    const NxFootageTruth &truth = recipe.truth;
    const NxProbedFile &probe = probed(recipe);
    const QString day = probe.tag(
        {QStringLiteral("com.apple.quicktime.creationdate"), QStringLiteral("creation_time")});
    const QDateTime shot = QDateTime::fromString(day, Qt::ISODateWithMs);
    QCOMPARE(shot.isValid() ? shot.toMSecsSinceEpoch() : NxNoFootageTime, truth.shot);
    QCOMPARE(probe.tag({QStringLiteral("com.apple.quicktime.make"), QStringLiteral("make")}),
             truth.cameraMaker);
    QCOMPARE(probe.tag({QStringLiteral("com.apple.quicktime.model"), QStringLiteral("model")}),
             truth.cameraModel);
    QCOMPARE(probe.tag({QStringLiteral("timecode")}), truth.timecode);
    QCOMPARE(probe.tag({QStringLiteral("reel_name")}), truth.reel);
}

void tst_NxFootageRecipes::everyFrameBearsItsNumber_data()
{
    rows([](const NxFootageTruth &truth) { return truth.isNumbered && truth.isFilm(); });
}

void tst_NxFootageRecipes::everyFrameBearsItsNumber()
{
    QFETCH(QString, name);

    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    const QVector<QImage> pictures = decoded(recipe, stripSize, false);
    QCOMPARE(qint64(pictures.size()), recipe.truth.frames);
    for (int frame = 0; frame < pictures.size(); ++frame) {
        QCOMPARE(NxNumberedFrames::read(pictures.at(frame)).value_or(nothing),
                 recipe.truth.firstNumber + frame);
    }
}

void tst_NxFootageRecipes::turnedFilmsAreTurnedAsTold_data()
{
    rows([](const NxFootageTruth &truth) {
        return truth.kind == NxFootageKind::Video && truth.rotation != 0;
    });
}

void tst_NxFootageRecipes::turnedFilmsAreTurnedAsTold()
{
    QFETCH(QString, name);

    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    const QVector<QImage> pictures = decoded(recipe, recipe.truth.size, true);
    QCOMPARE(qint64(pictures.size()), recipe.truth.frames);
    QCOMPARE(NxNumberedFrames::readFitted(pictures.last(), recipe.truth.size, recipe.truth.rotation)
                 .value_or(nothing),
             int(recipe.truth.frames) - 1);
}

void tst_NxFootageRecipes::picturesAreAsTold_data()
{
    rows([](const NxFootageTruth &truth) { return truth.kind == NxFootageKind::Image; });
}

void tst_NxFootageRecipes::picturesAreAsTold()
{
    QFETCH(QString, name);

    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    QImageReader reader(pathOf(recipe));
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QImage picture = reader.read();
    QVERIFY2(!picture.isNull(), qPrintable(reader.errorString()));
    QCOMPARE(picture.size(), recipe.truth.size);
    QCOMPARE(NxNumberedFrames::readFitted(picture, recipe.truth.size, recipe.truth.rotation,
                                          recipe.truth.mirrored)
                 .value_or(nothing),
             0);
}

void tst_NxFootageRecipes::photosCarryTheirCamera_data()
{
    rows([](const NxFootageTruth &truth) {
        return truth.kind == NxFootageKind::Image && !truth.cameraMaker.isEmpty();
    });
}

void tst_NxFootageRecipes::photosCarryTheirCamera()
{
    QFETCH(QString, name);

    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    QFile file(pathOf(recipe));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(content.contains(recipe.truth.cameraMaker.toLatin1() + '\0'));
    QVERIFY(content.contains(recipe.truth.cameraModel.toLatin1() + '\0'));
    const QDateTime shot = QDateTime::fromMSecsSinceEpoch(recipe.truth.shot);
    if (content.contains(QByteArrayLiteral("+05:00\0"))) {
        const QDateTime there = shot.toOffsetFromUtc(5 * 60 * 60);
        QVERIFY(content.contains(there.toString(QStringLiteral("yyyy:MM:dd HH:mm:ss")).toLatin1()));
    } else {
        QVERIFY(content.contains(shot.toString(QStringLiteral("yyyy:MM:dd HH:mm:ss")).toLatin1()));
    }
}

void tst_NxFootageRecipes::aMomentIsCountedToItsFrame()
{
    const NxFootageTruth &constant = NxFootageRecipes::named(QStringLiteral("avc.mp4")).truth;
    QCOMPARE(constant.numberAt(0), 0);
    QCOMPARE(constant.numberAt(39999), 0);
    QCOMPARE(constant.numberAt(40000), 1);
    QCOMPARE(constant.numberAt(constant.durationUs * 2), 149);
    QCOMPARE(constant.keyNumberAt(23 * 40000), 12);
    QCOMPARE(constant.keyNumberAt(24 * 40000), 24);
    const NxFootageTruth &variable = NxFootageRecipes::named(QStringLiteral("variable.mp4")).truth;
    QCOMPARE(variable.numberAt(1180000), 59);
    QCOMPARE(variable.numberAt(1200000), 60);
    QCOMPARE(variable.numberAt(1239999), 60);
    QCOMPARE(variable.numberAt(1240000), 61);
    const NxFootageTruth &edited = NxFootageRecipes::named(QStringLiteral("edited.mp4")).truth;
    QCOMPARE(edited.numberAt(0), 35);
    QCOMPARE(edited.keyNumberAt(0), 0);
}

NX_TEST_MAIN(tst_NxFootageRecipes)
#include "tst_NxFootageRecipes.moc"
