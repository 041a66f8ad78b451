// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/INxViewMoreSplitLinePainter.h>

#include <NxWidgets/NxSkinStyle.h>

#include <Support/NxTestMain.h>

#include <QFontMetrics>
#include <QStyleOptionViewItem>
#include <QTest>

#include <memory>

#include "ItemStand.h"
#include "MediaRows.h"
#include "PainterProbe.h"
#include "RowCanvas.h"
#include "ScriptedMedia.h"

using Rects = QList<QRect>;
Q_DECLARE_METATYPE(Rects)

namespace {

/// Its text takes 100 px whatever the font.
struct FixedPainter final : INxViewMoreSplitLinePainter
{
    int titleWidth() const override { return 100; }
};

/// Counts the skins it hears of, beyond its own life.
struct CountingPainter final : INxViewMoreSplitLinePainter
{
    explicit CountingPainter(int *count) : told(count) {}
    void OnSkinChangedEvent(INxSkinEvent *event) override
    {
        ++*told;
        INxViewMoreSplitLinePainter::OnSkinChangedEvent(event);
    }
    int *const told; // Not owned.
};

int widthOf(const QString &text, int pixels = 14)
{
    return QFontMetrics(rowFont(pixels)).horizontalAdvance(text);
}

const QString ViewMore = QStringLiteral("View More");

// In a row of 400 x 32 px of FixedPainter.
const QPoint OnLeftLine(60, 10);
const QPoint OnArrow(145, 10);
const QPoint OnText(200, 10);
const QPoint OnRightLine(300, 10);

} // namespace

/// Where the mouse finds "View More", and what a click on it comes to.
class tst_INxViewMoreSplitLinePainter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QGuiApplication::setFont(rowFont()); }
    void init() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }
    void cleanup() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }

    void aRowHasFourChildren()
    {
        const INxViewMoreSplitLinePainter painter;
        QCOMPARE(painter.childIds(), (QList<int>{0, 1, 2, 3}));
        for (const int child : painter.childIds()) {
            QCOMPARE(painter.childStatus(child), mcsInitial);
            QVERIFY(painter.isChildEnabled(child));
            QVERIFY(painter.childRect(child).isNull());
        }
    }

    void theTextDecidesTheWidths()
    {
        const INxViewMoreSplitLinePainter painter;
        QCOMPARE(painter.title(), ViewMore);
        QCOMPARE(painter.titleWidth(), widthOf(ViewMore) + 20);
        QCOMPARE(painter.hoverWidth(), widthOf(ViewMore) + 48);
    }

    void theChildrenStandInTheMiddleBetweenTwoLines_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<Rects>("rects");
        QTest::newRow("even") << QSize(
            400,
            32) << Rects{{0, 0, 132, 32}, {135, 0, 20, 32}, {154, 0, 104, 32}, {261, 0, 139, 32}};
        QTest::newRow("odd") << QSize(
            401, 7) << Rects{{0, 0, 132, 7}, {135, 0, 20, 7}, {154, 0, 104, 7}, {261, 0, 140, 7}};
        QTest::newRow("no room for the left line")
            << QSize(136, 32)
            << Rects{{0, 0, 0, 32}, {3, 0, 20, 32}, {22, 0, 104, 32}, {129, 0, 7, 32}};
        QTest::newRow("narrow") << QSize(
            100, 32) << Rects{{0, 0, 0, 32}, {-15, 0, 20, 32}, {4, 0, 104, 32}, {111, 0, 0, 32}};
    }
    void theChildrenStandInTheMiddleBetweenTwoLines()
    {
        QFETCH(QSize, size);
        FixedPainter painter;
        painter.setSize(size);
        QTEST(childRects(painter), "rects");
    }

    void theMouseFindsNoLineThatHasNoRoom()
    {
        FixedPainter painter;
        painter.setSize(QSize(100, 32));
        QCOMPARE(painter.mouseInChild(QPoint(-10, 10), QModelIndex()), 1);
        QCOMPARE(painter.mouseInChild(QPoint(108, 10), QModelIndex()), -1);
        painter.setSize(QSize());
        QCOMPARE(painter.mouseInChild(QPoint(10, -1), QModelIndex()), -1);
    }

    void aNewSizeLeavesTheChildrensStates()
    {
        FixedPainter painter;
        painter.setSize(QSize(400, 32));
        painter.setChildStatus(1, mcsPressed);
        painter.setChildEnabled(3, false);
        painter.setSize(QSize(300, 24));
        QCOMPARE(painter.childStatus(1), mcsPressed);
        QVERIFY(!painter.isChildEnabled(3));
    }

    void theMouseFindsTheTextWhereItWasDrawn()
    {
        ScriptedPlain tile(NXVBLMODEL::mtViewMoreTile);
        const MediaRows rows({&tile});
        INxViewMoreSplitLinePainter painter;
        painter.setSize(QSize(400, 32));
        QCOMPARE(painter.childRect(2).width(), widthOf(ViewMore) + 24);
        QStyleOptionViewItem option;
        option.font = rowFont(24);
        drawnOn(QSize(400, 32),
                [&](QPainter *p) { painter.draw(p, option, rows.index(0), misNormal); });
        painter.updateMouseEventInItem(QPoint(), mmeMove, rows.index(0));
        const int text = widthOf(ViewMore, 24);
        const int line = (400 - 56 - text) / 2;
        QCOMPARE(childRects(painter), (Rects{{0, 0, line, 32},
                                             {line + 3, 0, 20, 32},
                                             {line + 22, 0, text + 24, 32},
                                             {line + text + 49, 0, 400 - line - text - 49, 32}}));
    }

    void theChildrenFollowTheLanguage()
    {
        INxViewMoreSplitLinePainter painter;
        painter.setSize(QSize(900, 32));
        const CapitalTranslator translator;
        const QString translated = ViewMore.toUpper();
        QVERIFY(widthOf(translated) != widthOf(ViewMore));
        QCOMPARE(painter.title(), translated);
        sendMouse(&painter, mmeMove, QPoint());
        QCOMPARE(painter.childRect(2).width(), widthOf(translated) + 24);
    }

    void onlyALeftClickInTheMiddleShowsMore_data()
    {
        QTest::addColumn<int>("press");
        QTest::addColumn<int>("event");
        QTest::addColumn<QPoint>("place");
        QTest::addColumn<int>("use");
        const auto row = [](const char *name, int press, int event, const QPoint &place, int use) {
            QTest::newRow(name) << press << event << place << use;
        };
        row("press", mmeNone, mmeLeftPress, OnText, mueNone);
        row("click on the text", mmeLeftPress, mmeLeftRelease, OnText, mueViewMore);
        row("click on the arrow", mmeLeftPress, mmeLeftRelease, OnArrow, mueViewMore);
        row("click of another button", mmeOtherPress, mmeOtherRelease, OnText, mueNone);
        row("move", mmeLeftPress, mmeMove, OnText, mueNone);
        row("double click", mmeNone, mmeDoubleClick, OnText, mueNone);
        row("click on the left line", mmeLeftPress, mmeLeftRelease, OnLeftLine, mueNone);
        row("click on the right line", mmeLeftPress, mmeLeftRelease, OnRightLine, mueNone);
        row("click between", mmeLeftPress, mmeLeftRelease, QPoint(133, 10), mueNone);
    }
    void onlyALeftClickInTheMiddleShowsMore()
    {
        QFETCH(int, press);
        QFETCH(int, event);
        QFETCH(QPoint, place);
        FixedPainter painter;
        painter.setSize(QSize(400, 32));
        sendMouse(&painter, NxMediaItemMouseEvent(press), place);
        sendMouse(&painter, NxMediaItemMouseEvent(event), place);
        QTEST(painter.useEvent(), "use");
    }

    void aPressThatCameFromElsewhereShowsNothing()
    {
        FixedPainter painter;
        painter.setSize(QSize(400, 32));
        sendMouse(&painter, mmeLeftPress, OnArrow);
        sendMouse(&painter, mmeLeftRelease, OnText);
        QCOMPARE(painter.useEvent(), int(mueNone));
    }

    void thePillIsShownUnderTheMouse_data()
    {
        QTest::addColumn<int>("child");
        QTest::addColumn<int>("status");
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("isShown");
        const auto row = [](const char *name, int child, int status, int state, bool isShown) {
            QTest::newRow(name) << child << status << state << isShown;
        };
        row("nothing touched", 1, mcsInitial, misHovered, false);
        row("arrow normal", 1, mcsNormal, misHovered, false);
        row("arrow disabled", 1, mcsDisabled, misHovered, false);
        row("arrow hovered", 1, mcsHovered, misHovered, true);
        row("arrow pressed", 1, mcsPressed, misHovered, true);
        row("text hovered", 2, mcsHovered, misHovered, true);
        row("text pressed", 2, mcsPressed, misHovered, true);
        row("left line hovered", 0, mcsHovered, misHovered, false);
        row("right line pressed", 3, mcsPressed, misHovered, false);
        row("arrow hovered, row not", 1, mcsHovered, misNormal, false);
        row("text pressed, row not hovered", 2, mcsPressed, misNormal, false);
        row("text hovered, row selected", 2, mcsHovered, misSelected, true);
        row("text hovered, row selected and hovered", 2, mcsHovered, misSelectedHovered, true);
        row("text hovered, row disabled", 2, mcsHovered, misDisabled, true);
        row("unknown status", 2, 5, misHovered, false);
    }
    void thePillIsShownUnderTheMouse()
    {
        QFETCH(int, child);
        QFETCH(int, status);
        QFETCH(int, state);
        FixedPainter painter;
        painter.setChildStatus(child, NxMediaItemChildStatus(status));
        QTEST(painter.isEnableHoverArea(NxMediaItemState(state)), "isShown");
    }

    void aNewSkinBeginsAnewAndClicksGoOn()
    {
        FixedPainter painter;
        painter.setSize(QSize(400, 32));
        const Rects before = childRects(painter);
        painter.setChildStatus(1, mcsHovered);
        painter.setChildEnabled(2, false);
        NxSkinStyle::instance()->setSkin(NxSkin::Light);
        QCOMPARE(painter.childStatus(1), mcsInitial);
        QVERIFY(painter.isChildEnabled(2));
        QCOMPARE(childRects(painter), before);
        click(&painter, OnText);
        QCOMPARE(painter.useEvent(), int(mueViewMore));
    }

    void preparingAgainBeginsAnewAndClicksGoOn()
    {
        FixedPainter painter;
        painter.setSize(QSize(400, 32));
        const Rects before = childRects(painter);
        painter.setChildStatus(2, mcsDisabled);
        painter.init();
        QCOMPARE(painter.childStatus(2), mcsInitial);
        QCOMPARE(childRects(painter), before);
    }

    void theSameSkinChangesNothing()
    {
        FixedPainter painter;
        painter.setSize(QSize(400, 32));
        painter.setChildStatus(1, mcsHovered);
        TestSkinEvent same(false);
        painter.OnSkinChangedEvent(&same);
        QCOMPARE(painter.childStatus(1), mcsHovered);
        TestSkinEvent other(true);
        painter.OnSkinChangedEvent(&other);
        QCOMPARE(painter.childStatus(1), mcsInitial);
    }

    void aPainterHearsOfSkinsAsLongAsItLives()
    {
        int told = 0;
        auto painter = std::make_unique<CountingPainter>(&told);
        NxSkinStyle::instance()->setSkin(NxSkin::Light);
        QCOMPARE(told, 1);
        painter.reset();
        NxSkinStyle::instance()->setSkin(NxSkin::Dark);
        QCOMPARE(told, 1);
    }
};

NX_TEST_MAIN_WIDGETS(tst_INxViewMoreSplitLinePainter)
#include "tst_INxViewMoreSplitLinePainter.moc"
