// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/INxPreviewFrameHelper.h>
#include <NxVBLModel/INxBsThumbManager.h>
#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <Support/NxTestMain.h>

#include <QStringListModel>
#include <QTest>

#include <memory>

#include "PlainPainter.h"

using Rects = QList<QRect>;
Q_DECLARE_METATYPE(Rects)

namespace {

/// Three children side by side, and room on which there is none.
struct ThreeChildren : PlainPainter
{
    ThreeChildren()
    {
        initItemChildrenInfo(3);
        for (int child = 0; child < 3; ++child)
            setChildRect(child, QRect(20 * child, 0, 10, 10));
    }

    /// One letter each: initial, disabled, normal, hovered, pressed.
    QString statuses() const
    {
        QString text;
        for (const int child : childIds())
            text += QLatin1Char("idnhp"[childStatus(child)]);
        return text;
    }

    /// Does "press A" or the like, and tells what came of it.
    QString step(const QString &words)
    {
        static const QHash<QString, NxMediaItemMouseEvent> events{
            {QStringLiteral("nothing"), mmeNone},
            {QStringLiteral("move"), mmeMove},
            {QStringLiteral("press"), mmeLeftPress},
            {QStringLiteral("otherPress"), mmeOtherPress},
            {QStringLiteral("release"), mmeLeftRelease},
            {QStringLiteral("otherRelease"), mmeOtherRelease},
            {QStringLiteral("doubleClick"), mmeDoubleClick},
            {QStringLiteral("unheardOf"), NxMediaItemMouseEvent(9)},
        };
        static const QHash<QString, QPoint> places{
            {QStringLiteral("A"), {5, 5}},
            {QStringLiteral("B"), {25, 5}},
            {QStringLiteral("C"), {45, 5}},
            {QStringLiteral("outside"), {15, 5}},
        };
        static const QHash<int, QString> conditions{
            {mecNone, QStringLiteral("-")},
            {mecPress, QStringLiteral("press")},
            {mecRelease, QStringLiteral("release")},
            {mecDoubleClick, QStringLiteral("doubleClick")},
        };
        const NxMediaItemMouseEvent event = events.value(words.section(QLatin1Char(' '), 0, 0));
        const QPoint place = places.value(words.section(QLatin1Char(' '), 1));
        const bool isOther = updateMouseEventInItem(place, event, QModelIndex());
        return QStringLiteral("%1 %2 %3 %4")
            .arg(statuses())
            .arg(useEvent())
            .arg(conditions.value(useEventCondition()),
                 isOther ? QStringLiteral("repaint") : QStringLiteral("same"));
    }

    QString steps(const char *words)
    {
        QStringList outcome;
        for (const QString &one : QString::fromLatin1(words).split(QStringLiteral(", ")))
            outcome.append(step(one));
        return outcome.join(QStringLiteral(", "));
    }
};

/// Rows of it differ: each has its child somewhere else.
struct RowWisePainter : PlainPainter
{
    using PlainPainter::changeItemChildrenRect;
    RowWisePainter() { initItemChildrenInfo(1); }
    void changeItemChildrenRect(const QModelIndex &index) override
    {
        setChildRect(0, QRect(100 * index.row(), 0, 10, 10));
    }
};

struct CountedPictures final : INxBsThumbManager
{
    explicit CountedPictures(int *deaths) : m_deaths(deaths) {}
    ~CountedPictures() override { ++*m_deaths; }
    QImage thumbnail(INxAbstractMedia *, const QSize &) override { return {}; }
    void cancelRequests() override {}

private:
    int *const m_deaths; // Not owned.
};

struct PictureEngine final : INxMediaEngine
{
    INxBsThumbManager *createThumbManager() override
    {
        ++made;
        return new CountedPictures(&deaths);
    }
    int made = 0;
    int deaths = 0;
};

} // namespace

/// What a painter keeps of a row, and what the mouse does to the areas in it.
class tst_INxItemBasePainter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsKnownAtFirst()
    {
        PlainPainter painter;
        QCOMPARE(painter.size(), QSize());
        QCOMPARE(painter.useEvent(), int(mueNone));
        QCOMPARE(painter.useEventCondition(), mecNone);
        QCOMPARE(painter.currentMouseEvent(), mmeNone);
        QCOMPARE(painter.mouseInChild(), -1);
        QCOMPARE(painter.mouseClickedChild(), -1);
        QCOMPARE(painter.mousePressedChild(), -1);
        QCOMPARE(painter.getHoverItem(), -1);
        QVERIFY(painter.childIds().isEmpty());
        QVERIFY(!painter.previewFrameHelper());
        QVERIFY(!painter.thumbManager());
    }

    void childrenAreRegisteredByNumber_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QList<int>>("ids");
        QTest::newRow("fewer than none") << -1 << QList<int>();
        QTest::newRow("none") << 0 << QList<int>();
        QTest::newRow("one") << 1 << QList<int>{0};
        QTest::newRow("three") << 3 << QList<int>{0, 1, 2};
    }
    void childrenAreRegisteredByNumber()
    {
        QFETCH(int, count);
        QFETCH(QList<int>, ids);
        PlainPainter painter;
        painter.initItemChildrenInfo(count);
        QCOMPARE(painter.childIds(), ids);
        for (const int child : ids) {
            QCOMPARE(painter.childRect(child), QRect());
            QCOMPARE(painter.childStatus(child), mcsInitial);
            QVERIFY(painter.isChildEnabled(child));
        }
    }

    void aChildRegisteredAgainBeginsAnew()
    {
        ThreeChildren painter;
        for (const int child : painter.childIds()) {
            painter.setChildStatus(child, mcsPressed);
            painter.setChildEnabled(child, false);
        }
        painter.initItemChildrenInfo(2);
        QCOMPARE(painter.statuses(), QStringLiteral("iip"));
        QVERIFY(painter.isChildEnabled(0));
        QVERIFY(painter.isChildEnabled(1));
        QVERIFY(!painter.isChildEnabled(2));
        QCOMPARE(painter.childRect(0), QRect());
        QCOMPARE(painter.childRect(2), QRect(40, 0, 10, 10));
    }

    void anUnknownChildIsNothing()
    {
        ThreeChildren painter;
        for (const int child : {-1, 3}) {
            painter.setChildStatus(child, mcsPressed);
            painter.setChildEnabled(child, true);
            painter.setChildRect(child, QRect(0, 0, 5, 5));
            QCOMPARE(painter.childStatus(child), mcsInitial);
            QVERIFY(!painter.isChildEnabled(child));
            QCOMPARE(painter.childRect(child), QRect());
        }
        QCOMPARE(painter.childIds(), (QList<int>{0, 1, 2}));
    }

    void aNewSizeLaysTheChildrenOut()
    {
        PlainPainter painter;
        painter.setSize(QSize(160, 120));
        QCOMPARE(painter.size(), QSize(160, 120));
        painter.setSize(QSize());
        QCOMPARE(painter.laidOutFor, (QList<QSize>{QSize(160, 120), QSize()}));
    }

    void aChildStandsInTheViewWhereItsRowDoes()
    {
        const ThreeChildren painter;
        QCOMPARE(painter.itemConvertViewChildRect(1, QPoint(300, 70)), QRect(320, 70, 10, 10));
        QCOMPARE(painter.itemConvertViewChildRect(1, QPoint(-30, -7)), QRect(-10, -7, 10, 10));
    }

    void theHoveredRowIsRemembered()
    {
        PlainPainter painter;
        painter.setHoverItem(7);
        QCOMPARE(painter.getHoverItem(), 7);
        painter.setHoverItem(-1);
        QCOMPARE(painter.getHoverItem(), -1);
    }

    void thePreviewFramesAreKeptAndTakenAway()
    {
        PlainPainter painter;
        INxPreviewFrameHelper frames;
        painter.setPreviewFrameHelper(&frames);
        QCOMPARE(painter.previewFrameHelper(), &frames);
        painter.setPreviewFrameHelper(nullptr);
        QVERIFY(!painter.previewFrameHelper());
    }

    void everyPainterHasPicturesOfItsOwnAndGivesThemBack()
    {
        PictureEngine engine;
        const NxMediaEngineDoor door(&engine);
        auto first = std::make_unique<PlainPainter>();
        const PlainPainter second;
        QVERIFY(first->thumbManager());
        QVERIFY(first->thumbManager() != second.thumbManager());
        QCOMPARE(engine.made, 2);
        QCOMPARE(engine.deaths, 0);
        first.reset();
        QCOMPARE(engine.deaths, 1);
    }

    void aNameIsEditedWhereTheStyleSays()
    {
        const PlainPainter painter;
        QVERIFY(painter.nameEditorRect(QStyleOptionViewItem(), QModelIndex()).isNull());
    }

    void theMouseMovesTheChildrensStates_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QString>("outcome");
        const auto row = [](const char *name, const char *words, const char *outcome) {
            QTest::newRow(name) << QString::fromLatin1(words) << QString::fromLatin1(outcome);
        };
        row("over none", "move outside", "iii 0 - same");
        row("over one", "move A", "hnn 0 - repaint");
        row("over one and on in it", "move A, move A", "hnn 0 - repaint, hnn 0 - same");
        row("from one to the next", "move A, move C", "hnn 0 - repaint, nnh 0 - repaint");
        row("off all", "move B, move outside", "nhn 0 - repaint, nnn 0 - repaint");
        row("press on none", "press outside", "iii 0 press same");
        row("release on none", "release outside", "iii 0 release same");
        row("press", "press A", "pnn 20 press repaint");
        row("press of what is hovered", "move B, press B", "nhn 0 - repaint, npn 21 press same");
        row("click", "press A, release A", "pnn 20 press repaint, nnn 20 release same");
        row("click and on", "press A, release A, move A",
            "pnn 20 press repaint, nnn 20 release same, hnn 0 - same");
        row("moves while pressed", "press A, move A", "pnn 20 press repaint, pnn 0 - same");
        row("drag to the next", "press A, move B, release B",
            "pnn 20 press repaint, nhn 0 - repaint, nnn 0 release same");
        row("drag to the next and back", "press A, move B, move A, release A",
            "pnn 20 press repaint, nhn 0 - repaint, pnn 0 - repaint, nnn 20 release same");
        row("drag off all", "press A, move outside, release outside",
            "pnn 20 press repaint, pnn 0 - repaint, pnn 0 release same");
        row("back after a release outside", "press A, release outside, move A",
            "pnn 20 press repaint, pnn 0 release repaint, pnn 0 - repaint");
        row("the next press lets go of it", "press A, release outside, press B, release B",
            "pnn 20 press repaint, pnn 0 release repaint, npn 21 press repaint, "
            "nnn 21 release same");
        row("press outside, release on one", "press outside, release A",
            "iii 0 press same, nnn 0 release repaint");
        row("press outside, move on one", "press outside, move A",
            "iii 0 press same, hnn 0 - repaint");
        row("two releases", "press A, release A, release A",
            "pnn 20 press repaint, nnn 20 release same, nnn 20 release same");
        row("double click", "doubleClick B", "nnn 21 doubleClick repaint");
        row("double click as it comes", "press B, release B, doubleClick B, release B",
            "npn 21 press repaint, nnn 21 release same, nnn 21 doubleClick same, "
            "nnn 21 release same");
        row("double click on none", "move A, doubleClick outside",
            "hnn 0 - repaint, nnn 0 doubleClick repaint");
        row("click of another button", "otherPress C, otherRelease C",
            "nnp 22 press repaint, nnn 22 release same");
        row("another button lets go", "press A, otherRelease A",
            "pnn 20 press repaint, nnn 20 release same");
        row("nothing", "nothing A", "inn 0 - repaint");
        row("nothing while pressed", "press A, nothing A", "pnn 20 press repaint, pnn 0 - same");
        row("nothing off all", "move A, nothing outside", "hnn 0 - repaint, nnn 0 - repaint");
        row("an unheard of event", "move A, unheardOf B", "hnn 0 - repaint, nnn 0 - repaint");
    }
    void theMouseMovesTheChildrensStates()
    {
        QFETCH(QString, words);
        ThreeChildren painter;
        QTEST(painter.steps(words.toLatin1().constData()), "outcome");
    }

    void aChildOfDisabledStatusIsFoundAndStaysAsItIs_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QString>("outcome");
        const auto row = [](const char *name, const char *words, const char *outcome) {
            QTest::newRow(name) << QString::fromLatin1(words) << QString::fromLatin1(outcome);
        };
        row("move", "move A", "dii 0 - repaint");
        row("press", "press A", "dii 0 press repaint");
        row("double click", "doubleClick A", "dii 0 doubleClick repaint");
        row("hover of another ends", "move B, move A", "dhn 0 - repaint, dnn 0 - repaint");
        row("press of another stays", "press B, release A",
            "dpn 21 press repaint, dpn 0 release repaint");
        row("others leave it alone", "press B, release B",
            "dpn 21 press repaint, dnn 21 release same");
    }
    void aChildOfDisabledStatusIsFoundAndStaysAsItIs()
    {
        QFETCH(QString, words);
        ThreeChildren painter;
        painter.setChildStatus(0, mcsDisabled);
        QTEST(painter.steps(words.toLatin1().constData()), "outcome");
    }

    void aPressedChildThatIsDisabledMeanwhileStaysDisabled()
    {
        ThreeChildren painter;
        painter.steps("press A");
        painter.setChildStatus(0, mcsDisabled);
        QCOMPARE(painter.steps("release B"), QStringLiteral("dnn 0 release repaint"));
    }

    void aChildThatIsNotEnabledIsNotThere()
    {
        ThreeChildren painter;
        painter.setChildEnabled(0, false);
        QCOMPARE(painter.steps("move A, press A, release A, doubleClick A"),
                 QStringLiteral("iii 0 - same, iii 0 press same, iii 0 release same, "
                                "iii 0 doubleClick same"));
        QCOMPARE(painter.mouseInChild(QPoint(5, 5), QModelIndex()), -1);
        painter.setChildEnabled(0, true);
        QCOMPARE(painter.mouseInChild(QPoint(5, 5), QModelIndex()), 0);
    }

    void aChildThatGoesWhileItIsPressedIsForgotten()
    {
        ThreeChildren painter;
        painter.steps("press C");
        painter.setChildEnabled(2, false);
        QCOMPARE(painter.steps("release A"), QStringLiteral("nnn 0 release repaint"));
    }

    void thePressedChildIsRememberedAfterItsRelease()
    {
        ThreeChildren painter;
        painter.steps("press B");
        QCOMPARE(painter.mousePressedChild(), 1);
        QCOMPARE(painter.mouseClickedChild(), 1);
        painter.steps("move C, release C");
        QCOMPARE(painter.mouseInChild(), 2);
        QCOMPARE(painter.mousePressedChild(), 1);
        painter.steps("press A");
        QCOMPARE(painter.mousePressedChild(), 0);
        QCOMPARE(painter.mouseClickedChild(), 0);
    }

    void theUseIsAskedForWithTheEventOfNow()
    {
        ThreeChildren painter;
        painter.steps("press A");
        QCOMPARE(painter.eventAtUse, mmeLeftPress);
        painter.steps("otherRelease A");
        QCOMPARE(painter.eventAtUse, mmeOtherRelease);
        QCOMPARE(painter.mousePosition(), QPoint(5, 5));
        QCOMPARE(painter.currentMouseEvent(), mmeOtherRelease);
    }

    void everyMoveAsksForARepaintOnceOneIsNeeded()
    {
        ThreeChildren painter;
        painter.needRepaintOnMouseMove();
        QCOMPARE(painter.steps("move A, move A, press A, move outside, move outside"),
                 QStringLiteral("hnn 0 - repaint, hnn 0 - repaint, pnn 20 press repaint, "
                                "pnn 0 - repaint, pnn 0 - repaint"));
    }

    void rowsThatDifferAreLaidOutBeforeTheMouseIsLookedUp()
    {
        const QStringListModel rows(QStringList{QStringLiteral("a"), QStringLiteral("b")});
        RowWisePainter painter;
        painter.updateMouseEventInItem(QPoint(105, 5), mmeMove, rows.index(0, 0));
        QCOMPARE(painter.mouseInChild(), -1);
        painter.updateMouseEventInItem(QPoint(105, 5), mmeMove, rows.index(1, 0));
        QCOMPARE(painter.mouseInChild(), 0);
    }

    void anEdgeBelongsToItsChild_data()
    {
        QTest::addColumn<QPoint>("place");
        QTest::addColumn<int>("child");
        QTest::newRow("top left") << QPoint(20, 0) << 1;
        QTest::newRow("bottom right") << QPoint(29, 9) << 1;
        QTest::newRow("left of it") << QPoint(19, 5) << -1;
        QTest::newRow("right of it") << QPoint(30, 5) << -1;
        QTest::newRow("below it") << QPoint(25, 10) << -1;
        QTest::newRow("above it") << QPoint(25, -1) << -1;
    }
    void anEdgeBelongsToItsChild()
    {
        QFETCH(QPoint, place);
        const ThreeChildren painter;
        QTEST(painter.mouseInChild(place, QModelIndex()), "child");
    }

    void oneOfOverlappingChildrenIsMeant_data()
    {
        QTest::addColumn<Rects>("rects");
        QTest::addColumn<int>("child");
        const QRect small(0, 0, 10, 10);
        const QRect big(0, 0, 30, 30);
        QTest::newRow("smaller first") << Rects{small, big} << 0;
        QTest::newRow("smaller second") << Rects{big, small} << 1;
        QTest::newRow("equal") << Rects{small, small} << 1;
        QTest::newRow("as wide but lower") << Rects{QRect(0, 0, 10, 5), small} << 1;
        QTest::newRow("narrower but as high") << Rects{QRect(0, 0, 5, 10), small} << 1;
        QTest::newRow("narrower but higher") << Rects{QRect(0, 0, 5, 20), small} << 1;
        QTest::newRow("the smallest of three first") << Rects{small, big, big} << 2;
        QTest::newRow("the smallest of three in the middle") << Rects{big, small, big} << 1;
        QTest::newRow("the smallest of three last") << Rects{big, big, small} << 2;
        QTest::newRow("one of three elsewhere") << Rects{small, big, QRect(50, 50, 5, 5)} << 0;
    }
    void oneOfOverlappingChildrenIsMeant()
    {
        QFETCH(Rects, rects);
        PlainPainter painter;
        painter.initItemChildrenInfo(rects.size());
        for (int child = 0; child < rects.size(); ++child)
            painter.setChildRect(child, rects.at(child));
        QTEST(painter.mouseInChild(QPoint(2, 2), QModelIndex()), "child");
    }

    void childrenThatAreNotEnabledDoNotTakePartInAnOverlap()
    {
        PlainPainter painter;
        painter.initItemChildrenInfo(3);
        for (const int child : painter.childIds())
            painter.setChildRect(child, QRect(0, 0, 10 + 10 * child, 10 + 10 * child));
        QCOMPARE(painter.mouseInChild(QPoint(2, 2), QModelIndex()), 1);
        painter.setChildEnabled(2, false);
        QCOMPARE(painter.mouseInChild(QPoint(2, 2), QModelIndex()), 0);
    }

    void noChildIsMeantAmongNone()
    {
        const PlainPainter painter;
        QCOMPARE(painter.mouseInChildCrossPositionJudgement({}, QModelIndex()), -1);
    }
};

NX_TEST_MAIN_WIDGETS(tst_INxItemBasePainter)
#include "tst_INxItemBasePainter.moc"
