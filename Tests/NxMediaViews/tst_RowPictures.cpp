// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <GallerySheet.h>

#include <NxWidgets/NxSkinStyle.h>

#include <Support/NxTestMain.h>

#include <QDir>
#include <QPainter>
#include <QTest>

namespace {

constexpr int NearInAChannel = 24;
// As many pixels may differ, for fonts are not drawn alike everywhere: of the whole picture, and of
// each tile of it, so that a mark that is missing is noticed.
constexpr int FarPixelsPerMille = 5;
constexpr int FarPixelsOfTilePerMille = 40;
constexpr int Tile = 32;

bool isFar(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) > NearInAChannel || qAbs(qGreen(a) - qGreen(b)) > NearInAChannel
           || qAbs(qBlue(a) - qBlue(b)) > NearInAChannel;
}

int farPixels(const QImage &actual, const QImage &reference, const QRect &place)
{
    int count = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x)
            count += isFar(actual.pixel(x, y), reference.pixel(x, y)) ? 1 : 0;
    }
    return count;
}

/// Empty when the pictures look alike.
QString differenceOf(const QImage &actual, const QImage &reference)
{
    if (reference.isNull())
        return QStringLiteral("there is no reference picture");
    if (actual.size() != reference.size())
        return QStringLiteral("it has another size than the reference");
    int all = 0;
    for (int y = 0; y < actual.height(); y += Tile) {
        for (int x = 0; x < actual.width(); x += Tile) {
            const QRect tile = QRect(x, y, Tile, Tile) & actual.rect();
            const int far = farPixels(actual, reference, tile);
            if (far * 1000 > Tile * Tile * FarPixelsOfTilePerMille)
                return QStringLiteral("%1 pixels differ around %2, %3").arg(far).arg(x).arg(y);
            all += far;
        }
    }
    const qint64 pixels = qint64(actual.width()) * actual.height();
    return qint64(all) * 1000 <= pixels * FarPixelsPerMille
               ? QString()
               : QStringLiteral("%1 of %2 pixels differ").arg(all).arg(pixels);
}

/// Where the picture that a test made can be looked at.
QString written(const QImage &actual, const QString &fileName)
{
    const QDir folder(QStringLiteral(NX_ACTUAL_PICTURES));
    const QString path = folder.filePath(fileName);
    return folder.mkpath(QStringLiteral(".")) && actual.save(path, "PNG")
               ? path
               : QStringLiteral("nowhere: it could not be written");
}

void fill(QImage *picture, const QRect &place)
{
    QPainter painter(picture);
    painter.fillRect(place, Qt::lightGray);
}

} // namespace

class tst_RowPictures : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void rowsLookLikeTheirPictures_data();
    void rowsLookLikeTheirPictures();
    void aChangedPictureIsNoticed();

    void cleanup() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }
};

void tst_RowPictures::rowsLookLikeTheirPictures_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<bool>("isLight");
    QTest::addColumn<int>("scale");
    for (const bool isLight : {false, true}) {
        const char *skin = isLight ? "light" : "dark";
        for (const char *section : {"small", "middle", "large", "list", "headers", "folders"})
            QTest::addRow("%s-%s-1x", section, skin)
                << QString::fromLatin1(section) << isLight << 1;
        for (const char *section : {"small", "list", "headers", "folders"})
            QTest::addRow("%s-%s-2x", section, skin)
                << QString::fromLatin1(section) << isLight << 2;
    }
}

void tst_RowPictures::rowsLookLikeTheirPictures()
{
    QFETCH(QString, section);
    QFETCH(bool, isLight);
    QFETCH(int, scale);
    NxSkinStyle::instance()->setSkin(isLight ? NxSkin::Light : NxSkin::Dark);
    GallerySheet sheet;
    QImage whole = sheet.image(scale);
    whole.setDevicePixelRatio(1.0);
    QRect place;
    for (const GallerySheet::Section &it : sheet.sections()) {
        if (it.name == section)
            place = it.place;
    }
    QVERIFY(!place.isEmpty());
    const QImage actual = whole.copy(QRect(place.topLeft() * scale, place.size() * scale));
    const QString fileName = QString::fromLatin1(QTest::currentDataTag()) + QStringLiteral(".png");
    const QImage reference(QStringLiteral(NX_REFERENCES "/") + fileName);
    const QString difference = differenceOf(actual, reference);
    if (difference.isEmpty())
        return;
    const QString message =
        QStringLiteral("%1; the picture lies in %2").arg(difference, written(actual, fileName));
    QFAIL(qPrintable(message));
}

void tst_RowPictures::aChangedPictureIsNoticed()
{
    QImage picture(100, 100, QImage::Format_RGB32);
    picture.fill(Qt::darkGray);
    QImage other = picture;
    QVERIFY(differenceOf(picture, other).isEmpty());
    fill(&other, {0, 0, 8, 5});
    QVERIFY(differenceOf(picture, other).isEmpty());
    fill(&other, {0, 5, 1, 1}); // Too many for one tile.
    QVERIFY(!differenceOf(picture, other).isEmpty());
    other = picture;
    fill(&other, {20, 28, 50, 1});
    QVERIFY(differenceOf(picture, other).isEmpty());
    fill(&other, {20, 70, 1, 1}); // Too many for all.
    QVERIFY(!differenceOf(picture, other).isEmpty());
    QVERIFY(!differenceOf(picture, {}).isEmpty());
    QVERIFY(!differenceOf(picture, picture.copy(0, 0, 99, 100)).isEmpty());
}

NX_TEST_MAIN_WIDGETS(tst_RowPictures)
#include "tst_RowPictures.moc"
