// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaColumnPainter_p.h>

#include "RowStand.h"

#include <NxMediaViews/NxMediaColumns.h>

#include <Brevano/FakeLibrary.h>
#include <Support/NxTestMain.h>

#include <QTest>

using namespace NXVBLMODEL;
using Cell = NxMediaColumnPainter::Cell;

namespace {

constexpr int RowHeight = 35;
constexpr int CellMargin = 8;
constexpr int UsedColumn = 1;
constexpr int TypeColumn = 2;
constexpr int SoundColumn = 8;
constexpr int SimilarColumn = 4; // Of resources.

QColor skinColour(NxSkinColor key)
{
    return NxSkinStyle::instance()->GetColor(key);
}

/// One row and what is painted beside its name.
struct ColumnStand
{
    ColumnStand() : folder(QStringLiteral("Project Media"), fkProject)
    {
        font.setPixelSize(13);
        media = folder.addItem(QStringLiteral("/f/a.mp4"));
        media->used = 3;
        media->info.rate = {30000, 1001};
        media->info.frames = 1000;
        media->info.video.frameSize = QSize(1920, 1080);
        media->in = 30;
        media->out = 50;
        media->sound = QStringLiteral("48000 Hz, 2 ch");
        media->created = QDateTime(QDate(2026, 7, 1), QTime(9, 8, 7));
        media->category = QStringLiteral("Blurs");
        media->favourite = true;
    }

    /// All columns but the first, side by side as wide as they are at first.
    [[nodiscard]] QVector<Cell> cells() const
    {
        QVector<Cell> side;
        int x = 20;
        for (int column = 1; column < NxMediaColumns::count(category); ++column) {
            const int width = NxMediaColumns::defaultWidth(category, column);
            side.append({column, {x, 10, width, RowHeight}});
            x += width;
        }
        return side;
    }
    [[nodiscard]] QImage painted(const QVector<Cell> &cells) const { return painted(cells, media); }
    [[nodiscard]] QImage painted(const QVector<Cell> &cells, const INxAbstractMedia *shown) const
    {
        QImage picture(QSize(1000, 100) * ratio, QImage::Format_RGB32);
        picture.setDevicePixelRatio(ratio);
        picture.fill(skinColour(NxSkinColor::Background_Panel));
        QPainter canvas(&picture);
        QStyleOptionViewItem option;
        option.rect = {0, 0, 1000, 100};
        option.font = font;
        option.direction = direction;
        painter.draw(&canvas, option, shown, category, cells, state);
        return picture;
    }

    FakeFolder folder;
    FakeItem *media; // The folder's.
    const NxMediaColumnPainter painter;
    NxMediaCategoryType category = mctMedia;
    NxMediaItemState state = misNormal;
    int ratio = 1; ///< Pixels of the screen for one.
    Qt::LayoutDirection direction = Qt::LeftToRight;
    QFont font{QStringLiteral("DejaVu Sans")};
};

/// What is not ground, in as small a rectangle as holds it; null when there is nothing.
QRect inkIn(const QImage &picture, const QRect &rect)
{
    const QColor ground = skinColour(NxSkinColor::Background_Panel);
    QRect ink;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            if (picture.pixelColor(x, y) != ground)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

QRect inkOf(const QImage &picture)
{
    return inkIn(picture, picture.rect());
}

QRect roomOf(const Cell &cell)
{
    return cell.rect.adjusted(CellMargin, 0, -CellMargin, 0);
}

} // namespace

class tst_NxMediaColumnPainter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }

    void eachTextStandsInItsCellAlone_data();
    void eachTextStandsInItsCellAlone();
    void manyCellsAreThoseOfOneEach();
    void theNameIsLeftToItsOwnPainter();
    void whatIsNotKnownLeavesItsCellEmpty();
    void aColumnOfButtonsHasNoText();
    void numbersStandAtTheEnd_data();
    void numbersStandAtTheEnd();
    void crispScreensHaveTheSameCells();
    void longTextsEndInAnEllipsis_data();
    void longTextsEndInAnEllipsis();
    void noCellIsTooSmall_data();
    void noCellIsTooSmall();
    void textsWearTheSkinsColour_data();
    void textsWearTheSkinsColour();
    void textsAreThoseOfNow();
    void whatIsNoMediaItemHasNoCells();
    void withoutAPainterNothingHappens();
};

void tst_NxMediaColumnPainter::eachTextStandsInItsCellAlone_data()
{
    QTest::addColumn<bool>("isLight");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<NxMediaCategoryType>("category");
    QTest::newRow("dark") << false << Qt::LeftToRight << mctMedia;
    QTest::newRow("light") << true << Qt::LeftToRight << mctMedia;
    QTest::newRow("dark, from the right") << false << Qt::RightToLeft << mctMedia;
    QTest::newRow("light, from the right") << true << Qt::RightToLeft << mctMedia;
    QTest::newRow("resources") << false << Qt::LeftToRight << mctEffect;
    QTest::newRow("resources, from the right") << true << Qt::RightToLeft << mctEffect;
}

void tst_NxMediaColumnPainter::eachTextStandsInItsCellAlone()
{
    QFETCH(bool, isLight);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(NxMediaCategoryType, category);
    NxSkinStyle::instance()->setSkin(isLight ? NxSkin::Light : NxSkin::Dark);
    ColumnStand stand;
    stand.direction = direction;
    stand.category = category;
    int texts = 0;
    for (const Cell &cell : stand.cells()) {
        const QRect ink = inkOf(stand.painted({cell}));
        const bool hasText = !NxMediaColumns::text(*stand.media, category, cell.column).isEmpty();
        QCOMPARE(!ink.isNull(), hasText);
        QVERIFY2(ink.isNull() || roomOf(cell).contains(ink),
                 qPrintable(QStringLiteral("column %1").arg(cell.column)));
        texts += hasText ? 1 : 0;
    }
    QCOMPARE(texts, category == mctMedia ? 9 : 3);
}

void tst_NxMediaColumnPainter::manyCellsAreThoseOfOneEach()
{
    const ColumnStand stand;
    const QImage all = stand.painted(stand.cells());
    for (const Cell &cell : stand.cells())
        QCOMPARE(all.copy(cell.rect), stand.painted({cell}).copy(cell.rect));
}

void tst_NxMediaColumnPainter::theNameIsLeftToItsOwnPainter()
{
    const ColumnStand stand;
    QVERIFY(inkOf(stand.painted({{0, {20, 10, 260, RowHeight}}})).isNull());
}

void tst_NxMediaColumnPainter::whatIsNotKnownLeavesItsCellEmpty()
{
    ColumnStand stand;
    const FakeItem *blank = stand.folder.addItem(QStringLiteral("/f/b.mp4"));
    for (const Cell &cell : stand.cells()) {
        const bool isKnown = cell.column == UsedColumn || cell.column == TypeColumn;
        QCOMPARE(!inkOf(stand.painted({cell}, blank)).isNull(), isKnown);
    }
    QVERIFY(inkOf(stand.painted({{17, {20, 10, 260, RowHeight}}})).isNull());
}

void tst_NxMediaColumnPainter::aColumnOfButtonsHasNoText()
{
    ColumnStand stand;
    stand.category = mctEffect;
    QVERIFY(inkOf(stand.painted({{SimilarColumn, {20, 10, 260, RowHeight}}})).isNull());
}

void tst_NxMediaColumnPainter::numbersStandAtTheEnd_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("isAtTheRight");
    QTest::newRow("number") << UsedColumn << Qt::LeftToRight << true;
    QTest::newRow("text") << TypeColumn << Qt::LeftToRight << false;
    QTest::newRow("number, from the right") << UsedColumn << Qt::RightToLeft << false;
    QTest::newRow("text, from the right") << TypeColumn << Qt::RightToLeft << true;
}

void tst_NxMediaColumnPainter::numbersStandAtTheEnd()
{
    QFETCH(int, column);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(bool, isAtTheRight);
    constexpr int bearing = 3; // px, beside the ink of a letter.
    ColumnStand stand;
    stand.direction = direction;
    const Cell cell{column, {100, 10, 200, RowHeight}};
    const QRect ink = inkOf(stand.painted({cell}));
    QVERIFY(ink.width() < 100);
    if (isAtTheRight)
        QVERIFY(roomOf(cell).right() - ink.right() <= bearing);
    else
        QVERIFY(ink.left() - roomOf(cell).left() <= bearing);
    const int above = ink.top() - cell.rect.top();
    const int below = cell.rect.bottom() - ink.bottom();
    QVERIFY(qAbs(above - below) <= bearing);
}

void tst_NxMediaColumnPainter::crispScreensHaveTheSameCells()
{
    ColumnStand stand;
    stand.ratio = 2;
    for (const Cell &cell : stand.cells()) {
        const QRect ink = inkOf(stand.painted({cell}));
        const QRect room = roomOf(cell);
        QVERIFY(!ink.isNull());
        QVERIFY(QRect(room.topLeft() * 2, room.size() * 2).contains(ink));
    }
}

void tst_NxMediaColumnPainter::longTextsEndInAnEllipsis_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("from the left") << Qt::LeftToRight;
    QTest::newRow("from the right") << Qt::RightToLeft;
}

void tst_NxMediaColumnPainter::longTextsEndInAnEllipsis()
{
    QFETCH(Qt::LayoutDirection, direction);
    ColumnStand stand;
    stand.direction = direction;
    stand.media->sound = QString(60, QLatin1Char('H'));
    const Cell cell{SoundColumn, {100, 10, 130, RowHeight}};
    const QRect ink = inkOf(stand.painted({cell}));
    QVERIFY(roomOf(cell).contains(ink));
    QVERIFY(ink.width() > roomOf(cell).width() / 2);
    // Dots stand low, and letters do not.
    QRect end = ink;
    end.setLeft(ink.right() - 4);
    QVERIFY(inkIn(stand.painted({cell}), end).top() > ink.center().y());
}

void tst_NxMediaColumnPainter::noCellIsTooSmall_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("pixelSize");
    QTest::newRow("from the left") << Qt::LeftToRight << 13;
    QTest::newRow("from the right") << Qt::RightToLeft << 13;
    QTest::newRow("large letters") << Qt::LeftToRight << 40;
}

void tst_NxMediaColumnPainter::noCellIsTooSmall()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, pixelSize);
    ColumnStand stand;
    stand.direction = direction;
    stand.font.setPixelSize(pixelSize);
    for (int width = -4; width < 60; ++width) {
        for (const int height : {-2, 0, 1, 6, RowHeight}) {
            const QRect rect(100, 40, width, height);
            const QRect ink = inkOf(stand.painted({{SoundColumn, rect}, {UsedColumn, rect}}));
            QVERIFY2(ink.isNull() || rect.contains(ink),
                     qPrintable(QStringLiteral("%1 x %2").arg(width).arg(height)));
        }
    }
}

void tst_NxMediaColumnPainter::textsWearTheSkinsColour_data()
{
    QTest::addColumn<bool>("isLight");
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("colour");
    const auto row = [](const char *name, bool isLight, NxMediaItemState state,
                        NxSkinColor colour) {
        QTest::newRow(name) << isLight << int(state) << int(colour);
    };
    row("dark", false, misNormal, NxSkinColor::Text_Icon_Secondary);
    row("light", true, misNormal, NxSkinColor::Text_Icon_Secondary);
    row("dark, selected", false, misSelected, NxSkinColor::Text_Icon_Secondary);
    row("light, hovered", true, misHovered, NxSkinColor::Text_Icon_Secondary);
    row("dark, disabled", false, misDisabled, NxSkinColor::Text_Icon_Disabled);
    row("light, disabled", true, misDisabled, NxSkinColor::Text_Icon_Disabled);
}

void tst_NxMediaColumnPainter::textsWearTheSkinsColour()
{
    QFETCH(bool, isLight);
    QFETCH(int, state);
    QFETCH(int, colour);
    ColumnStand stand;
    stand.font.setPixelSize(40); // So that strokes are more than their soft edges.
    stand.state = NxMediaItemState(state);
    const QVector<Cell> cells{{UsedColumn, {100, 10, 200, 80}}};
    (void)stand.painted(cells); // In the other skin, whose texts must not be kept.
    NxSkinStyle::instance()->setSkin(isLight ? NxSkin::Light : NxSkin::Dark);
    const QImage picture = stand.painted(cells);
    for (const NxSkinColor key :
         {NxSkinColor::Text_Icon_Secondary, NxSkinColor::Text_Icon_Disabled}) {
        const int pixels = pixelsOf(picture, picture.rect(), skinColour(key));
        QCOMPARE(pixels > 0, int(key) == colour);
    }
}

void tst_NxMediaColumnPainter::textsAreThoseOfNow()
{
    ColumnStand stand;
    const QImage before = stand.painted(stand.cells());
    stand.media->used = 17;
    const QImage after = stand.painted(stand.cells());
    QVERIFY(before != after);
    stand.media->used = 3;
    QCOMPARE(stand.painted(stand.cells()), before);
    stand.media->created = stand.media->created.addDays(1);
    QVERIFY(stand.painted(stand.cells()) != before);
}

void tst_NxMediaColumnPainter::whatIsNoMediaItemHasNoCells()
{
    const ColumnStand stand;
    const GalleryHeader header(QStringLiteral("Video"), 3);
    QVERIFY(inkOf(stand.painted(stand.cells(), &header)).isNull());
    QVERIFY(inkOf(stand.painted(stand.cells(), &stand.folder)).isNull());
    QVERIFY(inkOf(stand.painted(stand.cells(), nullptr)).isNull());
}

void tst_NxMediaColumnPainter::withoutAPainterNothingHappens()
{
    const ColumnStand stand;
    const QStyleOptionViewItem option;
    QPainter idle;
    stand.painter.draw(nullptr, option, stand.media, mctMedia, stand.cells(), misNormal);
    stand.painter.draw(&idle, option, stand.media, mctMedia, stand.cells(), misNormal);
    QVERIFY(!idle.isActive());
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaColumnPainter)
#include "tst_NxMediaColumnPainter.moc"
