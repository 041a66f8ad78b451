// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/INxViewMoreSplitLinePainter.h>

#include <Support/NxTestMain.h>

#include <QFontMetrics>
#include <QStyleOptionViewItem>
#include <QTest>

#include "MediaRows.h"
#include "RowCanvas.h"
#include "ScriptedMedia.h"

using namespace NXVBLMODEL;

namespace {

constexpr QSize CanvasSize(460, 70);
constexpr QSize RowSize(400, 32);
constexpr QPoint Corner(37, 15);
constexpr int MiddleY = 30; // Of a row at the corner.

int textWidth()
{
    return QFontMetrics(rowFont()).horizontalAdvance(QStringLiteral("View More"));
}

int leftLineWidth(int rowWidth = RowSize.width())
{
    return (rowWidth - 8 - 48 - textWidth()) / 2;
}

/// What stands where in a row at the corner, from left to right.
QRect pillPlace()
{
    return {Corner.x() + leftLineWidth() + 3, Corner.y(), textWidth() + 48, RowSize.height()};
}
QRect arrowPlace()
{
    return {pillPlace().left() + 12, Corner.y() + 12, 8, 8};
}
QRect textPlace()
{
    return {pillPlace().left() + 27, Corner.y(), textWidth() + 20, RowSize.height()};
}

/// A "View More" row of 400 x 32 px on a white canvas.
struct Row
{
    explicit Row(int mediaType = mtViewMoreTile) : tile(NxMediaType(mediaType))
    {
        painter.setSize(RowSize);
    }

    void draw(QPainter *p, NxMediaItemState state = misNormal, const QPoint &corner = Corner) const
    {
        QStyleOptionViewItem option;
        option.font = rowFont();
        option.rect = QRect(corner, QSize(9, 9)); // The painter's size counts.
        painter.draw(p, option, rows.index(0), state);
    }
    QImage drawn(NxMediaItemState state = misNormal, const QPoint &corner = Corner,
                 qreal ratio = 1.0) const
    {
        const auto deed = [&](QPainter *p) {
            p->setFont(rowFont(40)); // Of the view, not of the row.
            draw(p, state, corner);
        };
        return drawnOn(CanvasSize, deed, ratio);
    }
    QImage hovered()
    {
        painter.setChildStatus(2, mcsHovered);
        return drawn(misHovered);
    }

    INxViewMoreSplitLinePainter painter;
    ScriptedPlain tile;
    const MediaRows rows{{&tile}};
};

/// The text alone on a ground of this colour.
QImage texted(const QColor &ground)
{
    return drawnOn(CanvasSize, [&](QPainter *painter) {
        painter->fillRect(QRect(QPoint(), CanvasSize), ground);
        painter->setPen(skinColor(NxSkinColor::Text_Icon_Primary));
        painter->drawText(textPlace(), Qt::AlignLeft | Qt::AlignVCenter,
                          QStringLiteral("View More"));
    });
}

const QColor White(Qt::white);

} // namespace

/// What a "View More" row looks like.
class tst_INxViewMoreSplitLinePainter_drawing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }
    void cleanup() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }

    void aLineStandsOnEitherSide_data()
    {
        QTest::addColumn<QPoint>("corner");
        QTest::addColumn<int>("width");
        QTest::newRow("in the corner") << QPoint(0, 0) << 400;
        QTest::newRow("elsewhere") << Corner << 400;
        QTest::newRow("odd width") << QPoint(20, 7) << 351;
    }
    void aLineStandsOnEitherSide()
    {
        QFETCH(QPoint, corner);
        QFETCH(int, width);
        Row row;
        row.painter.setSize(QSize(width, RowSize.height()));
        const QImage image = row.drawn(misNormal, corner);
        const int y = corner.y() + 15;
        const int left = leftLineWidth(width);
        const int right = corner.x() + left + 3 + 27 + textWidth() + 20 + 3;
        const QColor line = skinColor(NxSkinColor::Component_Divider_Primary);
        for (const int x : {corner.x(), corner.x() + left - 1, right, width - 1})
            QCOMPARE(image.pixelColor(x, y), line);
        for (const int x : {corner.x() + left, right - 1, width})
            QCOMPARE(image.pixelColor(x, y), White);
        const QRect leftPart(0, 0, corner.x() + left + 3, CanvasSize.height());
        QCOMPARE(inked(part(image, leftPart)), QRect(corner.x(), y, left, 1));
        const QRect rightPart(right, 0, CanvasSize.width() - right, CanvasSize.height());
        QCOMPARE(inked(part(image, rightPart)), QRect(0, y, width - right, 1));
    }

    void theArrowIsAsTheMouseHasIt_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("arrow");
        QTest::newRow("untouched")
            << int(mcsInitial) << int(misNormal) << QStringLiteral("down-normal");
        QTest::newRow("normal") << int(mcsNormal) << int(misHovered)
                                << QStringLiteral("down-normal");
        QTest::newRow("disabled") << int(mcsDisabled) << int(misHovered)
                                  << QStringLiteral("down-disabled");
        QTest::newRow("hovered, row not")
            << int(mcsHovered) << int(misNormal) << QStringLiteral("down-hover");
        QTest::newRow("pressed, row not hovered")
            << int(mcsPressed) << int(misNormal) << QStringLiteral("down-pressed");
    }
    void theArrowIsAsTheMouseHasIt()
    {
        QFETCH(int, status);
        QFETCH(int, state);
        QFETCH(QString, arrow);
        Row row;
        row.painter.setChildStatus(1, NxMediaItemChildStatus(status));
        const QImage expected = arrowOnWhite(NxSkin::Dark, arrow.toLatin1().constData());
        QVERIFY(!inked(expected).isNull());
        QCOMPARE(part(row.drawn(NxMediaItemState(state)), arrowPlace()), expected);
    }

    void anUnknownStatusShowsNoArrow()
    {
        Row row;
        row.painter.setChildStatus(1, NxMediaItemChildStatus(5));
        QVERIFY(inked(part(row.drawn(), arrowPlace())).isNull());
    }

    void aCrispScreenShowsTheCrispArrow()
    {
        const Row row;
        const QImage image = row.drawn(misNormal, Corner, 2.0);
        const QRect place(arrowPlace().topLeft() * 2, QSize(16, 16));
        QCOMPARE(part(image, place), arrowOnWhite(NxSkin::Dark, "down-normal@2x"));
    }

    void theTextStandsBehindTheArrow()
    {
        const Row row;
        const QImage image = row.drawn();
        QCOMPARE(part(image, textPlace()), part(texted(Qt::white), textPlace()));
        const QRect between(arrowPlace().right() + 1, Corner.y(), 7, RowSize.height());
        QVERIFY(inked(part(image, between)).isNull());
    }

    void aNarrowViewKeepsTheMiddleAndHasNoLeftLine()
    {
        Row row;
        const int width = textWidth() + 40;
        const int start = leftLineWidth(width);
        QVERIFY(start < 0);
        row.painter.setSize(QSize(width, RowSize.height()));
        const QImage image = row.drawn();
        const QRect arrow = arrowPlace().translated(start - leftLineWidth(), 0);
        QCOMPARE(part(image, arrow), arrowOnWhite(NxSkin::Dark, "down-normal"));
        const QRect before(0, 0, arrow.left(), CanvasSize.height());
        QVERIFY(inked(part(image, before)).isNull());
        const QRect text = textPlace().translated(start - leftLineWidth(), 0);
        const QRect behind(text.left() + textWidth() + 1, 0, 100, CanvasSize.height());
        QVERIFY(inked(part(image, behind)).isNull());
    }

    void thePillLiesBehindArrowAndText()
    {
        Row row;
        const QImage image = row.hovered();
        const QColor pill = skinColor(NxSkinColor::State_Hover);
        const QRect place = pillPlace();
        QCOMPARE(image.pixelColor(place.left() + 1, MiddleY), pill);
        QCOMPARE(image.pixelColor(place.right() - 1, MiddleY), pill);
        QVERIFY(image.pixelColor(place.left(), MiddleY) != White); // Rounded, so nearly full.
        QVERIFY(image.pixelColor(place.right(), MiddleY) != White);
        QCOMPARE(image.pixelColor(place.left() - 1, MiddleY), White);
        QCOMPARE(image.pixelColor(place.right() + 1, MiddleY), White);
        QCOMPARE(image.pixelColor(place.right() + 3, MiddleY),
                 skinColor(NxSkinColor::Component_Divider_Primary));
        const QRect text = textPlace().adjusted(0, 0, -20, 0);
        QCOMPARE(part(image, text), part(texted(pill), text));
        const QImage arrow = part(image, arrowPlace());
        QVERIFY(arrow != arrowOnWhite(NxSkin::Dark, "down-normal"));
        QCOMPARE(arrow.pixelColor(0, 0), pill);
    }

    void thePillsEndsAreHalfCircles()
    {
        Row row;
        const QImage image = row.hovered();
        const QColor pill = skinColor(NxSkinColor::State_Hover);
        const QRect place = pillPlace();
        QVERIFY(place.width() > 3 * place.height());
        // A circle of 16 px is 3 px inside at a height of 6 px.
        for (const int y : {place.top(), place.bottom()}) {
            QCOMPARE(image.pixelColor(place.left(), y), White);
            QCOMPARE(image.pixelColor(place.left() + 8, y), White);
            QCOMPARE(image.pixelColor(place.left() + 17, y), pill);
            QCOMPARE(image.pixelColor(place.right() - 17, y), pill);
            QCOMPARE(image.pixelColor(place.right() - 8, y), White);
        }
        QCOMPARE(image.pixelColor(place.left() + 1, place.top() + 6), White);
        QCOMPARE(image.pixelColor(place.left() + 5, place.top() + 6), pill);
        QCOMPARE(image.pixelColor(place.center().x(), place.top() - 1), White);
        QCOMPARE(image.pixelColor(place.center().x(), place.bottom() + 1), White);
    }

    void aPillThatIsHigherThanWideIsRoundAboveAndBelow()
    {
        Row row;
        const int width = pillPlace().width();
        row.painter.setSize(QSize(RowSize.width(), width * 2));
        row.painter.setChildStatus(1, mcsPressed);
        const QImage image = drawnOn(QSize(460, width * 2),
                                     [&](QPainter *p) { row.draw(p, misHovered, QPoint(0, 0)); });
        const QColor pill = skinColor(NxSkinColor::State_Hover);
        const int left = leftLineWidth() + 3;
        QCOMPARE(image.pixelColor(left, 0), White);
        QCOMPARE(image.pixelColor(left + width / 2, 0), pill);
        QCOMPARE(image.pixelColor(left, width / 4), White);
        QCOMPARE(image.pixelColor(left, width / 2 + 2), pill);
        QCOMPARE(image.pixelColor(left, width * 2 - width / 2 - 3), pill);
    }

    void aRowThatIsNotHoveredHasNoPill()
    {
        Row row;
        const QImage before = row.drawn();
        row.painter.setChildStatus(2, mcsHovered);
        QCOMPARE(row.drawn(misNormal), before);
        QVERIFY(row.drawn(misHovered) != before);
    }

    void thePillCutsNothingOffWhatIsDrawnAfterIt()
    {
        Row row;
        const QImage plain = row.drawn();
        const QImage hovered = row.hovered();
        const int x = pillPlace().right() + 1;
        const QRect behind(x, 0, CanvasSize.width() - x, CanvasSize.height());
        QVERIFY(!inked(part(plain, behind)).isNull());
        QCOMPARE(part(hovered, behind), part(plain, behind));
        drawnOn(CanvasSize, [&](QPainter *painter) {
            row.draw(painter, misHovered);
            QVERIFY(!painter->hasClipping());
        });
    }

    void whatTheViewClipsStaysClipped()
    {
        Row row;
        row.painter.setChildStatus(1, mcsPressed);
        const QRect shown = pillPlace().adjusted(-10, 0, -40, -16);
        const QImage image = drawnOn(CanvasSize, [&](QPainter *painter) {
            painter->setClipRect(shown);
            row.draw(painter, misHovered);
            QCOMPARE(painter->clipBoundingRect(), QRectF(shown));
        });
        QVERIFY(shown.contains(inked(image)));
        QCOMPARE(image.pixelColor(pillPlace().left() + 30, Corner.y() + 3),
                 skinColor(NxSkinColor::State_Hover));
    }

    void everySkinHasItsColoursAndArrow_data()
    {
        QTest::addColumn<int>("skin");
        QTest::newRow("dark") << int(NxSkin::Dark);
        QTest::newRow("light") << int(NxSkin::Light);
    }
    void everySkinHasItsColoursAndArrow()
    {
        QFETCH(int, skin);
        Row row; // Made before the skin is put on.
        NxSkinStyle::instance()->setSkin(NxSkin(skin));
        const QImage image = row.drawn();
        QCOMPARE(part(image, arrowPlace()), arrowOnWhite(NxSkin(skin), "down-normal"));
        QCOMPARE(part(image, textPlace()), part(texted(Qt::white), textPlace()));
        QCOMPARE(image.pixelColor(Corner.x(), MiddleY),
                 skinColor(NxSkinColor::Component_Divider_Primary));
        QCOMPARE(image.pixelColor(399, MiddleY), skinColor(NxSkinColor::Component_Divider_Primary));
        QCOMPARE(row.hovered().pixelColor(pillPlace().left() + 3, MiddleY),
                 skinColor(NxSkinColor::State_Hover));
    }

    void aPainterOfTheLightSkinBeginsWithItsArrow()
    {
        NxSkinStyle::instance()->setSkin(NxSkin::Light);
        const Row row;
        const QImage light = arrowOnWhite(NxSkin::Light, "down-normal");
        QVERIFY(light != arrowOnWhite(NxSkin::Dark, "down-normal"));
        QCOMPARE(part(row.drawn(), arrowPlace()), light);
    }

    void onlyAViewMoreTileIsDrawn_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("video") << int(mtVideo);
        QTest::newRow("group") << int(mtGroup);
        QTest::newRow("import tile") << int(mtImportTile);
    }
    void onlyAViewMoreTileIsDrawn()
    {
        QFETCH(int, type);
        const Row row(type);
        QVERIFY(inked(row.drawn()).isNull());
    }

    void whatIsNotThereIsNotDrawn()
    {
        Row row;
        row.draw(nullptr);
        const MediaRows nothing({nullptr});
        const QImage image = drawnOn(CanvasSize, [&](QPainter *painter) {
            row.painter.draw(painter, QStyleOptionViewItem(), nothing.index(0), misNormal);
            row.painter.draw(painter, QStyleOptionViewItem(), QModelIndex(), misNormal);
        });
        QVERIFY(inked(image).isNull());
        row.painter.setSize(QSize());
        QVERIFY(inked(row.drawn()).isNull());
    }

    void thePainterIsLeftAsItWas()
    {
        Row row;
        row.painter.setChildStatus(2, mcsPressed);
        drawnOn(CanvasSize, [&](QPainter *painter) {
            painter->setPen(QPen(Qt::red, 4));
            painter->setBrush(Qt::Dense3Pattern);
            painter->setFont(rowFont(40));
            row.draw(painter, misHovered);
            QCOMPARE(painter->pen(), QPen(Qt::red, 4));
            QCOMPARE(painter->brush().style(), Qt::Dense3Pattern);
            QCOMPARE(painter->font().pixelSize(), 40);
            QVERIFY(!painter->testRenderHint(QPainter::Antialiasing));
        });
    }
};

NX_TEST_MAIN_WIDGETS(tst_INxViewMoreSplitLinePainter_drawing)
#include "tst_INxViewMoreSplitLinePainter_drawing.moc"
