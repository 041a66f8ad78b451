// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaItemPainter.h>

#include "RowStand.h"

#include <NxVBLModel/INxExtraMedia.h>

#include <Support/NxTestMain.h>

#include <QTest>

using namespace NXMEDIALIBRARY;

class tst_NxMediaItemPainter_texts : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void longNamesEndInAnEllipsis();
    void namesAreTextWhateverStandsInThem_data();
    void namesAreTextWhateverStandsInThem();
    void theTileAsksToImport();
    void mirroredRowsShowTheirMarksOnTheOtherSide();
    void noRowIsTooSmall();
    void withoutAPainterOrAMediaNothingIsDrawn();
    void aSkinThatChangesWhilePaintingIsWornAtOnce();
    void opacityClipAndHintsStayAsTheyWere();

    void cleanup() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }
};

void tst_NxMediaItemPainter_texts::longNamesEndInAnEllipsis()
{
    RowStand stand;
    GalleryItem item;
    stand.show(&item);
    stand.painter->setViewMode(vmMiddleThumbnail);
    const QRect name = stand.layout(vmMiddleThumbnail).name;
    const auto nameOf = [&](const QString &title) {
        item.title = title;
        return stand.painted().copy(name);
    };
    const QString longName = QString(5000, QLatin1Char('m'));
    const QString shown =
        QFontMetrics(stand.font).elidedText(longName, Qt::ElideRight, name.width());
    QVERIFY(shown.endsWith(QChar(0x2026)));
    QCOMPARE(nameOf(longName), nameOf(shown));
    QVERIFY(nameOf(QStringLiteral("mmm")) != nameOf(shown));
    item.title = longName;
    const QImage row = stand.painted();
    const QColor ground = RowStand::colour(NxSkinColor::Background_Panel);
    const QRect margin(name.right() + 1, name.top(), row.width() - name.right() - 1, name.height());
    QCOMPARE(pixelsOf(row, margin, ground), margin.width() * margin.height());
}

void tst_NxMediaItemPainter_texts::namesAreTextWhateverStandsInThem_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown"); // What looks the same.
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("markup") << QStringLiteral("<b>bold</b>") << QStringLiteral("<b>bold</b>");
    QTest::newRow("ampersand") << QStringLiteral("Tom & Jerry") << QStringLiteral("Tom & Jerry");
    QTest::newRow("lines") << QStringLiteral("one\ntwo") << QStringLiteral("one two");
    QTest::newRow("emoji")
        << QStringLiteral("\U0001F3AC \U0001F468\u200D\U0001F469\u200D\U0001F467")
        << QStringLiteral("\U0001F3AC \U0001F468\u200D\U0001F469\u200D\U0001F467");
    QTest::newRow("half a character") << QString(QChar(0xd83c)) << QString(QChar(0xd83c));
}

void tst_NxMediaItemPainter_texts::namesAreTextWhateverStandsInThem()
{
    QFETCH(QString, name);
    QFETCH(QString, shown);
    RowStand stand;
    GalleryItem item(NXVBLMODEL::mtVideo, name);
    stand.show(&item);
    stand.painter->setViewMode(vmLargeThumbnail);
    const QRect place = stand.layout(vmLargeThumbnail).name;
    const QImage drawn = stand.painted().copy(place);

    QImage plain(place.size(), QImage::Format_RGB32);
    plain.fill(RowStand::colour(NxSkinColor::Background_Panel));
    {
        QPainter canvas(&plain);
        canvas.setFont(stand.font);
        canvas.setPen(RowStand::colour(NxSkinColor::Text_Icon_Primary));
        canvas.drawText(QRect({0, 0}, place.size()), Qt::AlignVCenter | Qt::TextSingleLine, shown);
    }
    constexpr int rounding = 8;
    QVERIFY(differenceOf(drawn, plain) <= rounding);
}

void tst_NxMediaItemPainter_texts::theTileAsksToImport()
{
    RowStand stand;
    INxExtraMedia *tile = INxExtraMedia::createExtraMedia(NXVBLMODEL::mtImportTile);
    tile->setTitle(QStringLiteral("Import Media"));
    stand.show(tile);
    stand.painter->setViewMode(vmLargeThumbnail);
    const NxMediaItemLayout layout = stand.layout(vmLargeThumbnail);
    const QImage row = stand.painted();
    const QColor ink = RowStand::colour(NxSkinColor::Text_Icon_Secondary);
    QVERIFY(pixelsOf(row, layout.missingMark, ink) > 50);
    const int top = pixelsOf(row, {layout.cover.topLeft(), QSize(layout.cover.width(), 1)}, ink);
    QVERIFY(top > layout.cover.width() / 3 && top < layout.cover.width() * 9 / 10);
    QVERIFY(pixelsNear(row, layout.name, RowStand::colour(NxSkinColor::Text_Icon_Primary)) > 20);
    QVERIFY(stand.engine.asked.isEmpty());
    QVERIFY(
        pixelsOf(stand.painted(Hovered), layout.missingMark, RowStand::colour(NxSkinColor::Accent))
        > 50);
    stand.show(nullptr);
    INxExtraMedia::releaseExtraMedia(tile);
}

void tst_NxMediaItemPainter_texts::mirroredRowsShowTheirMarksOnTheOtherSide()
{
    RowStand stand;
    GalleryItem item(NXVBLMODEL::mtVideo, QStringLiteral("clip"));
    item.licence = NXVBLMODEL::lsPremium;
    item.info.frames = 100;
    stand.show(&item);
    stand.painter->setViewMode(vmLargeThumbnail);
    stand.direction = Qt::RightToLeft;
    const NxMediaItemLayout layout = stand.layout(vmLargeThumbnail);
    QVERIFY(layout.licenceMark.center().x() < layout.kindMark.center().x());
    const QImage row = stand.painted();
    QVERIFY(pixelsNear(row, layout.licenceMark, RowStand::colour(NxSkinColor::Licence_Premium))
            > 5);
    const QColor ink = RowStand::colour(NxSkinColor::Text_Icon_Primary);
    const QRect name = layout.name;
    QVERIFY(pixelsNear(row, name.adjusted(name.width() - 40, 0, 0, 0), ink) > 5);
    QCOMPARE(pixelsNear(row, name.adjusted(0, 0, -60, 0), ink), 0);
    const QColor badge = RowStand::colour(NxSkinColor::Badge_Text);
    const QRect duration = layout.duration;
    QVERIFY(pixelsNear(row, duration.adjusted(duration.width() - 70, 0, 0, 0), badge) > 5);
    QCOMPARE(pixelsNear(row, duration.adjusted(0, 0, -90, 0), badge), 0);
}

void tst_NxMediaItemPainter_texts::noRowIsTooSmall()
{
    RowStand stand;
    GalleryItem item(NXVBLMODEL::mtVideo, QStringLiteral("clip"));
    item.used = 1;
    item.info.frames = 100;
    stand.show(&item);
    stand.engine.covers = patternedCover;
    stand.painter->setProgress(&item, 1, 3);
    for (const auto mode : {vmList, vmSmallThumbnail, vmMiddleThumbnail, vmLargeThumbnail}) {
        stand.painter->setViewMode(mode);
        for (const QSize size : {QSize(0, 0), QSize(-3, 8), QSize(1, 1), QSize(9, 300),
                                 QSize(300, 4), QSize(70, 40)}) {
            for (const QStyle::State state :
                 {Hovered, Selected, QStyle::State(QStyle::State_None)}) {
                QStyleOptionViewItem option = stand.option(state);
                option.rect = QRect({3, 4}, size);
                QImage around(400, 400, QImage::Format_RGB32);
                around.fill(Qt::magenta);
                QPainter canvas(&around);
                canvas.setClipping(false);
                stand.delegate.paint(&canvas, option, stand.index());
                canvas.end();
                const QRect touched = option.rect.isEmpty()
                                          ? QRect()
                                          : option.rect.adjusted(-1, -1, 1, 1) & around.rect();
                const int outside =
                    around.width() * around.height() - touched.width() * touched.height();
                QCOMPARE(pixelsOf(around, around.rect(), Qt::magenta)
                             - pixelsOf(around, touched, Qt::magenta),
                         outside);
            }
        }
    }
}

void tst_NxMediaItemPainter_texts::withoutAPainterOrAMediaNothingIsDrawn()
{
    RowStand stand;
    GalleryItem item;
    stand.show(&item);
    stand.painter->draw(nullptr, stand.option(), stand.index(), misNormal);
    stand.painter->drawItemContent(nullptr, stand.option(), stand.index(), misNormal);
    QImage picture(300, 200, QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    QPainter canvas(&picture);
    stand.painter->draw(&canvas, stand.option(), {}, misSelected);
    stand.painter->drawItemContent(&canvas, stand.option(), {}, misSelected);
    canvas.end();
    stand.painter->draw(&canvas, stand.option(), stand.index(), misSelected);
    QCOMPARE(pixelsOf(picture, picture.rect(), Qt::magenta), 300 * 200);
    QVERIFY(stand.engine.asked.isEmpty());
}

void tst_NxMediaItemPainter_texts::aSkinThatChangesWhilePaintingIsWornAtOnce()
{
    RowStand stand;
    GalleryItem item(NXVBLMODEL::mtVideo, QStringLiteral("clip"));
    item.info.frames = 100;
    stand.show(&item);
    stand.engine.covers = [](INxAbstractMedia *, const QSize &size) {
        NxSkinStyle::instance()->setSkin(NxSkin::Light);
        return patterned(size);
    };
    const QRect name = stand.layout(stand.painter->viewMode()).name;
    const QImage row = stand.painted();
    const QColor ink = RowStand::colour(NxSkinColor::Text_Icon_Primary);
    QCOMPARE(NxSkinStyle::instance()->skin(), NxSkin::Light);
    QVERIFY(pixelsNear(row, name, ink) > 5);
    stand.engine.covers = patternedCover;
    const QImage again = stand.painted();
    QVERIFY(pixelsOf(again, again.rect(), RowStand::colour(NxSkinColor::Background_Panel)) > 100);
}

void tst_NxMediaItemPainter_texts::opacityClipAndHintsStayAsTheyWere()
{
    RowStand stand;
    GalleryItem item;
    stand.show(&item);
    stand.painter->setProgress(&item, 1, 2);
    QImage picture(300, 200, QImage::Format_RGB32);
    QPainter canvas(&picture);
    canvas.setClipRect(0, 0, 290, 190);
    const QTransform before = canvas.worldTransform();
    for (const QStyle::State state : {Hovered, Selected, QStyle::State(QStyle::State_None)})
        stand.delegate.paint(&canvas, stand.option(state), stand.index());
    QCOMPARE(canvas.opacity(), 1.0);
    QCOMPARE(canvas.worldTransform(), before);
    QVERIFY(canvas.hasClipping());
    QVERIFY(!canvas.testRenderHint(QPainter::Antialiasing));
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaItemPainter_texts)
#include "tst_NxMediaItemPainter_texts.moc"
