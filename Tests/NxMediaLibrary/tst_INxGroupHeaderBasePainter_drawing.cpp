// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/INxGroupHeaderBasePainter.h>

#include <Support/NxTestMain.h>

#include <QFontMetrics>
#include <QStyleOptionViewItem>
#include <QTest>

#include "MediaRows.h"
#include "RowCanvas.h"
#include "ScriptedGroup.h"
#include "ScriptedMedia.h"

using namespace NXVBLMODEL;

namespace {

constexpr QSize CanvasSize(460, 70);
constexpr QSize RowSize(400, 32);
constexpr QPoint Corner(37, 15);
const QRect ArrowAtCorner(37, 27, 8, 8);

/// A header of 400 x 32 px on a white canvas.
struct Header
{
    Header() { painter.setSize(RowSize); }

    QImage drawn(INxAbstractMedia *media, const QPoint &corner = Corner,
                 NxMediaItemState state = misNormal, qreal ratio = 1.0) const
    {
        const MediaRows rows({media});
        const QStyleOptionViewItem option = optionAt(corner);
        const auto deed = [&](QPainter *p) {
            p->setFont(rowFont(40)); // Of the view, not of the row.
            painter.draw(p, option, rows.index(0), state);
        };
        return drawnOn(CanvasSize, deed, ratio);
    }
    static QStyleOptionViewItem optionAt(const QPoint &corner)
    {
        QStyleOptionViewItem option;
        option.font = rowFont();
        option.rect = QRect(corner, QSize(9, 9)); // The painter's size counts.
        return option;
    }

    INxGroupHeaderBasePainter painter;
};

int widthOf(const char *text)
{
    return QFontMetrics(rowFont()).horizontalAdvance(QString::fromUtf8(text));
}

/// The text alone, with much room to its right, in the colour of headers.
QImage texted(const char *text, int x, int y)
{
    return drawnOn(CanvasSize, [&](QPainter *painter) {
        painter->setPen(skinColor(NxSkinColor::Text_Icon_Secondary));
        painter->drawText(QRect(x, y, 400, RowSize.height()), Qt::AlignLeft | Qt::AlignVCenter,
                          QString::fromUtf8(text));
    });
}

/// Between the arrow and the line behind a title of this width.
QRect titlePlace(const char *text, int x, int y)
{
    return {x, y, widthOf(text) + 24, RowSize.height()};
}

} // namespace

/// What a group's header looks like.
class tst_INxGroupHeaderBasePainter_drawing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }
    void cleanup() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }

    void theArrowIsAsTheMouseHasIt_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("expanded");
        QTest::addColumn<QString>("arrow");
        const auto row = [](const char *name, int status, int state, const char *arrow) {
            const bool isDown = QByteArray(arrow).startsWith("down");
            QTest::newRow(name) << status << state << isDown << QString::fromLatin1(arrow);
        };
        row("open, untouched", mcsInitial, misNormal, "down-normal");
        row("open", mcsNormal, misHovered, "down-normal");
        row("open, hovered", mcsHovered, misHovered, "down-hover");
        row("open, pressed", mcsPressed, misHovered, "down-pressed");
        row("open, disabled", mcsDisabled, misHovered, "down-disabled");
        row("open, unknown", 5, misHovered, "down-normal");
        row("open, hovered in a row that is not", mcsHovered, misNormal, "down-normal");
        row("open, hovered in a selected row", mcsHovered, misSelected, "down-hover");
        row("open, hovered in a disabled row", mcsHovered, misDisabled, "down-hover");
        row("open, pressed in a row that is not hovered", mcsPressed, misNormal, "down-pressed");
        row("folded, untouched", mcsInitial, misHovered, "right-normal");
        row("folded", mcsNormal, misNormal, "right-normal");
        row("folded, hovered", mcsHovered, misSelectedHovered, "right-hover");
        row("folded, pressed", mcsPressed, misHovered, "right-pressed");
        row("folded, disabled", mcsDisabled, misNormal, "right-disabled");
        row("folded, unknown", 99, misNormal, "right-normal");
        row("folded, hovered in a row that is not", mcsHovered, misNormal, "right-normal");
    }
    void theArrowIsAsTheMouseHasIt()
    {
        QFETCH(int, status);
        QFETCH(int, state);
        QFETCH(bool, expanded);
        QFETCH(QString, arrow);
        ScriptedGroup group;
        group.expanded = expanded;
        Header header;
        header.painter.setChildStatus(0, NxMediaItemChildStatus(status));
        const QImage image = header.drawn(&group, Corner, NxMediaItemState(state));
        const QImage expected = arrowOnWhite(NxSkin::Dark, arrow.toLatin1().constData());
        QVERIFY(!inked(expected).isNull());
        QCOMPARE(part(image, ArrowAtCorner), expected);
    }

    void aStatusBelowAllShowsNoArrow()
    {
        ScriptedGroup group;
        Header header;
        header.painter.setChildStatus(0, NxMediaItemChildStatus(-1));
        QVERIFY(inked(part(header.drawn(&group), ArrowAtCorner)).isNull());
    }

    void theArrowStandsAtTheBeginningInTheMiddleOfTheHeight_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("corner");
        QTest::addColumn<QRect>("arrow");
        QTest::newRow("in the corner") << QSize(400, 32) << QPoint(0, 0) << QRect(0, 12, 8, 8);
        QTest::newRow("elsewhere") << QSize(400, 32) << Corner << ArrowAtCorner;
        QTest::newRow("odd height") << QSize(400, 31) << QPoint(3, 5) << QRect(3, 16, 8, 8);
        QTest::newRow("as high as the arrow") << QSize(400, 8) << QPoint(3, 5) << QRect(3, 5, 8, 8);
    }
    void theArrowStandsAtTheBeginningInTheMiddleOfTheHeight()
    {
        QFETCH(QSize, size);
        QFETCH(QPoint, corner);
        QFETCH(QRect, arrow);
        ScriptedGroup group;
        Header header;
        header.painter.setSize(size);
        const QImage image = header.drawn(&group, corner);
        const QImage picture = arrowOnWhite(NxSkin::Dark, "down-normal");
        QCOMPARE(part(image, arrow), picture);
        const QRect beforeTheTitle(corner, QSize(15, size.height()));
        QCOMPARE(inked(part(image, beforeTheTitle)),
                 inked(picture).translated(arrow.topLeft() - corner));
    }

    void aCrispScreenShowsTheCrispArrow()
    {
        ScriptedGroup group;
        const Header header;
        const QImage image = header.drawn(&group, Corner, misNormal, 2.0);
        const QImage expected = arrowOnWhite(NxSkin::Dark, "down-normal@2x");
        QCOMPARE(expected.size(), QSize(16, 16));
        QCOMPARE(part(image, QRect(74, 54, 16, 16)), expected);
    }

    void theTitleIsTheNameAndTheCount_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("title");
        QTest::newRow("some") << QStringLiteral("Sea") << 3 << QStringLiteral("Sea (3)");
        QTest::newRow("none") << QStringLiteral("Sea") << 0 << QStringLiteral("Sea (0)");
        QTest::newRow("many") << QStringLiteral("Sea") << 12345 << QStringLiteral("Sea (12345)");
        QTest::newRow("no name") << QString() << 1 << QStringLiteral(" (1)");
        QTest::newRow("a name of places")
            << QStringLiteral("%2 of %1") << 7 << QStringLiteral("%2 of %1 (7)");
        QTest::newRow("an ampersand")
            << QStringLiteral("Salt & Sea") << 7 << QStringLiteral("Salt & Sea (7)");
    }
    void theTitleIsTheNameAndTheCount()
    {
        QFETCH(QString, name);
        QFETCH(int, count);
        QFETCH(QString, title);
        ScriptedGroup group(name.toUtf8().constData(), count);
        const Header header;
        const QByteArray text = title.toUtf8();
        const QRect place = titlePlace(text.constData(), 52, 15);
        QCOMPARE(part(header.drawn(&group), place), part(texted(text.constData(), 52, 15), place));
    }

    void theTitleBeginsBehindTheArrow_data()
    {
        QTest::addColumn<bool>("foldable");
        QTest::addColumn<QPoint>("corner");
        QTest::addColumn<int>("x");
        QTest::newRow("behind the arrow") << true << QPoint(0, 0) << 15;
        QTest::newRow("behind the arrow, elsewhere") << true << Corner << 52;
        QTest::newRow("at the edge") << false << QPoint(0, 0) << 0;
        QTest::newRow("at the edge, elsewhere") << false << Corner << 37;
    }
    void theTitleBeginsBehindTheArrow()
    {
        QFETCH(bool, foldable);
        QFETCH(QPoint, corner);
        QFETCH(int, x);
        ScriptedGroup group;
        group.foldable = foldable;
        const Header header;
        const QRect place = titlePlace("Sea (3)", x, corner.y());
        QCOMPARE(part(header.drawn(&group, corner), place),
                 part(texted("Sea (3)", x, corner.y()), place));
    }

    void aGroupThatCannotBeFoldedIsItsTitleAlone()
    {
        ScriptedGroup group;
        group.foldable = false;
        const Header header;
        QCOMPARE(header.drawn(&group), texted("Sea (3)", 37, 15));
    }

    void theLineGoesFromBehindTheTitleToTheEnd_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("corner");
        QTest::addColumn<int>("y");
        QTest::newRow("in the corner") << QSize(400, 32) << QPoint(0, 0) << 15;
        QTest::newRow("elsewhere") << QSize(400, 32) << Corner << 30;
        QTest::newRow("odd height") << QSize(300, 31) << QPoint(20, 2) << 17;
    }
    void theLineGoesFromBehindTheTitleToTheEnd()
    {
        QFETCH(QSize, size);
        QFETCH(QPoint, corner);
        QFETCH(int, y);
        ScriptedGroup group;
        Header header;
        header.painter.setSize(size);
        const QImage image = header.drawn(&group, corner);
        const QColor line = skinColor(NxSkinColor::Component_Divider_Primary);
        const int first = corner.x() + 15 + widthOf("Sea (3)") + 24 - 1 + 8;
        const int last = size.width() - 1;
        QCOMPARE(image.pixelColor(first, y), line);
        QCOMPARE(image.pixelColor((first + last) / 2, y), line);
        QCOMPARE(image.pixelColor(last, y), line);
        const QRect behindTheTitle(first - 20, 0, CanvasSize.width() - first + 20,
                                   CanvasSize.height());
        QCOMPARE(inked(part(image, behindTheTitle)), QRect(20, y, last - first + 1, 1));
    }

    void aNarrowViewHasNoLine()
    {
        ScriptedGroup group;
        Header header;
        const int titleEnd = 15 + widthOf("Sea (3)") + 24 - 1;
        header.painter.setSize(QSize(titleEnd + 8, 32));
        const QImage without = header.drawn(&group, QPoint(0, 0));
        QVERIFY(inked(without).right() < titleEnd);
        header.painter.setSize(QSize(30, 32));
        QCOMPARE(header.drawn(&group, QPoint(0, 0)), without);
        header.painter.setSize(QSize(titleEnd + 9, 32));
        QCOMPARE(inked(header.drawn(&group, QPoint(0, 0))).right(), titleEnd + 8);
    }

    void everySkinHasItsColoursAndArrows_data()
    {
        QTest::addColumn<int>("skin");
        QTest::newRow("dark") << int(NxSkin::Dark);
        QTest::newRow("light") << int(NxSkin::Light);
    }
    void everySkinHasItsColoursAndArrows()
    {
        QFETCH(int, skin);
        ScriptedGroup group;
        const Header header; // Made before the skin is put on.
        NxSkinStyle::instance()->setSkin(NxSkin(skin));
        const QImage image = header.drawn(&group);
        QCOMPARE(part(image, ArrowAtCorner), arrowOnWhite(NxSkin(skin), "down-normal"));
        const QRect place = titlePlace("Sea (3)", 52, 15);
        QCOMPARE(part(image, place), part(texted("Sea (3)", 52, 15), place));
        QCOMPARE(image.pixelColor(390, 30), skinColor(NxSkinColor::Component_Divider_Primary));
        group.expanded = false;
        QCOMPARE(part(header.drawn(&group), ArrowAtCorner),
                 arrowOnWhite(NxSkin(skin), "right-normal"));
    }

    void theSkinsLookDifferent()
    {
        ScriptedGroup group;
        const Header header;
        const QImage dark = header.drawn(&group);
        NxSkinStyle::instance()->setSkin(NxSkin::Light);
        const QImage light = header.drawn(&group);
        QVERIFY(part(dark, ArrowAtCorner) != part(light, ArrowAtCorner));
        QVERIFY(dark.pixelColor(390, 30) != light.pixelColor(390, 30));
    }

    void aPainterOfTheLightSkinBeginsWithItsArrows()
    {
        NxSkinStyle::instance()->setSkin(NxSkin::Light);
        ScriptedGroup group;
        const Header header;
        QCOMPARE(part(header.drawn(&group), ArrowAtCorner),
                 arrowOnWhite(NxSkin::Light, "down-normal"));
    }

    void onlyAGroupIsDrawn_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("folder") << int(mtFolder);
        QTest::newRow("import tile") << int(mtImportTile);
        QTest::newRow("view more tile") << int(mtViewMoreTile);
        QTest::newRow("what only says it is one") << int(mtGroup);
    }
    void onlyAGroupIsDrawn()
    {
        QFETCH(int, type);
        ScriptedPlain media{NxMediaType(type), QStringLiteral("Sea")};
        const Header header;
        QVERIFY(inked(header.drawn(&media)).isNull());
    }

    void whatIsNotThereIsNotDrawn()
    {
        ScriptedGroup group;
        Header header;
        QVERIFY(inked(header.drawn(nullptr)).isNull());
        const MediaRows rows({&group});
        header.painter.draw(nullptr, Header::optionAt(Corner), rows.index(0), misNormal);
        const QImage image = drawnOn(CanvasSize, [&](QPainter *painter) {
            header.painter.draw(painter, Header::optionAt(Corner), QModelIndex(), misNormal);
        });
        QVERIFY(inked(image).isNull());
        header.painter.setSize(QSize());
        QVERIFY(inked(header.drawn(&group)).isNull());
    }

    void thePainterIsLeftAsItWas()
    {
        ScriptedGroup group;
        const Header header;
        const MediaRows rows({&group});
        drawnOn(CanvasSize, [&](QPainter *painter) {
            painter->setPen(QPen(Qt::red, 4));
            painter->setFont(rowFont(40));
            header.painter.draw(painter, Header::optionAt(Corner), rows.index(0), misNormal);
            QCOMPARE(painter->pen(), QPen(Qt::red, 4));
            QCOMPARE(painter->font().pixelSize(), 40);
            QVERIFY(!painter->testRenderHint(QPainter::Antialiasing));
        });
    }
};

NX_TEST_MAIN_WIDGETS(tst_INxGroupHeaderBasePainter_drawing)
#include "tst_INxGroupHeaderBasePainter_drawing.moc"
