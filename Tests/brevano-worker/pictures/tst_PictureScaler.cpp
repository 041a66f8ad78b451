// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Support/NxTestMain.h>
#include <brevano-worker/pictures/PictureScaler.h>

#include <QTest>

#include <array>
#include <cstring>

extern "C" {
#include <libavutil/frame.h>
}

namespace {

using Matrix = std::array<int, 4>; // x by x, y by x, x by y, y by y

constexpr AVRational square{1, 1};
constexpr QSize box(480, 270);

FrameHandle emptyFrame(QSize size, AVPixelFormat format)
{
    FrameHandle frame(av_frame_alloc());
    frame->width = size.width();
    frame->height = size.height();
    frame->format = format;
    if (av_frame_get_buffer(frame.get(), 0) < 0)
        qFatal("no memory");
    return frame;
}

/// Every row and column the same bytes.
FrameHandle plainFrame(QSize size, QColor colour)
{
    FrameHandle frame = emptyFrame(size, AV_PIX_FMT_BGRA);
    for (int y = 0; y < size.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(frame->data[0] + ptrdiff_t(y) * frame->linesize[0]);
        std::fill(row, row + size.width(), colour.rgba());
    }
    return frame;
}

/// Black but for the upper left quarter, which is white.
FrameHandle corneredFrame(QSize size)
{
    FrameHandle frame = emptyFrame(size, AV_PIX_FMT_GRAY8);
    for (int y = 0; y < size.height(); ++y) {
        uint8_t *row = frame->data[0] + ptrdiff_t(y) * frame->linesize[0];
        std::memset(row, 0, size_t(size.width()));
        if (y < size.height() / 2)
            std::memset(row, 0xff, size_t(size.width()) / 2);
    }
    return frame;
}

/// Where the white quarter is: "left top", "right bottom" and so on.
QString whiteCorner(const QImage &picture)
{
    constexpr int light = 200;
    QString corners;
    for (const int x : {1, 3})
        for (const int y : {1, 3})
            if (qGray(picture.pixel(x * picture.width() / 4, y * picture.height() / 4)) > light)
                corners += QLatin1String(x == 1 ? "left" : "right")
                           + QLatin1String(y == 1 ? " top" : " bottom");
    return corners;
}

} // namespace

Q_DECLARE_METATYPE(Matrix)

class tst_PictureScaler : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void pictureKeepsItsShapeInTheBox_data();
    void pictureKeepsItsShapeInTheBox();
    void stripPicturesFillTheirBox();
    void displayMatrixTurnsThePictureUpright_data();
    void displayMatrixTurnsThePictureUpright();
    void whatCanBeSeenThroughIsBlack();
    void framesMayChangeTheirSizeAndFormat();
    void frameWithoutPixelsIsNoPicture();
};

void tst_PictureScaler::pictureKeepsItsShapeInTheBox_data()
{
    QTest::addColumn<QSize>("coded");
    QTest::addColumn<int>("wide");
    QTest::addColumn<int>("high");
    QTest::addColumn<QSize>("shown");
    QTest::newRow("full HD") << QSize(1920, 1080) << 1 << 1 << QSize(480, 270);
    QTest::newRow("tall") << QSize(1080, 1920) << 1 << 1 << QSize(152, 270);
    QTest::newRow("small ones stay as they are") << QSize(100, 50) << 1 << 1 << QSize(100, 50);
    QTest::newRow("wide pixels") << QSize(1440, 1080) << 4 << 3 << QSize(480, 270);
    QTest::newRow("wide pixels, small: no side is enlarged")
        << QSize(100, 80) << 2 << 1 << QSize(100, 40);
    QTest::newRow("tall pixels, small: no side is enlarged")
        << QSize(100, 80) << 1 << 2 << QSize(50, 80);
    QTest::newRow("the frame's own pixels where the container is silent")
        << QSize(1440, 1080) << 0 << 1 << QSize(360, 270);
    QTest::newRow("pixels of no believable shape are square")
        << QSize(100, 80) << 5000 << 1 << QSize(100, 80);
    QTest::newRow("a line") << QSize(4000, 2) << 1 << 1 << QSize(480, 1);
    QTest::newRow("a pixel") << QSize(1, 1) << 1 << 1 << QSize(1, 1);
}

void tst_PictureScaler::pictureKeepsItsShapeInTheBox()
{
    QFETCH(QSize, coded);
    QFETCH(int, wide);
    QFETCH(int, high);
    QFETCH(QSize, shown);
    PictureScaler scaler({wide, high}, QTransform());
    const FrameHandle frame = plainFrame(coded, Qt::red);
    const QImage picture = scaler.fitted(frame.get(), box, PictureFit::Enlarge::Never);
    QCOMPARE(picture.size(), shown);
    QCOMPARE(picture.pixelColor(picture.width() / 2, picture.height() / 2), QColor(Qt::red));
}

void tst_PictureScaler::stripPicturesFillTheirBox()
{
    PictureScaler scaler(square, QTransform());
    const FrameHandle frame = plainFrame({32, 32}, Qt::red);
    const QImage picture = scaler.fitted(frame.get(), {144, 81}, PictureFit::Enlarge::ToFill);
    QCOMPARE(picture.size(), QSize(81, 81));
}

void tst_PictureScaler::displayMatrixTurnsThePictureUpright_data()
{
    constexpr int one = 1 << 16;
    constexpr int nearly = one - 300; // Of cameras that measure their own angle.
    QTest::addColumn<Matrix>("matrix");
    QTest::addColumn<QString>("corner");
    QTest::addColumn<QSize>("size");
    const QSize lying(400, 200);
    const QSize standing(135, 270);
    const auto corner = [](const char *text) { return QString::fromLatin1(text); };
    QTest::newRow("upright") << Matrix{one, 0, 0, one} << corner("left top") << lying;
    QTest::newRow("90") << Matrix{0, one, -one, 0} << corner("right top") << standing;
    QTest::newRow("180") << Matrix{-one, 0, 0, -one} << corner("right bottom") << lying;
    QTest::newRow("270") << Matrix{0, -one, one, 0} << corner("left bottom") << standing;
    QTest::newRow("mirrored") << Matrix{-one, 0, 0, one} << corner("right top") << lying;
    QTest::newRow("upside down") << Matrix{one, 0, 0, -one} << corner("left bottom") << lying;
    QTest::newRow("mirrored, 90") << Matrix{0, one, one, 0} << corner("left top") << standing;
    QTest::newRow("mirrored, 270")
        << Matrix{0, -one, -one, 0} << corner("right bottom") << standing;
    QTest::newRow("nearly 90") << Matrix{200, nearly, -nearly, -200} << corner("right top")
                               << standing;
    QTest::newRow("no matrix at all: upright") << Matrix{0, 0, 0, 0} << corner("left top") << lying;
    QTest::newRow("the smallest numbers")
        << Matrix{INT_MIN, 0, 0, INT_MIN} << corner("right bottom") << lying;
}

void tst_PictureScaler::displayMatrixTurnsThePictureUpright()
{
    QFETCH(Matrix, matrix);
    QFETCH(QString, corner);
    QFETCH(QSize, size);
    const int32_t all[] = {matrix[0], matrix[1], 0, matrix[2], matrix[3], 0, 0, 0, 1 << 30};
    PictureScaler scaler(square, PictureScaler::uprightOf(all));
    const FrameHandle frame = corneredFrame({400, 200});
    const QImage picture = scaler.fitted(frame.get(), box, PictureFit::Enlarge::Never);
    QCOMPARE(picture.size(), size);
    QCOMPARE(whiteCorner(picture), corner);
}

void tst_PictureScaler::whatCanBeSeenThroughIsBlack()
{
    PictureScaler scaler(square, QTransform());
    const FrameHandle frame = plainFrame({64, 64}, QColor(255, 255, 255, 0));
    const QImage picture = scaler.fitted(frame.get(), box, PictureFit::Enlarge::Never);
    QCOMPARE(picture.pixelColor(32, 32), QColor(Qt::black));
    QVERIFY(!picture.hasAlphaChannel());
}

void tst_PictureScaler::framesMayChangeTheirSizeAndFormat()
{
    PictureScaler scaler(square, QTransform());
    const FrameHandle frames[] = {plainFrame({640, 360}, Qt::red), corneredFrame({64, 96}),
                                  plainFrame({16, 9}, Qt::red), plainFrame({640, 360}, Qt::red)};
    const QSize sizes[] = {{480, 270}, {64, 96}, {16, 9}, {480, 270}};
    for (size_t i = 0; i < std::size(sizes); ++i)
        QCOMPARE(scaler.fitted(frames[i].get(), box, PictureFit::Enlarge::Never).size(), sizes[i]);
}

void tst_PictureScaler::frameWithoutPixelsIsNoPicture()
{
    PictureScaler scaler(square, QTransform());
    const FrameHandle frame(av_frame_alloc());
    QVERIFY(scaler.fitted(frame.get(), box, PictureFit::Enlarge::Never).isNull());
    frame->width = 640;
    frame->height = 360;
    QVERIFY(scaler.fitted(frame.get(), box, PictureFit::Enlarge::Never).isNull());
    const FrameHandle foreign = plainFrame({64, 64}, Qt::red);
    foreign->format = AV_PIX_FMT_VAAPI;
    QVERIFY(scaler.fitted(foreign.get(), box, PictureFit::Enlarge::Never).isNull());
}

NX_TEST_MAIN(tst_PictureScaler)
#include "tst_PictureScaler.moc"
