// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/INxGroupHeaderBasePainter.h>

#include <NxWidgets/NxSkinStyle.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <memory>

#include "PainterProbe.h"

using Rects = QList<QRect>;
Q_DECLARE_METATYPE(Rects)

namespace {

/// Counts the skins it hears of, beyond its own life.
struct CountingHeader final : INxGroupHeaderBasePainter
{
    explicit CountingHeader(int *count) : told(count) {}
    void OnSkinChangedEvent(INxSkinEvent *event) override
    {
        ++*told;
        INxGroupHeaderBasePainter::OnSkinChangedEvent(event);
    }
    int *const told; // Not owned.
};

const QPoint OnArrow(12, 10);
const QPoint OnMiddle(60, 10);
const QPoint OnEnd(200, 10);

} // namespace

/// Where the mouse finds the arrow of a group's header, and what a click on it comes to.
class tst_INxGroupHeaderBasePainter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }
    void cleanup() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }

    void aHeaderHasThreeChildren()
    {
        const INxGroupHeaderBasePainter painter;
        QCOMPARE(painter.childIds(), (QList<int>{0, 1, 2}));
        for (const int child : painter.childIds()) {
            QCOMPARE(painter.childStatus(child), mcsInitial);
            QVERIFY(painter.isChildEnabled(child));
            QVERIFY(painter.childRect(child).isNull());
        }
    }

    void theChildrenLieSideBySide_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<Rects>("rects");
        QTest::newRow("wide") << QSize(400, 32)
                              << Rects{{0, 0, 24, 32}, {31, 0, 100, 32}, {138, 0, 262, 32}};
        QTest::newRow("low") << QSize(1000, 7)
                             << Rects{{0, 0, 24, 7}, {31, 0, 100, 7}, {138, 0, 862, 7}};
        QTest::newRow("one pixel for the last")
            << QSize(139, 20) << Rects{{0, 0, 24, 20}, {31, 0, 100, 20}, {138, 0, 1, 20}};
        QTest::newRow("no room for the last")
            << QSize(138, 20) << Rects{{0, 0, 24, 20}, {31, 0, 100, 20}, {138, 0, 0, 20}};
        QTest::newRow("narrow") << QSize(50, 20)
                                << Rects{{0, 0, 24, 20}, {31, 0, 100, 20}, {138, 0, 0, 20}};
        QTest::newRow("without a size")
            << QSize() << Rects{{0, 0, 24, 0}, {31, 0, 100, 0}, {138, 0, 0, 0}};
    }
    void theChildrenLieSideBySide()
    {
        QFETCH(QSize, size);
        INxGroupHeaderBasePainter painter;
        painter.setSize(size);
        QTEST(childRects(painter), "rects");
    }

    void theMouseFindsNoChildThatHasNoRoom()
    {
        INxGroupHeaderBasePainter painter;
        painter.setSize(QSize(100, 32));
        QCOMPARE(painter.mouseInChild(QPoint(99, 10), QModelIndex()), 1);
        QCOMPARE(painter.mouseInChild(QPoint(136, 10), QModelIndex()), -1);
        painter.setSize(QSize());
        QCOMPARE(painter.mouseInChild(QPoint(10, 0), QModelIndex()), -1);
        QCOMPARE(painter.mouseInChild(QPoint(10, -1), QModelIndex()), -1);
    }

    void aNewSizeLeavesTheChildrensStates()
    {
        INxGroupHeaderBasePainter painter;
        painter.setSize(QSize(400, 32));
        painter.setChildStatus(0, mcsPressed);
        painter.setChildEnabled(1, false);
        painter.setSize(QSize(300, 24));
        QCOMPARE(painter.childStatus(0), mcsPressed);
        QVERIFY(!painter.isChildEnabled(1));
    }

    void onlyALeftClickOnTheArrowTogglesTheGroup_data()
    {
        QTest::addColumn<int>("press");
        QTest::addColumn<int>("event");
        QTest::addColumn<QPoint>("place");
        QTest::addColumn<int>("use");
        const auto row = [](const char *name, int press, int event, const QPoint &place, int use) {
            QTest::newRow(name) << press << event << place << use;
        };
        row("press", mmeNone, mmeLeftPress, OnArrow, mueNone);
        row("click", mmeLeftPress, mmeLeftRelease, OnArrow, mueToggleGroup);
        row("click of another button", mmeOtherPress, mmeOtherRelease, OnArrow, mueNone);
        row("move", mmeLeftPress, mmeMove, OnArrow, mueNone);
        row("double click", mmeNone, mmeDoubleClick, OnArrow, mueNone);
        row("click beside the arrow", mmeLeftPress, mmeLeftRelease, OnMiddle, mueNone);
        row("click behind the name", mmeLeftPress, mmeLeftRelease, OnEnd, mueNone);
        row("click between", mmeLeftPress, mmeLeftRelease, QPoint(27, 10), mueNone);
        row("click on the last of the arrow", mmeLeftPress, mmeLeftRelease, QPoint(23, 31),
            mueToggleGroup);
        row("click beyond the arrow", mmeLeftPress, mmeLeftRelease, QPoint(24, 10), mueNone);
    }
    void onlyALeftClickOnTheArrowTogglesTheGroup()
    {
        QFETCH(int, press);
        QFETCH(int, event);
        QFETCH(QPoint, place);
        INxGroupHeaderBasePainter painter;
        painter.setSize(QSize(400, 32));
        sendMouse(&painter, NxMediaItemMouseEvent(press), place);
        sendMouse(&painter, NxMediaItemMouseEvent(event), place);
        QTEST(painter.useEvent(), "use");
    }

    void aPressThatCameFromElsewhereTogglesNothing()
    {
        INxGroupHeaderBasePainter painter;
        painter.setSize(QSize(400, 32));
        sendMouse(&painter, mmeLeftPress, OnMiddle);
        sendMouse(&painter, mmeLeftRelease, OnArrow);
        QCOMPARE(painter.useEvent(), int(mueNone));
    }

    void aNewSkinBeginsAnewAndClicksGoOn()
    {
        INxGroupHeaderBasePainter painter;
        painter.setSize(QSize(400, 32));
        const Rects before = childRects(painter);
        painter.setChildStatus(0, mcsHovered);
        painter.setChildEnabled(2, false);
        NxSkinStyle::instance()->setSkin(NxSkin::Light);
        QCOMPARE(painter.childStatus(0), mcsInitial);
        QVERIFY(painter.isChildEnabled(2));
        QCOMPARE(childRects(painter), before);
        click(&painter, OnArrow);
        QCOMPARE(painter.useEvent(), int(mueToggleGroup));
    }

    void preparingAgainBeginsAnewAndClicksGoOn()
    {
        INxGroupHeaderBasePainter painter;
        painter.setSize(QSize(400, 32));
        const Rects before = childRects(painter);
        painter.setChildStatus(0, mcsDisabled);
        painter.init();
        QCOMPARE(painter.childStatus(0), mcsInitial);
        QCOMPARE(childRects(painter), before);
    }

    void theSameSkinChangesNothing()
    {
        INxGroupHeaderBasePainter painter;
        painter.setSize(QSize(400, 32));
        painter.setChildStatus(0, mcsHovered);
        TestSkinEvent same(false);
        painter.OnSkinChangedEvent(&same);
        QCOMPARE(painter.childStatus(0), mcsHovered);
        TestSkinEvent other(true);
        painter.OnSkinChangedEvent(&other);
        QCOMPARE(painter.childStatus(0), mcsInitial);
    }

    void aPainterHearsOfSkinsAsLongAsItLives()
    {
        int told = 0;
        auto painter = std::make_unique<CountingHeader>(&told);
        NxSkinStyle::instance()->setSkin(NxSkin::Light);
        QCOMPARE(told, 1);
        painter.reset();
        NxSkinStyle::instance()->setSkin(NxSkin::Dark);
        QCOMPARE(told, 1);
    }
};

NX_TEST_MAIN_WIDGETS(tst_INxGroupHeaderBasePainter)
#include "tst_INxGroupHeaderBasePainter.moc"
