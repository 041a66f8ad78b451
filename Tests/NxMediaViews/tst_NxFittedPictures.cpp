// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxFittedPictures_p.h>

#include "RowStand.h"

#include <Support/NxTestMain.h>

#include <QTest>

class tst_NxFittedPictures : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aPictureThatFitsIsNotTouched();
    void theSamePictureIsScaledOnce();
    void anotherPictureOrBoxIsScaledAnew();
    void proportionsStay_data();
    void proportionsStay();
    void whatMovesIsMadeSmallerToo();
    void theAddressOfADeadMediaIsNoEntry();
    void nothingComesOfNothing();
};

void tst_NxFittedPictures::aPictureThatFitsIsNotTouched()
{
    NxFittedPictures pictures(NxFittedPictures::Fit::Shrink);
    GalleryItem item;
    const QImage cover = patterned({144, 81});
    QCOMPARE(pictures.fitted(&item, cover, {144, 81}).cacheKey(), cover.cacheKey());
    QCOMPARE(pictures.fitted(&item, cover, {200, 100}).cacheKey(), cover.cacheKey());
    QCOMPARE(pictures.madeCount(), 0);
}

void tst_NxFittedPictures::theSamePictureIsScaledOnce()
{
    NxFittedPictures pictures(NxFittedPictures::Fit::Shrink);
    GalleryItem item;
    const QImage large = patterned({640, 360});
    const QImage first = pictures.fitted(&item, large, {144, 81});
    QCOMPARE(first.size(), QSize(144, 81));
    QCOMPARE(pictures.fitted(&item, large, {144, 81}).cacheKey(), first.cacheKey());
    QCOMPARE(pictures.madeCount(), 1);
    const QImage foreign = patterned({144, 81}).convertToFormat(QImage::Format_RGB888);
    QCOMPARE(pictures.fitted(&item, foreign, {144, 81}).format(), QImage::Format_RGB32);
    QCOMPARE(pictures.fitted(&item, foreign, {144, 81}), patterned({144, 81}));
    QCOMPARE(pictures.madeCount(), 2);
}

void tst_NxFittedPictures::anotherPictureOrBoxIsScaledAnew()
{
    NxFittedPictures pictures(NxFittedPictures::Fit::Fill);
    GalleryItem item;
    GalleryItem other;
    const QImage large = patterned({640, 360});
    (void)pictures.fitted(&item, large, {144, 81});
    QCOMPARE(pictures.fitted(&item, large, {96, 54}).size(), QSize(96, 54));
    QImage red({640, 360}, QImage::Format_RGB32);
    red.fill(Qt::red);
    QCOMPARE(pictures.fitted(&item, red, {96, 54}).pixelColor(5, 5), QColor(Qt::red));
    QVERIFY(pictures.fitted(&other, large, {96, 54}).pixelColor(5, 5) != QColor(Qt::red));
    QCOMPARE(pictures.madeCount(), 4);
}

void tst_NxFittedPictures::proportionsStay_data()
{
    QTest::addColumn<bool>("fills");
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QSize>("fitted");
    QTest::newRow("larger") << false << QSize(640, 360) << QSize(144, 81);
    QTest::newRow("portrait") << false << QSize(900, 1600) << QSize(45, 81);
    QTest::newRow("small stays") << false << QSize(16, 9) << QSize(16, 9);
    QTest::newRow("small fills") << true << QSize(16, 9) << QSize(144, 81);
    QTest::newRow("a line") << true << QSize(5000, 1) << QSize(144, 1);
}

void tst_NxFittedPictures::proportionsStay()
{
    QFETCH(bool, fills);
    QFETCH(QSize, picture);
    NxFittedPictures pictures(fills ? NxFittedPictures::Fit::Fill : NxFittedPictures::Fit::Shrink);
    GalleryItem item;
    QTEST(pictures.fitted(&item, patterned(picture), {144, 81}).size(), "fitted");
}

void tst_NxFittedPictures::whatMovesIsMadeSmallerToo()
{
    NxFittedPictures pictures(NxFittedPictures::Fit::FillQuickly);
    GalleryItem item;
    QImage frame({480, 270}, QImage::Format_ARGB32); // As films of GIFs hand it out.
    frame.fill(Qt::transparent);
    for (int y = 0; y < frame.height(); ++y) {
        for (int x = 0; x < frame.width() / 2; ++x)
            frame.setPixelColor(x, y, Qt::red);
    }
    const QImage fitted = pictures.fitted(&item, frame, {144, 81});
    QCOMPARE(fitted.size(), QSize(144, 81));
    QCOMPARE(fitted.format(), QImage::Format_ARGB32_Premultiplied);
    QCOMPARE(fitted.pixelColor(10, 40), QColor(Qt::red));
    QCOMPARE(fitted.pixelColor(134, 40), QColor(Qt::transparent));
    QCOMPARE(pictures.fitted(&item, frame, {144, 81}).cacheKey(), fitted.cacheKey());
    QCOMPARE(pictures.madeCount(), 1);
}

void tst_NxFittedPictures::theAddressOfADeadMediaIsNoEntry()
{
    NxFittedPictures pictures(NxFittedPictures::Fit::Fill);
    const QImage large = patterned({640, 360});
    alignas(GalleryItem) unsigned char place[sizeof(GalleryItem)];
    auto *first = new (place) GalleryItem;
    (void)pictures.fitted(first, large, {144, 81});
    first->~GalleryItem();
    auto *second = new (place) GalleryItem;
    (void)pictures.fitted(second, large, {144, 81});
    QCOMPARE(pictures.madeCount(), 2);
    second->~GalleryItem();
}

void tst_NxFittedPictures::nothingComesOfNothing()
{
    NxFittedPictures pictures(NxFittedPictures::Fit::Fill);
    GalleryItem item;
    QVERIFY(pictures.fitted(&item, {}, {144, 81}).isNull());
    QVERIFY(pictures.fitted(&item, patterned({16, 9}), {0, 81}).isNull());
    QVERIFY(pictures.fitted(&item, patterned({16, 9}), {-1, -1}).isNull());
}

NX_TEST_MAIN_WIDGETS(tst_NxFittedPictures)
#include "tst_NxFittedPictures.moc"
