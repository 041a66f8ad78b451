// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Support/NxTestMain.h>
#include <brevano-worker/pictures/StillPicture.h>

#include <QBuffer>
#include <QTest>

namespace {

QByteArray encoded(const QImage &picture, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!picture.save(&buffer, format))
        qFatal("no %s", format);
    return bytes;
}

QImage filled(QSize size, QImage::Format format, QColor colour)
{
    QImage picture(size, format);
    picture.fill(colour);
    return picture;
}

NxResult<StillPicture> read(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return StillPicture::read(&buffer);
}

/// A picture whose header claims a size, and that has no pixels.
QByteArray claiming(int width, int height)
{
    return QByteArray("P6\n") + QByteArray::number(width) + ' ' + QByteArray::number(height)
           + "\n255\n";
}

} // namespace

class tst_StillPicture : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void depthAndFormatAreWhatIsDecoded_data();
    void depthAndFormatAreWhatIsDecoded();
    void coverFitsItsBoxAndIsNeverEnlarged_data();
    void coverFitsItsBoxAndIsNeverEnlarged();
    void whatCanBeSeenThroughIsBlack();
    void contentDecidesWhatItIs();
    void refusals_data();
    void refusals();
    void diskThatGivesNoDeviceIsAReason();
};

void tst_StillPicture::depthAndFormatAreWhatIsDecoded_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<QString>("pixelFormat");
    const auto row = [](const char *name, QImage::Format format, int depth, const char *pixels) {
        QTest::newRow(name) << int(format) << depth << QString::fromLatin1(pixels);
    };
    row("colours", QImage::Format_RGB32, 8, "rgb24");
    row("with holes", QImage::Format_ARGB32, 8, "rgba");
    row("grey", QImage::Format_Grayscale8, 8, "gray");
    row("deep", QImage::Format_RGBA64, 16, "rgba64");
    row("two colours", QImage::Format_Mono, 1, "monob");
}

void tst_StillPicture::depthAndFormatAreWhatIsDecoded()
{
    QFETCH(int, format);
    QFETCH(int, bitDepth);
    QFETCH(QString, pixelFormat);
    const QColor translucent(200, 100, 50, 128);
    const NxResult<StillPicture> still =
        read(encoded(filled({20, 10}, QImage::Format(format), translucent), "png"));
    QCOMPARE(still.errorText(), QString());
    QCOMPARE(still->bitDepth, bitDepth);
    QCOMPARE(still->pixelFormat, pixelFormat);
    QCOMPARE(still->picture.format(), QImage::Format_RGB32);
}

void tst_StillPicture::coverFitsItsBoxAndIsNeverEnlarged_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("cover");
    QTest::newRow("large") << QSize(1920, 1080) << QSize(480, 270);
    QTest::newRow("tall") << QSize(400, 2700) << QSize(40, 270);
    QTest::newRow("small") << QSize(30, 20) << QSize(30, 20);
    QTest::newRow("a line") << QSize(2000, 1) << QSize(480, 1);
}

void tst_StillPicture::coverFitsItsBoxAndIsNeverEnlarged()
{
    QFETCH(QSize, size);
    QFETCH(QSize, cover);
    for (const char *format : {"png", "jpeg", "bmp"}) {
        const NxResult<StillPicture> still =
            read(encoded(filled(size, QImage::Format_RGB32, Qt::blue), format));
        QCOMPARE(still.errorText(), QString());
        QCOMPARE(still->picture.size(), cover);
    }
}

void tst_StillPicture::whatCanBeSeenThroughIsBlack()
{
    const NxResult<StillPicture> still =
        read(encoded(filled({20, 20}, QImage::Format_ARGB32, QColor(255, 255, 255, 0)), "png"));
    QCOMPARE(still.errorText(), QString());
    QCOMPARE(still->picture.pixelColor(10, 10), QColor(Qt::black));
}

void tst_StillPicture::contentDecidesWhatItIs()
{
    const QByteArray bytes = encoded(filled({20, 20}, QImage::Format_RGB32, Qt::blue), "png");
    QCOMPARE(read(bytes).errorText(), QString());
}

void tst_StillPicture::refusals_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no picture") << QByteArray("#!/bin/sh\n")
                                << QStringLiteral("The picture cannot be read: its format is not "
                                                  "known.");
    QTest::newRow("nothing") << QByteArray()
                             << QStringLiteral("The picture cannot be read: its format is not "
                                               "known.");
    QTest::newRow("larger than memory")
        << claiming(30'000, 20'000)
        << QStringLiteral("The picture is too large: 30000 x 20000 pixels.");
    const QByteArray whole = encoded(filled({64, 64}, QImage::Format_RGB32, Qt::blue), "png");
    QTest::newRow("half a picture") << whole.left(whole.size() / 2)
                                    << QStringLiteral("The picture cannot be read: Unable to read "
                                                      "image data.");
}

void tst_StillPicture::refusals()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    QCOMPARE(read(bytes).errorText(), reason);
}

void tst_StillPicture::diskThatGivesNoDeviceIsAReason()
{
    QCOMPARE(StillPicture::read(nullptr).errorText(),
             QStringLiteral("The picture cannot be read."));
}

NX_TEST_MAIN(tst_StillPicture)
#include "tst_StillPicture.moc"
