// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/preview/FilmRenderer.h>
#include <brevano-worker/preview/RenderModules.h>

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QtTest>

#include <cmath>
#include <filesystem>

#include <unistd.h>

namespace {

constexpr QSize Output(1920, 1080);
constexpr QSize Small(144, 81);
constexpr qint64 FrameUs = 40'000;
constexpr int NotReadable = -1;
constexpr int NotDecoded = -2;

NxResult<std::unique_ptr<FilmRenderer>> opened(const QString &path, QSize output = Output)
{
    return FilmRenderer::open(QFile::encodeName(path), output);
}

std::unique_ptr<FilmRenderer> filmOf(const QString &name, QSize output = Output)
{
    auto film = opened(NxFootageSet::path(NxFootageRecipes::named(name)), output);
    if (!film)
        qWarning("%s: %s", qUtf8Printable(name), qUtf8Printable(film.errorText()));
    return film ? film.take() : nullptr;
}

QImage picture(FilmRenderer *film, qint64 frame, QSize size = Small)
{
    QImage image(size, QImage::Format_RGB32);
    const NxResult<void> rendered = film->render(frame, size, image.bits());
    return rendered ? image : QImage();
}

QSize shapeOf(const NxFootageTruth &truth)
{
    const double wide = double(truth.pixelAspect.num) / double(truth.pixelAspect.den);
    return {int(std::lround(truth.size.width() * wide)), truth.size.height()};
}

/// The number that a frame bears, when it is turned as the film wants it.
int numberIn(FilmRenderer *film, qint64 frame, const NxFootageTruth &truth)
{
    const QImage image = picture(film, frame);
    if (image.isNull())
        return NotDecoded;
    return NxNumberedFrames::readFitted(image, shapeOf(truth), truth.rotation)
        .value_or(NotReadable);
}

} // namespace

class tst_FilmRenderer : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void framesComeInTheirOrder_data();
    void framesComeInTheirOrder();
    void aJumpShowsWhatWasAskedFor_data() { framesComeInTheirOrder_data(); }
    void aJumpShowsWhatWasAskedFor();
    void everyRateIsShownAtItsOwnSpeed_data();
    void everyRateIsShownAtItsOwnSpeed();
    void picturesHaveTheSizeThatWasAskedFor_data();
    void picturesHaveTheSizeThatWasAskedFor();
    void anotherShapeLiesBetweenBlackBars();
    void pixelsAreOpaqueAndTheirColoursInPlace();
    void aNameIsNothingButAName();
    void whatIsNoFilmIsRefused_data();
    void whatIsNoFilmIsRefused();
    void aListOfOtherFilesIsRefused_data();
    void aListOfOtherFilesIsRefused();

private:
    std::unique_ptr<RenderModules> m_modules;
    std::unique_ptr<NxFootageGuard> m_guard;
};

void tst_FilmRenderer::initTestCase()
{
    m_guard = std::make_unique<NxFootageGuard>(NxFootageSet::folder());
    m_modules = std::make_unique<RenderModules>();
    QVERIFY(m_modules->areLoaded());
}

void tst_FilmRenderer::cleanupTestCase()
{
    m_modules.reset();
    NX_VERIFY_UNTOUCHED(*m_guard);
}

void tst_FilmRenderer::framesComeInTheirOrder_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"avc.mp4", "avc long.mp4", "avc.mkv", "avc fragments.mp4", "vp9.webm", "hevc 10 bits.mp4",
          "prores.mov", "mjpeg.avi", "mpeg4.avi", "dnxhr.mov", "cover art.mp4", "edited.mp4",
          "wide pixels.mp4", "turned 90.mp4", "turned 180.mp4", "turned 270.mov"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_FilmRenderer::framesComeInTheirOrder()
{
    QFETCH(QString, name);
    const NxFootageTruth truth = NxFootageRecipes::named(name).truth;
    const auto film = filmOf(name);
    QVERIFY(film);
    QVERIFY2(std::abs(film->frames() - truth.frames) <= 2,
             qPrintable(QString::number(film->frames())));
    for (int frame = 0; frame < 40; ++frame)
        QCOMPARE(numberIn(film.get(), frame, truth), truth.firstNumber + frame);
}

void tst_FilmRenderer::aJumpShowsWhatWasAskedFor()
{
    QFETCH(QString, name);
    const NxFootageTruth truth = NxFootageRecipes::named(name).truth;
    const auto film = filmOf(name);
    QVERIFY(film);
    for (const int frame : {30, 3, 45, 46, 20, 0, 1})
        QCOMPARE(numberIn(film.get(), frame, truth), truth.firstNumber + frame);
}

void tst_FilmRenderer::everyRateIsShownAtItsOwnSpeed_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"24.mp4", "30.mov", "50.mp4", "60.mp4", "mjpeg.mov"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_FilmRenderer::everyRateIsShownAtItsOwnSpeed()
{
    QFETCH(QString, name);
    const NxFootageTruth truth = NxFootageRecipes::named(name).truth;
    const auto film = filmOf(name);
    QVERIFY(film);
    const double seconds = double(truth.durationUs) / 1e6;
    QVERIFY2(std::abs(film->frames() - seconds * 25) <= 2,
             qPrintable(QString::number(film->frames())));
    for (int frame = 1; frame < 60; frame += 7) {
        const int number = numberIn(film.get(), frame, truth);
        const int wanted = truth.numberAt(frame * FrameUs);
        QVERIFY2(std::abs(number - wanted) <= 1,
                 qPrintable(QStringLiteral("%1: %2, not %3").arg(frame).arg(number).arg(wanted)));
    }
}

void tst_FilmRenderer::picturesHaveTheSizeThatWasAskedFor_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size : {Small, QSize(16, 9), QSize(320, 180), QSize(1920, 1080)})
        QTest::newRow(qPrintable(QStringLiteral("%1 px").arg(size.width()))) << size;
}

void tst_FilmRenderer::picturesHaveTheSizeThatWasAskedFor()
{
    QFETCH(QSize, size);
    const auto film = filmOf(QStringLiteral("avc.mp4"));
    QVERIFY(film);
    const QImage image = picture(film.get(), 7, size);
    QCOMPARE(image.size(), size);
    constexpr int readable = 100; // px; below that the squares run together.
    if (size.width() > readable)
        QCOMPARE(NxNumberedFrames::read(image).value_or(NotReadable), 7);
}

void tst_FilmRenderer::anotherShapeLiesBetweenBlackBars()
{
    constexpr QSize square(100, 100);
    const auto film = filmOf(QStringLiteral("avc.mp4"), {1000, 1000});
    QVERIFY(film);
    const QImage image = picture(film.get(), 0, square);
    QVERIFY(!image.isNull());
    for (const int y : {0, 10, 20, 79, 89, 99})
        QVERIFY2(qGray(image.pixel(50, y)) < 8, qPrintable(QString::number(y)));
    for (const int y : {25, 50, 74})
        QVERIFY2(qGray(image.pixel(3, y)) > 50, qPrintable(QString::number(y)));
}

void tst_FilmRenderer::pixelsAreOpaqueAndTheirColoursInPlace()
{
    const NxTempDir dir;
    const QString path = dir.filePath(QStringLiteral("orange.mp4"));
    QProcess maker;
    maker.start(QStringLiteral("ffmpeg"),
                QStringLiteral("-v error -f lavfi -i color=c=0xff8000:size=160x160:rate=25:"
                               "duration=1 -c:v libx264 -pix_fmt yuv420p")
                        .split(QLatin1Char(' '))
                    + QStringList{path});
    QVERIFY(maker.waitForFinished() && maker.exitCode() == 0);
    auto film = opened(path);
    QVERIFY2(film, qPrintable(film.errorText()));
    const QImage image = picture(film->get(), 5);
    const auto *pixels = reinterpret_cast<const QRgb *>(image.constBits());
    for (int i = 0; i < Small.width() * Small.height(); ++i)
        QCOMPARE(qAlpha(pixels[i]), 255);
    const QRgb middle = image.pixel(Small.width() / 2, Small.height() / 2);
    QVERIFY(std::abs(qRed(middle) - 0xFF) < 12);
    QVERIFY(std::abs(qGreen(middle) - 0x80) < 12);
    QVERIFY(std::abs(qBlue(middle) - 0x00) < 12);
}

void tst_FilmRenderer::aNameIsNothingButAName()
{
    const NxTempDir dir;
    const QString source = NxFootageSet::path(NxFootageRecipes::named(QStringLiteral("avc.mp4")));
    for (const QByteArray &name : {QByteArray("lavfi:a?b=c&d=1.mp4"), QByteArray("50%25%d.mp4"),
                                   QByteArray("no \xff UTF-8"), QByteArray("-i")}) {
        const QByteArray path = QFile::encodeName(dir.path()) + '/' + name;
        QVERIFY(std::filesystem::copy_file(QFile::encodeName(source).toStdString(),
                                           path.toStdString()));
        const auto film = FilmRenderer::open(path, Output);
        QVERIFY2(film, qPrintable(film.errorText()));
        QCOMPARE((*film)->frames(), 150);
    }
}

void tst_FilmRenderer::whatIsNoFilmIsRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << QStringLiteral("/none/a.mp4")
                             << QStringLiteral("The file is missing.");
    QTest::newRow("a folder") << NxFootageSet::folder() << QStringLiteral("This is not a file.");
    QTest::newRow("sound") << NxFootageSet::path(NxFootageRecipes::sounds().front())
                           << QStringLiteral("There is no film in the file.");
}

void tst_FilmRenderer::whatIsNoFilmIsRefused()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    const auto film = opened(path);
    QVERIFY(!film);
    QCOMPARE(film.errorText(), reason);
}

void tst_FilmRenderer::aListOfOtherFilesIsRefused_data()
{
    const QByteArray other =
        NxFootageSet::path(NxFootageRecipes::named(QStringLiteral("avc.ts"))).toUtf8();
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("noise") << QByteArray(5000, 'x');
    QTest::newRow("a playlist") << "#EXTM3U\n#EXT-X-TARGETDURATION:6\n#EXTINF:6,\nfile://" + other
                                       + "\n#EXT-X-ENDLIST\n";
    QTest::newRow("a list to be joined") << "ffconcat version 1.0\nfile '" + other + "'\n";
    QTest::newRow("a project")
        << "<?xml version=\"1.0\"?><mlt><producer id=\"a\"><property name=\"resource\">" + other
               + "</property></producer></mlt>";
}

void tst_FilmRenderer::aListOfOtherFilesIsRefused()
{
    QFETCH(QByteArray, content);
    const NxTempDir dir;
    const auto film = opened(dir.write(QStringLiteral("list.mp4"), content));
    QVERIFY(!film);
    QVERIFY(!film.errorText().isEmpty());
}

NX_TEST_MAIN(tst_FilmRenderer)
#include "tst_FilmRenderer.moc"
