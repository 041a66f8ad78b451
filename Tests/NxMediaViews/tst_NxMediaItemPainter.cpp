// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaItemPainter.h>

#include "RowStand.h"

#include <NxVBLModel/INxExtraMedia.h>

#include <Support/NxTestMain.h>

#include <QFontMetrics>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace NXMEDIALIBRARY;

namespace {

struct TileReleaser
{
    void operator()(INxExtraMedia *tile) const { INxExtraMedia::releaseExtraMedia(tile); }
};
using Tile = std::unique_ptr<INxExtraMedia, TileReleaser>;

Tile importTile()
{
    Tile tile(INxExtraMedia::createExtraMedia(NXVBLMODEL::mtImportTile));
    tile->setTitle(QStringLiteral("Import Media"));
    return tile;
}

} // namespace

class tst_NxMediaItemPainter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void eachModeHasItsSize();
    void theListIsAsWideAsItIsTold();
    void aFirstColumnLeavesTheSizeOfRowsAlone();
    void aFirstColumnHoldsWhatIsDrawn_data();
    void aFirstColumnHoldsWhatIsDrawn();
    void theFrameStaysAsWideAsTheRow_data();
    void theFrameStaysAsWideAsTheRow();
    void theMouseFollowsTheFirstColumn();
    void withoutAFirstColumnTheWholeRowIsUsed();
    void largerFontsMakeRoomForThemselves();
    void childrenLieWhereTheyAreDrawn_data();
    void childrenLieWhereTheyAreDrawn();
    void theMouseFollowsTheDirection();
    void tilesHaveNoAreas();
    void onlyItemsThatAreThereCanBeAdded_data();
    void onlyItemsThatAreThereCanBeAdded();
    void theButtonLiesOverTheCover();
    void theButtonActsOnTheHoveredRowAlone();
    void coverAndNameCompleteNothing();
    void theNameIsEditedInItsPlace();
    void anotherPainterDoesNotChangeThisOnesRows();
};

void tst_NxMediaItemPainter::eachModeHasItsSize()
{
    const RowStand stand;
    QVector<QSize> sizes;
    for (const auto mode : {vmList, vmSmallThumbnail, vmMiddleThumbnail, vmLargeThumbnail}) {
        stand.painter->setViewMode(mode);
        sizes.append(stand.delegate.sizeHint(stand.option(), stand.index()));
    }
    QCOMPARE(sizes, (QVector<QSize>{{600, 35}, {108, 90}, {156, 117}, {236, 162}}));
}

void tst_NxMediaItemPainter::theListIsAsWideAsItIsTold()
{
    const RowStand stand;
    stand.painter->setViewMode(vmList);
    stand.painter->setListWidth(310);
    QCOMPARE(stand.painter->size(), QSize(310, 35));
    stand.painter->setListWidth(-4);
    QCOMPARE(stand.painter->size(), QSize(0, 35));
    stand.painter->setViewMode(vmSmallThumbnail);
    stand.painter->setListWidth(400);
    QCOMPARE(stand.painter->size(), QSize(108, 90));
}

void tst_NxMediaItemPainter::aFirstColumnLeavesTheSizeOfRowsAlone()
{
    const RowStand stand;
    stand.painter->setViewMode(vmList);
    stand.painter->setListNameWidth(250);
    QCOMPARE(stand.painter->size(), QSize(600, 35));
    stand.painter->setViewMode(vmSmallThumbnail);
    QCOMPARE(stand.painter->size(), QSize(108, 90));
    QCOMPARE(stand.painter->childRect(NxMediaItemPainter::ccName), QRect(7, 66, 94, 20));
}

void tst_NxMediaItemPainter::aFirstColumnHoldsWhatIsDrawn_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("beside");
    QTest::newRow("from the left") << Qt::LeftToRight << QRect(250, 0, 350, 35);
    QTest::newRow("from the right") << Qt::RightToLeft << QRect(0, 0, 350, 35);
}

void tst_NxMediaItemPainter::aFirstColumnHoldsWhatIsDrawn()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QRect, beside);
    RowStand stand;
    GalleryItem item(NXVBLMODEL::mtVideoAudio, QStringLiteral("A name of a clip that is too long"));
    item.used = 3;
    item.info.frames = 250;
    item.licence = NXVBLMODEL::lsPremium;
    stand.show(&item);
    stand.direction = direction;
    stand.painter->setViewMode(vmList);
    stand.painter->setProxyTest([](const INxAbstractMediaItem *) { return true; });
    stand.painter->setProgress(&item, 1, 2);
    const QColor ground = stand.colour(NxSkinColor::Background_Panel);
    const auto inkBeside = [&] {
        return beside.width() * beside.height() - pixelsOf(stand.painted(), beside, ground);
    };
    QVERIFY(inkBeside() > 0);
    stand.painter->setListNameWidth(250);
    QCOMPARE(inkBeside(), 0);
    const QImage picture = stand.painted();
    const NxMediaItemLayout layout =
        NxMediaItemLayout::of(vmList, stand.painter->size(), 20, direction, 250);
    QVERIFY(pixelsNear(picture, layout.proxyMark, stand.colour(NxSkinColor::Accent)) > 0);
    QVERIFY(pixelsNear(picture, layout.licenceMark, stand.colour(NxSkinColor::Licence_Premium))
            > 0);
    QVERIFY(pixelsNear(picture, layout.name, stand.colour(NxSkinColor::Text_Icon_Primary)) > 0);
}

void tst_NxMediaItemPainter::theFrameStaysAsWideAsTheRow_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("hovered") << int(Hovered);
    QTest::newRow("selected") << int(Selected);
}

void tst_NxMediaItemPainter::theFrameStaysAsWideAsTheRow()
{
    QFETCH(int, state);
    RowStand stand;
    GalleryItem item;
    stand.show(&item);
    stand.painter->setViewMode(vmList);
    stand.painter->setListNameWidth(250);
    const QRect end(560, 4, 30, 26);
    const QImage picture = stand.painted(QStyle::State(state));
    const QColor ground = stand.colour(state == int(Hovered) ? NxSkinColor::State_Hover
                                                             : NxSkinColor::State_Selected);
    QCOMPARE(pixelsOf(picture, end, ground), end.width() * end.height());
}

void tst_NxMediaItemPainter::theMouseFollowsTheFirstColumn()
{
    RowStand stand;
    GalleryItem item;
    stand.show(&item);
    stand.painter->setViewMode(vmList);
    stand.painter->setListNameWidth(250);
    QCOMPARE(stand.painter->childRect(NxMediaItemPainter::ccAddButton), QRect(216, 7, 20, 20));
    QCOMPARE(stand.painter->nameEditorRect(stand.option(), stand.index()), QRect(64, 7, 96, 20));
    stand.painter->setListNameWidth(200);
    QCOMPARE(stand.painter->childRect(NxMediaItemPainter::ccAddButton), QRect(166, 7, 20, 20));
    stand.painter->setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(stand.painter->childRect(NxMediaItemPainter::ccAddButton), QRect(414, 7, 20, 20));
}

void tst_NxMediaItemPainter::withoutAFirstColumnTheWholeRowIsUsed()
{
    RowStand stand;
    GalleryItem item;
    stand.show(&item);
    stand.painter->setViewMode(vmList);
    const QImage before = stand.painted(Hovered);
    stand.painter->setListNameWidth(250);
    QVERIFY(differenceOf(stand.painted(Hovered), before) > 0);
    stand.painter->setListNameWidth(-3);
    QCOMPARE(differenceOf(stand.painted(Hovered), before), 0);
    QCOMPARE(stand.painter->childRect(NxMediaItemPainter::ccAddButton),
             stand.layout(vmList).addButton);
}

void tst_NxMediaItemPainter::largerFontsMakeRoomForThemselves()
{
    RowStand stand;
    stand.painter->setViewMode(vmMiddleThumbnail);
    stand.font.setPixelSize(40);
    stand.painter->setNameFont(stand.font);
    const int grown = QFontMetrics(stand.font).height() + 4 - 20;
    QVERIFY(grown > 0);
    QCOMPARE(stand.painter->size(), QSize(156, 117 + grown));
}

void tst_NxMediaItemPainter::childrenLieWhereTheyAreDrawn_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("list") << int(vmList);
    QTest::newRow("small") << int(vmSmallThumbnail);
    QTest::newRow("middle") << int(vmMiddleThumbnail);
    QTest::newRow("large") << int(vmLargeThumbnail);
}

void tst_NxMediaItemPainter::childrenLieWhereTheyAreDrawn()
{
    QFETCH(int, mode);
    RowStand stand;
    GalleryItem item;
    stand.show(&item);
    stand.painter->setViewMode(NxMediaItemViewMode(mode));
    stand.painter->changeItemChildrenRect(stand.index());
    const NxMediaItemLayout layout = stand.layout(NxMediaItemViewMode(mode));
    QCOMPARE(stand.painter->childIds(), (QList<int>{0, 1, 2}));
    QCOMPARE(stand.painter->childRect(NxMediaItemPainter::ccCover), layout.cover);
    QCOMPARE(stand.painter->childRect(NxMediaItemPainter::ccName), layout.name);
    QCOMPARE(stand.painter->childRect(NxMediaItemPainter::ccAddButton), layout.addButton);
}

void tst_NxMediaItemPainter::theMouseFollowsTheDirection()
{
    const RowStand stand;
    stand.painter->setViewMode(vmLargeThumbnail);
    const QRect before = stand.painter->childRect(NxMediaItemPainter::ccAddButton);
    stand.painter->setLayoutDirection(Qt::RightToLeft);
    const QRect after = stand.painter->childRect(NxMediaItemPainter::ccAddButton);
    QCOMPARE(after.left(), stand.painter->size().width() - 1 - before.right());
    QCOMPARE(after.size(), before.size());
}

void tst_NxMediaItemPainter::tilesHaveNoAreas()
{
    RowStand stand;
    const Tile tile = importTile();
    stand.show(tile.get());
    stand.painter->changeItemChildrenRect(stand.index());
    for (const int child : stand.painter->childIds())
        QVERIFY(stand.painter->childRect(child).isNull());
    QVERIFY(stand.painter->nameEditorRect(stand.option(), stand.index()).isNull());
    QVERIFY(stand.painter->nameEditorRect(stand.option(), {}).isNull());
}

void tst_NxMediaItemPainter::onlyItemsThatAreThereCanBeAdded_data()
{
    QTest::addColumn<bool>("isUnavailable");
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("hasButton");
    QTest::newRow("a clip of which nothing is known") << false << QStringLiteral("/a.mov") << true;
    QTest::newRow("an unreadable clip") << true << QStringLiteral("/a.mov") << false;
    QTest::newRow("a clip without a file") << false << QString() << false;
}

void tst_NxMediaItemPainter::onlyItemsThatAreThereCanBeAdded()
{
    QFETCH(bool, isUnavailable);
    QFETCH(QString, path);
    QFETCH(bool, hasButton);
    RowStand stand;
    GalleryItem item;
    item.unavailable = isUnavailable;
    item.path = path;
    stand.show(&item);
    stand.painter->changeItemChildrenRect(stand.index());
    QCOMPARE(!stand.painter->childRect(NxMediaItemPainter::ccAddButton).isNull(), hasButton);
    GalleryFolder folder(QStringLiteral("Folder"), {});
    stand.show(&folder);
    stand.painter->changeItemChildrenRect(stand.index());
    QVERIFY(stand.painter->childRect(NxMediaItemPainter::ccAddButton).isNull());
    QVERIFY(!stand.painter->childRect(NxMediaItemPainter::ccName).isNull());
}

void tst_NxMediaItemPainter::theButtonLiesOverTheCover()
{
    RowStand stand;
    GalleryItem item;
    stand.show(&item);
    stand.painter->setViewMode(vmSmallThumbnail);
    const NxMediaItemLayout layout = stand.layout(vmSmallThumbnail);
    stand.painter->updateMouseEventInItem(layout.addButton.center(), mmeMove, stand.index());
    QCOMPARE(stand.painter->mouseInChild(), int(NxMediaItemPainter::ccAddButton));
    stand.painter->updateMouseEventInItem(layout.kindMark.center(), mmeMove, stand.index());
    QCOMPARE(stand.painter->mouseInChild(), int(NxMediaItemPainter::ccCover));
    stand.painter->updateMouseEventInItem(layout.name.center(), mmeMove, stand.index());
    QCOMPARE(stand.painter->mouseInChild(), int(NxMediaItemPainter::ccName));
    stand.painter->updateMouseEventInItem({1, 1}, mmeMove, stand.index());
    QCOMPARE(stand.painter->mouseInChild(), -1);
}

void tst_NxMediaItemPainter::theButtonActsOnTheHoveredRowAlone()
{
    RowStand stand;
    GalleryItem item;
    item.resource = true;
    stand.show(&item);
    const QPoint button = stand.layout(stand.painter->viewMode()).addButton.center();
    QSignalSpy events(&stand.delegate, &NxMediaItemDelegate::sigMediaItemEvent);
    const auto send = [&](QEvent::Type type, Qt::MouseButton which) {
        QMouseEvent event(type, button, which, which, Qt::NoModifier);
        stand.delegate.editorEvent(&event, &stand.model, stand.option(), stand.index());
    };
    (void)stand.painted(QStyle::State_Enabled | QStyle::State_MouseOver);
    send(QEvent::MouseButtonPress, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, Qt::LeftButton);
    QCOMPARE(events.size(), 2);
    QCOMPARE(events.at(0).at(0).toInt(), int(mueNone));
    QCOMPARE(events.at(1).at(0).toInt(), int(mueHoveredOnly));

    events.clear();
    (void)stand.painted(QStyle::State_Enabled);
    send(QEvent::MouseButtonPress, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, Qt::LeftButton);
    QCOMPARE(events.size(), 1);
    QCOMPARE(events.at(0).at(0).toInt(), int(mueNone));

    send(QEvent::MouseButtonPress, Qt::RightButton);
    send(QEvent::MouseButtonRelease, Qt::RightButton);
    QCOMPARE(stand.painter->useEvent(), int(mueNone));
}

void tst_NxMediaItemPainter::coverAndNameCompleteNothing()
{
    RowStand stand;
    GalleryItem item;
    stand.show(&item);
    const NxMediaItemLayout layout = stand.layout(stand.painter->viewMode());
    for (const QPoint place : {layout.kindMark.center(), layout.name.center()}) {
        stand.painter->updateMouseEventInItem(place, mmeLeftPress, stand.index());
        stand.painter->updateMouseEventInItem(place, mmeLeftRelease, stand.index());
        QCOMPARE(stand.painter->useEvent(), int(mueNone));
    }
}

void tst_NxMediaItemPainter::theNameIsEditedInItsPlace()
{
    RowStand stand;
    GalleryItem item;
    stand.show(&item);
    stand.painter->setViewMode(vmMiddleThumbnail);
    QStyleOptionViewItem option = stand.option();
    option.rect.moveTo(200, 100);
    QCOMPARE(stand.painter->nameEditorRect(option, stand.index()), QRect(207, 193, 142, 20));
    option.rect = {200, 100, 40, 20};
    QVERIFY(stand.painter->nameEditorRect(option, stand.index()).isNull());
}

void tst_NxMediaItemPainter::anotherPainterDoesNotChangeThisOnesRows()
{
    RowStand stand;
    GalleryItem item;
    stand.show(&item);
    stand.painter->setViewMode(vmLargeThumbnail);
    NxMediaItemPainter other;
    other.setListWidth(600);
    other.setViewMode(vmList);
    stand.painter->setListWidth(500);
    QCOMPARE(stand.painter->size(), QSize(236, 162));
    QCOMPARE(stand.painter->childRect(NxMediaItemPainter::ccCover), QRect(6, 6, 224, 126));
    QCOMPARE(other.childRect(NxMediaItemPainter::ccCover).size(), QSize(48, 27));
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaItemPainter)
#include "tst_NxMediaItemPainter.moc"
