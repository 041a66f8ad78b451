// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Footage/NxNumberedFrames.h>
#include <Support/NxTestMain.h>

#include <QBuffer>
#include <QPainter>
#include <QRandomGenerator>
#include <QTransform>
#include <QtTest>

namespace {

constexpr QSize size(320, 180);
constexpr QSize stripSize(144, 81);
constexpr int everyFew = 37; // A step that meets every bit.
constexpr int nothing = -1;

NxNumberedFrames frames()
{
    return NxNumberedFrames(size, NxNumberedFrames::LargestNumber + 1, {25, 1});
}

QImage throughJpeg(const QImage &picture)
{
    constexpr int quality = 85;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.convertToFormat(QImage::Format_RGB32).save(&buffer, "JPEG", quality);
    return QImage::fromData(bytes, "JPEG");
}

/// As a film strip shows it: in the middle of black bars.
QImage fitted(const QImage &picture)
{
    QImage frame(stripSize, QImage::Format_RGB32);
    frame.fill(Qt::black);
    const QImage scaled = picture.scaled(stripSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&frame);
    painter.drawImage((frame.width() - scaled.width()) / 2, (frame.height() - scaled.height()) / 2,
                      scaled);
    return frame;
}

QImage noise(quint32 seed)
{
    QRandomGenerator random(seed);
    QImage picture(size, QImage::Format_Grayscale8);
    for (int y = 0; y < picture.height(); ++y) {
        uchar *line = picture.scanLine(y);
        std::generate_n(line, picture.width(), [&random] { return uchar(random.bounded(256)); });
    }
    return picture;
}

QImage filled(Qt::GlobalColor color)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    return picture;
}

} // namespace

class tst_NxNumberedFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyNumberIsReadBack();
    void numbersSurviveAnySize_data();
    void numbersSurviveAnySize();
    void numbersAreReadThroughBarsTurnsAndMirrors_data();
    void numbersAreReadThroughBarsTurnsAndMirrors();
    void theWrongTurnIsNoNumber();
    void whatBearsNoNumberIsRefused_data();
    void whatBearsNoNumberIsRefused();
    void aSquareThatIsWrongIsNoticed();
    void aSquareThatIsSmearedIsNoticed();
    void theStreamHasTheSizeThatItsHeaderTells();
};

void tst_NxNumberedFrames::everyNumberIsReadBack()
{
    const NxNumberedFrames all = frames();
    for (int number = 0; number <= NxNumberedFrames::LargestNumber; ++number)
        QCOMPARE(NxNumberedFrames::read(all.picture(number)).value_or(nothing), number);
}

void tst_NxNumberedFrames::numbersSurviveAnySize_data()
{
    QTest::addColumn<QSize>("shown");

    QTest::newRow("a film strip's") << stripSize;
    QTest::newRow("a cover's") << QSize(480, 270);
    QTest::newRow("a cinema's") << QSize(1920, 1080);
    QTest::newRow("odd") << QSize(201, 113);
    QTest::newRow("stretched") << QSize(240, 180);
}

void tst_NxNumberedFrames::numbersSurviveAnySize()
{
    QFETCH(QSize, shown);

    const NxNumberedFrames all = frames();
    for (int number = 0; number <= NxNumberedFrames::LargestNumber; number += everyFew) {
        const QImage scaled =
            all.picture(number).scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        QCOMPARE(NxNumberedFrames::read(throughJpeg(scaled)).value_or(nothing), number);
    }
}

void tst_NxNumberedFrames::numbersAreReadThroughBarsTurnsAndMirrors_data()
{
    QTest::addColumn<int>("rotation");
    QTest::addColumn<bool>("mirrored");

    for (const int rotation : {0, 90, 180, 270}) {
        QTest::addRow("turned by %d", rotation) << rotation << false;
        QTest::addRow("mirrored and turned by %d", rotation) << rotation << true;
    }
}

void tst_NxNumberedFrames::numbersAreReadThroughBarsTurnsAndMirrors()
{
    QFETCH(int, rotation);
    QFETCH(bool, mirrored);

    QTransform turn;
    turn.rotate(rotation);
    const NxNumberedFrames all = frames();
    for (int number = 0; number <= NxNumberedFrames::LargestNumber; number += everyFew) {
        const QImage shown = all.picture(number).mirrored(mirrored, false).transformed(turn);
        const QImage strip = throughJpeg(fitted(shown));
        QCOMPARE(
            NxNumberedFrames::readFitted(strip, shown.size(), rotation, mirrored).value_or(nothing),
            number);
    }
}

void tst_NxNumberedFrames::theWrongTurnIsNoNumber()
{
    // Not every number is told from its mirror image, but the first ones of a film are.
    const NxNumberedFrames all = frames();
    for (int number = 0; number <= everyFew; ++number) {
        const QImage shown = all.picture(number).mirrored(true, true);
        const std::optional<int> read = NxNumberedFrames::readFitted(shown, size, 0);
        QVERIFY2(read.value_or(nothing) != number, qPrintable(QString::number(number)));
    }
}

void tst_NxNumberedFrames::whatBearsNoNumberIsRefused_data()
{
    QTest::addColumn<QImage>("picture");

    QTest::newRow("nothing") << QImage();
    QTest::newRow("one dot") << QImage(1, 1, QImage::Format_RGB32);
    QTest::newRow("black") << filled(Qt::black);
    QTest::newRow("white") << filled(Qt::white);
    QTest::newRow("grey") << filled(Qt::gray);
    for (const quint32 seed : {1U, 2U, 3U, 4U})
        QTest::addRow("noise of seed %u", seed) << noise(seed);
    const QImage tiny =
        frames().picture(1).scaled(4, 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QTest::newRow("squares smeared into each other") << tiny.scaled(size);
}

void tst_NxNumberedFrames::whatBearsNoNumberIsRefused()
{
    QFETCH(QImage, picture);

    QVERIFY(!NxNumberedFrames::read(picture).has_value());
}

void tst_NxNumberedFrames::aSquareThatIsWrongIsNoticed()
{
    constexpr int squareSide = 32; // px
    constexpr int columns = 8;
    constexpr int squares = 16;
    const QPoint corner(squareSide, size.height() / 2 - squareSide);
    for (int square = 0; square < squares; ++square) {
        QImage picture = frames().picture(everyFew);
        const QPoint place = corner + QPoint(square % columns, square / columns) * squareSide;
        const QRect area(place, QSize(squareSide, squareSide));
        QImage other = picture.copy(area);
        other.invertPixels();
        QPainter painter(&picture);
        painter.drawImage(area.topLeft(), other);
        painter.end();
        QVERIFY2(!NxNumberedFrames::read(picture).has_value(), qPrintable(QString::number(square)));
    }
}

void tst_NxNumberedFrames::aSquareThatIsSmearedIsNoticed()
{
    QImage picture = frames().picture(everyFew).convertToFormat(QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.fillRect(QRect(size.width() / 2 - 24, size.height() / 2 - 24, 48, 48), Qt::gray);
    painter.end();
    QVERIFY(!NxNumberedFrames::read(picture).has_value());
}

void tst_NxNumberedFrames::theStreamHasTheSizeThatItsHeaderTells()
{
    const NxNumberedFrames all = frames();
    QCOMPARE(all.streamHeader(), QByteArray("YUV4MPEG2 W320 H180 F25:1 Ip A1:1 C420jpeg\n"));
    const QByteArray frame = all.streamFrame(everyFew);
    const QByteArray line = QByteArrayLiteral("FRAME\n");
    QVERIFY(frame.startsWith(line));
    QCOMPARE(frame.size(), line.size() + size.width() * size.height() * 3 / 2);
    const QImage picture(reinterpret_cast<const uchar *>(frame.constData()) + line.size(),
                         size.width(), size.height(), size.width(), QImage::Format_Grayscale8);
    QCOMPARE(picture, all.picture(everyFew));
}

NX_TEST_MAIN(tst_NxNumberedFrames)
#include "tst_NxNumberedFrames.moc"
