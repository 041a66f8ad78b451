// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxFolderItemPainter.h>

#include "RowStand.h"

#include <NxCore/NxStringUtils.h>
#include <NxMediaViews/NxMediaFolderTreeDelegate.h>

#include <Support/NxTestMain.h>

#include <QFontMetrics>
#include <QTest>
#include <QTreeView>

namespace {

constexpr QStyle::State Enabled = QStyle::State_Enabled;

/// One folder in a row of a tree.
struct FolderRow
{
    explicit FolderRow(const QString &name = QStringLiteral("Holiday"), int items = 3)

    {
        font.setPixelSize(12);
        QList<INxAbstractMedia *> listed;
        for (int i = 0; i < items; ++i) {
            media.push_back(std::make_unique<GalleryItem>());
            listed.append(media.back().get());
        }
        filled = std::make_unique<GalleryFolder>(name, listed);
        model.setFolders({filled.get()});
    }
    [[nodiscard]] QStyleOptionViewItem option(QStyle::State state = Enabled) const
    {
        QStyleOptionViewItem wanted;
        wanted.rect = rect;
        wanted.state = state;
        wanted.font = font;
        wanted.direction = direction;
        return wanted;
    }
    [[nodiscard]] QImage painted(NxMediaItemState state = misNormal) const
    {
        QImage picture(rect.right() + 20, rect.bottom() + 20, QImage::Format_RGB32);
        picture.fill(RowStand::colour(NxSkinColor::Background_Tree));
        QPainter canvas(&picture);
        painter.draw(&canvas, option(), model.index(0), state);
        return picture;
    }

    std::vector<std::unique_ptr<GalleryItem>> media;
    std::unique_ptr<GalleryFolder> filled;
    GalleryModel model;
    NxFolderItemPainter painter;
    QFont font{QStringLiteral("DejaVu Sans")};
    QRect rect{10, 20, 200, 32};
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

QRect boundsOf(const QImage &picture, const QRect &inside, const QColor &colour)
{
    QRect bounds;
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            if (pixelsNear(picture, {x, y, 1, 1}, colour) > 0)
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

} // namespace

class tst_NxFolderItemPainter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theNameStandsInTheMiddleOfTheRow();
    void indentsKeepTheirPlacesFree();
    void theCountIsThatOfTheMedia_data();
    void theCountIsThatOfTheMedia();
    void theCountGivesWayToTheName();
    void statesHaveTheirColours_data();
    void statesHaveTheirColours();
    void mirroredRowsBeginOnTheRight();
    void theNameIsEditedInItsPlace();
    void withoutAFolderNothingIsDrawn();
    void theDelegateMakesThePainter();
    void treesDrawTheirRows();

    void cleanup() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }
};

void tst_NxFolderItemPainter::theNameStandsInTheMiddleOfTheRow()
{
    const FolderRow row(QStringLiteral("Hxo"), 0);
    const QImage picture = row.painted();
    const QColor ink = RowStand::colour(NxSkinColor::Text_Icon_Primary);
    const QRect name = boundsOf(picture, row.rect.adjusted(25, 0, 0, 0), ink);
    // Beside the glyph of 16 px at 4 px; letters begin a little behind their place.
    QVERIFY(name.left() >= 10 + 4 + 16 + 5 && name.left() <= 10 + 4 + 16 + 5 + 3);
    const int capital = QFontMetrics(row.font).capHeight();
    QVERIFY(qAbs(name.height() - capital) <= 2);
    QVERIFY(qAbs(name.center().y() - row.rect.center().y()) <= 2);
    QCOMPARE(pixelsOf(picture, picture.rect(), RowStand::colour(NxSkinColor::Background_Tree))
                 - pixelsOf(picture, row.rect, RowStand::colour(NxSkinColor::Background_Tree)),
             picture.width() * picture.height() - row.rect.width() * row.rect.height());
}

void tst_NxFolderItemPainter::indentsKeepTheirPlacesFree()
{
    FolderRow row(QStringLiteral("Hx"), 7);
    const QColor ink = RowStand::colour(NxSkinColor::Text_Icon_Primary);
    const QColor faint = RowStand::colour(NxSkinColor::Text_Icon_Secondary);
    const QRect nameBefore = boundsOf(row.painted(), row.rect.adjusted(25, 0, -60, 0), ink);
    const QRect countBefore = boundsOf(row.painted(), row.rect.adjusted(140, 0, 0, 0), faint);
    const QRect glyphBefore = boundsOf(row.painted(), {10, 20, 20, 32}, faint);
    row.painter.setIndent(14, 6, 0, 11);
    const QRect nameAfter = boundsOf(row.painted(), row.rect.adjusted(41, 0, -60, 0), ink);
    const QRect countAfter = boundsOf(row.painted(), row.rect.adjusted(140, 0, 0, 0), faint);
    const QRect glyphAfter = boundsOf(row.painted(), {20, 20, 20, 32}, faint);
    QCOMPARE(glyphAfter, glyphBefore.translated(10, 0));
    QCOMPARE(nameAfter, nameBefore.translated(16, 0));
    QCOMPARE(countAfter, countBefore.translated(-11, 0));
}

void tst_NxFolderItemPainter::theCountIsThatOfTheMedia_data()
{
    QTest::addColumn<int>("items");
    QTest::newRow("none") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("many") << 1234;
}

void tst_NxFolderItemPainter::theCountIsThatOfTheMedia()
{
    QFETCH(int, items);
    const FolderRow row(QStringLiteral("x"), items);
    const QColor faint = RowStand::colour(NxSkinColor::Text_Icon_Secondary);
    const QRect count = boundsOf(row.painted(), row.rect.adjusted(60, 0, 0, 0), faint);
    if (items == 0) {
        QVERIFY(count.isNull());
        return;
    }
    QFont smaller = row.font;
    smaller.setPixelSize(10);
    const int width = NxStringUtils::calcTextLenght(smaller, QString::number(items));
    QVERIFY(qAbs(count.width() - width) <= 3);
    QVERIFY(row.rect.right() - count.right() >= 8 && row.rect.right() - count.right() <= 10);
}

void tst_NxFolderItemPainter::theCountGivesWayToTheName()
{
    FolderRow row(QString(80, QLatin1Char('m')), 5);
    const QColor faint = RowStand::colour(NxSkinColor::Text_Icon_Secondary);
    const QColor ink = RowStand::colour(NxSkinColor::Text_Icon_Primary);
    const auto hasCount = [&] {
        return !boundsOf(row.painted(), row.rect.adjusted(row.rect.width() - 18, 0, 0, 0), faint)
                    .isNull();
    };
    const QRect name = boundsOf(row.painted(), row.rect, ink);
    QVERIFY(name.right() < row.rect.right() - 16);
    QVERIFY(hasCount());
    row.rect.setWidth(70);
    const QRect narrow = boundsOf(row.painted(), row.rect, ink);
    QVERIFY(narrow.right() <= row.rect.right() - 8);
    QVERIFY(narrow.right() > row.rect.right() - 20);
    for (const int width : {0, 1, 5, 22, 30}) {
        row.rect.setWidth(width);
        const QImage picture = row.painted();
        const QColor ground = RowStand::colour(NxSkinColor::Background_Tree);
        const QRect beside(row.rect.right() + 1, 0, 15, picture.height());
        QCOMPARE(pixelsOf(picture, beside, ground), beside.width() * beside.height());
    }
}

void tst_NxFolderItemPainter::statesHaveTheirColours_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("ground");
    QTest::addColumn<int>("ink");
    const int plain = int(NxSkinColor::Background_Tree);
    const int primary = int(NxSkinColor::Text_Icon_Primary);
    const int selected = int(NxSkinColor::State_Selected);
    QTest::newRow("normal") << int(misNormal) << plain << primary;
    QTest::newRow("hovered") << int(misHovered) << int(NxSkinColor::State_Hover) << primary;
    QTest::newRow("selected") << int(misSelected) << selected << primary;
    QTest::newRow("both") << int(misSelectedHovered) << selected << primary;
    QTest::newRow("disabled") << int(misDisabled) << plain << int(NxSkinColor::Text_Icon_Disabled);
}

void tst_NxFolderItemPainter::statesHaveTheirColours()
{
    QFETCH(int, state);
    QFETCH(int, ground);
    QFETCH(int, ink);
    const FolderRow row(QStringLiteral("HHHH"), 0);
    for (const NxSkin skin : {NxSkin::Dark, NxSkin::Light}) {
        NxSkinStyle::instance()->setSkin(skin);
        const QImage picture = row.painted(NxMediaItemState(state));
        QCOMPARE(picture.pixelColor(row.rect.topLeft()), RowStand::colour(NxSkinColor(ground)));
        QCOMPARE(picture.pixelColor(row.rect.bottomRight()), RowStand::colour(NxSkinColor(ground)));
        QVERIFY(
            pixelsNear(picture, row.rect.adjusted(28, 0, 0, 0), RowStand::colour(NxSkinColor(ink)))
            > 20);
    }
}

void tst_NxFolderItemPainter::mirroredRowsBeginOnTheRight()
{
    FolderRow row(QStringLiteral("Hx"), 4);
    row.direction = Qt::RightToLeft;
    const QImage picture = row.painted();
    const QColor ink = RowStand::colour(NxSkinColor::Text_Icon_Primary);
    const QColor faint = RowStand::colour(NxSkinColor::Text_Icon_Secondary);
    QVERIFY(pixelsNear(picture, {row.rect.right() - 20, row.rect.top(), 16, 32}, faint) > 40);
    const QRect name = boundsOf(picture, row.rect, ink);
    QVERIFY(name.left() > row.rect.center().x());
    QVERIFY(!boundsOf(picture, {row.rect.left(), row.rect.top(), 20, 32}, faint).isNull());
}

void tst_NxFolderItemPainter::theNameIsEditedInItsPlace()
{
    FolderRow row;
    QCOMPARE(row.painter.nameEditorRect(row.option(), row.model.index(0)),
             QRect(QPoint(35, 20), QPoint(209, 51)));
    row.direction = Qt::RightToLeft;
    QCOMPARE(row.painter.nameEditorRect(row.option(), row.model.index(0)),
             QRect(QPoint(10, 20), QPoint(184, 51)));
    QVERIFY(row.painter.nameEditorRect(row.option(), {}).isNull());
}

void tst_NxFolderItemPainter::withoutAFolderNothingIsDrawn()
{
    const FolderRow row;
    row.painter.draw(nullptr, row.option(), row.model.index(0), misNormal);
    QImage picture(300, 100, QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    QPainter canvas(&picture);
    row.painter.draw(&canvas, row.option(), {}, misSelected);
    QCOMPARE(pixelsOf(picture, picture.rect(), Qt::magenta), 300 * 100);
}

void tst_NxFolderItemPainter::theDelegateMakesThePainter()
{
    NxMediaFolderTreeDelegate delegate;
    const FolderRow row;
    QCOMPARE(delegate.sizeHint(row.option(), row.model.index(0)).height(), 32);
    delegate.setItemSize({100, 48});
    QCOMPARE(delegate.sizeHint(row.option(), row.model.index(0)).height(), 48);
    delegate.setItemWidth(70);
    QCOMPARE(delegate.sizeHint(row.option(), row.model.index(0)).height(), 48);
    QCOMPARE(delegate.findChildren<NxFolderItemPainter *>().size(), 1);
}

void tst_NxFolderItemPainter::treesDrawTheirRows()
{
    FolderRow row;
    QTreeView tree;
    tree.setHeaderHidden(true);
    tree.setItemDelegate(new NxMediaFolderTreeDelegate(&tree));
    tree.setPalette(NxSkinStyle::instance()->palette());
    tree.setModel(&row.model);
    tree.setFont(row.font);
    tree.resize(240, 100);
    QCOMPARE(tree.visualRect(row.model.index(0)).height(), 32);
    const QImage picture = tree.viewport()->grab().toImage();
    const QRect place = tree.visualRect(row.model.index(0));
    QVERIFY(pixelsNear(picture, place, RowStand::colour(NxSkinColor::Text_Icon_Primary)) > 30);
    QVERIFY(pixelsNear(picture, {place.topLeft(), QSize(24, 32)},
                       RowStand::colour(NxSkinColor::Text_Icon_Secondary))
            > 40);
}

NX_TEST_MAIN_WIDGETS(tst_NxFolderItemPainter)
#include "tst_NxFolderItemPainter.moc"
