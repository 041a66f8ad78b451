// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaItemPainter.h>

#include "RowStand.h"

#include <NxCore/NxDiskBan.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>

#include <Support/NxTestMain.h>

#include <QTest>

using namespace NXMEDIALIBRARY;

class tst_NxMediaItemPainter_covers : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theCoverIsTheEnginesPixelByPixel_data();
    void theCoverIsTheEnginesPixelByPixel();
    void aNarrowCoverStandsInTheMiddleOfItsGround();
    void coversInAnotherFormAreConvertedOnce();
    void whatHasNoCoverShowsItsKind();
    void soundAndSubtitlesShareTheirCovers();
    void paintingReadsNoFile();
};

void tst_NxMediaItemPainter_covers::theCoverIsTheEnginesPixelByPixel_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        for (const int mode : {vmList, vmSmallThumbnail, vmMiddleThumbnail, vmLargeThumbnail})
            QTest::addRow("mode %d at %gx", mode, ratio) << mode << ratio;
    }
}

void tst_NxMediaItemPainter_covers::theCoverIsTheEnginesPixelByPixel()
{
    QFETCH(int, mode);
    QFETCH(qreal, ratio);
    RowStand stand;
    GalleryItem item(NXVBLMODEL::mtNone);
    stand.show(&item);
    stand.engine.covers = patternedCover;
    stand.painter->setViewMode(NxMediaItemViewMode(mode));
    const QRect cover = stand.layout(NxMediaItemViewMode(mode)).cover;
    const QSize devicePixels = (QSizeF(cover.size()) * ratio).toSize();
    const QImage row = stand.painted(QStyle::State_Enabled, ratio);
    QCOMPARE(stand.engine.asked, QVector<QSize>{devicePixels});
    const QImage expected = patterned(devicePixels);
    const QPoint corner = (QPointF(cover.topLeft()) * ratio).toPoint();
    // The kind stands in the upper corner of a cover: all below and beside it is the picture.
    const int marks = mode == vmList ? 0 : qRound(20 * ratio);
    for (int y = marks; y < devicePixels.height(); ++y) {
        for (int x = 0; x < devicePixels.width(); ++x)
            QCOMPARE(row.pixel(corner + QPoint(x, y)), expected.pixel(x, y));
    }
}

void tst_NxMediaItemPainter_covers::aNarrowCoverStandsInTheMiddleOfItsGround()
{
    RowStand stand;
    GalleryItem item(NXVBLMODEL::mtNone);
    stand.show(&item);
    stand.painter->setViewMode(vmLargeThumbnail);
    stand.engine.covers = [](INxAbstractMedia *, const QSize &) {
        QImage portrait(70, 126, QImage::Format_RGB32);
        portrait.fill(Qt::red);
        return portrait;
    };
    const QImage row = stand.painted();
    const QRect cover = stand.layout(vmLargeThumbnail).cover;
    QCOMPARE(pixelsOf(row, cover, Qt::red), 70 * 126);
    QCOMPARE(pixelsOf(row, {cover.x() + 77, cover.y(), 70, 126}, Qt::red), 70 * 126);
    QCOMPARE(pixelsOf(row, {cover.right() - 70, cover.y(), 70, 126},
                      RowStand::colour(NxSkinColor::Background_Cover)),
             70 * 126);
}

void tst_NxMediaItemPainter_covers::coversInAnotherFormAreConvertedOnce()
{
    RowStand stand;
    GalleryItem item(NXVBLMODEL::mtNone);
    stand.show(&item);
    stand.painter->setViewMode(vmMiddleThumbnail);
    const QImage huge = patterned({288, 162}).convertToFormat(QImage::Format_RGB888);
    stand.engine.covers = [&](INxAbstractMedia *, const QSize &) { return huge; };
    const QImage first = stand.painted();
    const QRect cover = stand.layout(vmMiddleThumbnail).cover;
    const QColor middle =
        huge.scaled(144, 81, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(100, 50);
    QCOMPARE(first.pixelColor(cover.topLeft() + QPoint(100, 50)), middle);
    QCOMPARE(stand.painted(), first);
}

void tst_NxMediaItemPainter_covers::whatHasNoCoverShowsItsKind()
{
    RowStand stand;
    GalleryItem item(NXVBLMODEL::mtVideo);
    item.info.frames = -1;
    stand.show(&item);
    stand.painter->setViewMode(vmLargeThumbnail);
    const QImage row = stand.painted();
    const QRect cover = stand.layout(vmLargeThumbnail).cover;
    QRect glyph({0, 0}, QSize(40, 40));
    glyph.moveCenter(cover.center());
    const QColor ink = RowStand::colour(NxSkinColor::Text_Icon_Secondary);
    QVERIFY(pixelsOf(row, glyph, ink) > 200);
    QCOMPARE(pixelsOf(row, cover, ink), pixelsOf(row, glyph, ink));
    QVERIFY(pixelsOf(row, cover, RowStand::colour(NxSkinColor::Background_Cover))
            > cover.width() * cover.height() * 3 / 4);
}

void tst_NxMediaItemPainter_covers::soundAndSubtitlesShareTheirCovers()
{
    RowStand stand;
    stand.painter->setViewMode(vmLargeThumbnail);
    const QRect cover = stand.layout(vmLargeThumbnail).cover;
    const QPoint place = cover.topLeft() + QPoint(100, 80);
    GalleryItem sound(NXVBLMODEL::mtAudio);
    sound.info.infoKind = NXVBLMODEL::mikAudio;
    stand.show(&sound);
    const QImage soundRow = stand.painted();
    const QImage music(NxMediaLibraryUtils::getDefaultAudioThumbnailImagePath());
    QVERIFY(!music.isNull());
    const QImage small =
        music.scaled(cover.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QColor wanted = small.pixelColor(100, 80);
    const QColor got = soundRow.pixelColor(place);
    constexpr int close = 24;
    QVERIFY(qAbs(wanted.red() - got.red()) <= close && qAbs(wanted.green() - got.green()) <= close
            && qAbs(wanted.blue() - got.blue()) <= close);
    QVERIFY(pixelsOf(soundRow, cover, RowStand::colour(NxSkinColor::Background_Cover))
            < cover.width() * cover.height() / 10);

    GalleryItem subtitle(NXVBLMODEL::mtSubtitle);
    subtitle.info.infoKind = NXVBLMODEL::mikSubtitle;
    stand.show(&subtitle);
    QVERIFY(stand.painted().copy(cover) != soundRow.copy(cover));
}

void tst_NxMediaItemPainter_covers::paintingReadsNoFile()
{
    RowStand stand;
    GalleryItem sound(NXVBLMODEL::mtAudio, QStringLiteral("sound.wav"));
    GalleryItem video(NXVBLMODEL::mtVideo, QStringLiteral("video.mov"));
    const NxDiskBan ban;
    for (GalleryItem *item : {&sound, &video}) {
        stand.show(item);
        (void)stand.painted();
        (void)stand.painted(Hovered);
    }
    QCOMPARE(ban.breaches(), QStringList());
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaItemPainter_covers)
#include "tst_NxMediaItemPainter_covers.moc"
