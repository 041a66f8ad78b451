// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/INxItemMediaIconBasePainter.h>

#include <Support/NxTestMain.h>

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QStyleOptionViewItem>
#include <QTest>

#include <limits>

#include "RowCanvas.h"

using namespace NXMEDIALIBRARY;

namespace {

/// A host's painter of media that draws nothing of its own.
struct IconPainter final : INxItemMediaIconBasePainter
{
    using INxItemMediaIconBasePainter::adjustDrawingStyle;
    using INxItemMediaIconBasePainter::changeItemChildrenRect;
    using INxItemMediaIconBasePainter::setUseEvent;
    using INxItemMediaIconBasePainter::setViewModeSize;

    void changeItemChildrenRect() override { laidOutFor.append(size()); }
    void drawItemContent(QPainter *, const QStyleOptionViewItem &, const QModelIndex &,
                         NxMediaItemState) const override
    {
    }

    QList<QSize> laidOutFor;
};

/// What every host's painter has to have, and nothing else.
struct BarePainter final : INxItemMediaIconBasePainter
{
    using INxItemMediaIconBasePainter::setChildRect;

    void drawItemContent(QPainter *, const QStyleOptionViewItem &, const QModelIndex &,
                         NxMediaItemState) const override
    {
    }
};

int widthOf(const QString &text, int flags = 0)
{
    return QFontMetrics(rowFont()).size(Qt::TextSingleLine | flags, text).width();
}

constexpr int Left = Qt::AlignLeft | Qt::AlignVCenter;
const QRect Box(10, 5, 180, 30);

template<typename Deed>
QImage drawn(const Deed &deed)
{
    return drawnOn(QSize(200, 40), deed);
}

/// What drawTxt() makes of a text in a rectangle.
QImage texted(const QRect &rect, const QString &text, int flags = Left)
{
    const IconPainter icons;
    return drawn([&](QPainter *painter) { icons.drawTxt(painter, rect, text, flags); });
}

/// The text as Qt draws it, whole.
QImage whole(const QRect &rect, const QString &text, int flags = Left)
{
    return drawn([&](QPainter *painter) { painter->drawText(rect, flags, text); });
}

} // namespace

/// What painters of media share: the view mode, texts, bars and frames.
class tst_INxItemMediaIconBasePainter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theViewBeginsWithLargeThumbnails()
    {
        const IconPainter painter;
        QCOMPARE(painter.viewMode(), vmLargeThumbnail);
    }

    void aViewModeGivesItsSize_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QSize>("size");
        QTest::newRow("list") << int(vmList) << QSize(300, 20);
        QTest::newRow("small") << int(vmSmallThumbnail) << QSize(80, 60);
        QTest::newRow("large, which has none") << int(vmLargeThumbnail) << QSize();
        QTest::newRow("unknown") << 12 << QSize();
    }
    void aViewModeGivesItsSize()
    {
        QFETCH(int, mode);
        QFETCH(QSize, size);
        IconPainter painter;
        painter.setViewModeSize(vmList, QSize(300, 20));
        painter.setViewModeSize(vmSmallThumbnail, QSize(1, 1));
        painter.setViewModeSize(vmSmallThumbnail, QSize(80, 60));
        painter.setSize(QSize(5, 5));
        painter.setViewMode(NxMediaItemViewMode(mode));
        QCOMPARE(painter.size(), size);
        QCOMPARE(int(painter.viewMode()), mode);
        QCOMPARE(painter.laidOutFor, (QList<QSize>{QSize(5, 5), size}));
    }

    void theModeIsThatOfAllPaintersAndTheSizeIsNot()
    {
        IconPainter one;
        IconPainter other;
        one.setViewModeSize(vmList, QSize(300, 20));
        one.setViewModeSize(vmMiddleThumbnail, QSize(100, 80));
        other.setViewModeSize(vmList, QSize(400, 30));
        one.setViewMode(vmMiddleThumbnail);
        other.setViewMode(vmList);
        QCOMPARE(one.viewMode(), vmList);
        QCOMPARE(one.size(), QSize(100, 80));
        QCOMPARE(other.size(), QSize(400, 30));
        QCOMPARE(one.laidOutFor, QList<QSize>{QSize(100, 80)});
    }

    void rowsAreWhiteUntilAHostHasStyles()
    {
        const IconPainter rows;
        drawn([&](QPainter *painter) {
            painter->setBrush(Qt::SolidPattern);
            rows.adjustDrawingStyle(painter, misSelected);
            QCOMPARE(painter->pen().width(), 1);
            QCOMPARE(painter->pen().color(), QColor(Qt::white));
            QCOMPARE(painter->brush().color(), QColor(Qt::white));
            QCOMPARE(painter->font(), QFont());
        });
    }

    void aBarePainterDrawsNothingAndDoesNothing()
    {
        BarePainter bare;
        bare.setSize(QSize(100, 40));
        bare.initItemChildrenInfo(1);
        bare.setChildRect(0, QRect(0, 0, 10, 10));
        bare.initPaintStateInfo();
        bare.updateMouseEventInItem(QPoint(5, 5), mmeLeftPress, QModelIndex());
        bare.updateMouseEventInItem(QPoint(5, 5), mmeLeftRelease, QModelIndex());
        QCOMPARE(bare.mousePressedChild(), 0);
        QCOMPARE(bare.useEvent(), int(mueNone));
        QCOMPARE(bare.childRect(0), QRect(0, 0, 10, 10));
        const QImage image = drawn([&](QPainter *painter) {
            bare.draw(painter, QStyleOptionViewItem(), QModelIndex(), misHovered);
        });
        QVERIFY(inked(image).isNull());
    }

    void aMouseEventComesToACondition_data()
    {
        QTest::addColumn<int>("event");
        QTest::addColumn<int>("condition");
        QTest::newRow("below all") << -1 << int(mecNone);
        QTest::newRow("none") << int(mmeNone) << int(mecNone);
        QTest::newRow("move") << int(mmeMove) << int(mecNone);
        QTest::newRow("press") << int(mmeLeftPress) << int(mecPress);
        QTest::newRow("press of another button") << int(mmeOtherPress) << int(mecPress);
        QTest::newRow("release") << int(mmeLeftRelease) << int(mecRelease);
        QTest::newRow("release of another button") << int(mmeOtherRelease) << int(mecRelease);
        QTest::newRow("double click") << int(mmeDoubleClick) << int(mecDoubleClick);
        QTest::newRow("the first unknown") << 7 << int(mecNone);
        QTest::newRow("beyond all") << std::numeric_limits<int>::max() << int(mecNone);
    }
    void aMouseEventComesToACondition()
    {
        QFETCH(int, event);
        IconPainter painter;
        painter.updateMouseEventInItem(QPoint(), NxMediaItemMouseEvent(event), QModelIndex());
        QTEST(int(painter.mouseEventCondition()), "condition");
        QTEST(int(painter.useEventCondition()), "condition");
        QTEST(int(mediaItemEventCondition(NxMediaItemMouseEvent(event))), "condition");
    }

    void theResultOfAMouseEventIsItsUse()
    {
        IconPainter painter;
        QCOMPARE(painter.mouseEventResult(), mueNone);
        painter.setUseEvent(mueViewMore);
        QCOMPARE(painter.mouseEventResult(), mueViewMore);
        painter.setUseEvent(33);
        QCOMPARE(int(painter.mouseEventResult()), 33);
    }

    void aTextThatFitsIsDrawnWhole_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("flags");
        QTest::newRow("left") << QStringLiteral("Sea") << Left;
        QTest::newRow("right") << QStringLiteral("Sea") << int(Qt::AlignRight | Qt::AlignTop);
        QTest::newRow("centred") << QStringLiteral("Sea") << int(Qt::AlignCenter);
        QTest::newRow("empty") << QString() << Left;
        QTest::newRow("an ampersand") << QStringLiteral("Salt & Sea") << Left;
    }
    void aTextThatFitsIsDrawnWhole()
    {
        QFETCH(QString, text);
        QFETCH(int, flags);
        QCOMPARE(texted(Box, text, flags), whole(Box, text, flags));
    }

    void aTextThatJustFitsIsNotCut()
    {
        const QString text = QStringLiteral("A long day by the sea");
        const QRect tight(10, 5, widthOf(text), 30);
        QCOMPARE(texted(tight, text), whole(tight, text));
        const QRect tighter = tight.adjusted(0, 0, -1, 0);
        QVERIFY(texted(tighter, text) != whole(tighter, text));
    }

    void aTextThatIsTooLongEndsInAnEllipsis()
    {
        const QString text = QStringLiteral("A long day by the sea and another");
        const QRect narrow(10, 5, 90, 30);
        const QString cut = QFontMetrics(rowFont()).elidedText(text, Qt::ElideRight, 90);
        QVERIFY(cut.startsWith(QStringLiteral("A long")));
        QVERIFY(cut.endsWith(QChar(0x2026)));
        const QImage image = texted(narrow, text);
        QCOMPARE(image, whole(narrow, cut));
        QVERIFY(narrow.contains(inked(image)));
    }

    void aMnemonicsAmpersandTakesNoRoom()
    {
        const QString text = QStringLiteral("&Sea and shore");
        const QRect tight(10, 5, widthOf(text, Qt::TextShowMnemonic), 30);
        QVERIFY(tight.width() < widthOf(text));
        const int flags = Left | Qt::TextShowMnemonic;
        QCOMPARE(texted(tight, text, flags), whole(tight, text, flags));
    }

    void aRectangleWithoutWidthShowsNoText_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("flags");
        QTest::newRow("none") << 0 << Left;
        QTest::newRow("negative") << -40 << Left;
        QTest::newRow("none, not clipped") << 0 << int(Left | Qt::TextDontClip);
        QTest::newRow("negative, not clipped") << -40 << int(Left | Qt::TextDontClip);
    }
    void aRectangleWithoutWidthShowsNoText()
    {
        QFETCH(int, width);
        QFETCH(int, flags);
        const QRect rect(60, 5, width, 30);
        QVERIFY(inked(texted(rect, QStringLiteral("Sea"), flags)).isNull());
    }

    void aTextIsDrawnAsThePainterIsSet()
    {
        const IconPainter icons;
        const QImage image = drawn([&](QPainter *painter) {
            painter->setPen(Qt::red);
            icons.drawTxt(painter, Box, QStringLiteral("Sea"), Left);
            QCOMPARE(painter->pen().color(), QColor(Qt::red));
            QCOMPARE(painter->font().pixelSize(), rowFont().pixelSize());
        });
        const QImage expected = drawn([](QPainter *painter) {
            painter->setPen(Qt::red);
            painter->drawText(Box, Left, QStringLiteral("Sea"));
        });
        QCOMPARE(image, expected);
    }

    void aBarLiesOnItsGround()
    {
        const IconPainter icons;
        const QImage image = drawn([&](QPainter *painter) {
            icons.drawProgress(painter, QRect(20, 10, 40, 10), Qt::green, QRect(20, 10, 100, 10),
                               Qt::blue);
        });
        QCOMPARE(image.pixelColor(40, 15), QColor(Qt::green));
        QCOMPARE(image.pixelColor(58, 15), QColor(Qt::green));
        QCOMPARE(image.pixelColor(63, 15), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(118, 15), QColor(Qt::blue));
        // An outline of one pixel stands half inside and half outside.
        QCOMPARE(inked(image), QRect(19, 9, 102, 12));
    }

    void aBarHasRoundCorners()
    {
        const IconPainter icons;
        const QImage image = drawn([&](QPainter *painter) {
            icons.drawProgress(painter, QRect(20, 10, 1, 1), Qt::blue, QRect(20, 10, 100, 10),
                               Qt::blue);
        });
        const QImage expected = drawn([](QPainter *painter) {
            painter->setRenderHint(QPainter::Antialiasing);
            painter->setPen(QPen(QColor(Qt::blue), 1));
            painter->setBrush(QColor(Qt::blue));
            painter->drawRoundedRect(QRect(20, 10, 100, 10), 2.0, 2.0);
        });
        const QRect farEnd(100, 0, 100, 40);
        QCOMPARE(image.copy(farEnd), expected.copy(farEnd));
        QVERIFY(image.pixelColor(120, 9).blue() > 230);
        QVERIFY(image.pixelColor(120, 9).red() > 230);
    }

    void aBarLeavesThePainterAsItWas()
    {
        const IconPainter icons;
        drawn([&](QPainter *painter) {
            painter->setPen(QPen(Qt::red, 4));
            painter->setBrush(Qt::Dense2Pattern);
            icons.drawProgress(painter, QRect(20, 10, 40, 10), Qt::green, QRect(20, 10, 100, 10),
                               Qt::blue);
            QCOMPARE(painter->pen(), QPen(Qt::red, 4));
            QCOMPARE(painter->brush().style(), Qt::Dense2Pattern);
            QVERIFY(!painter->testRenderHint(QPainter::Antialiasing));
        });
    }

    void theFrameIsAPixelInsideButAtTheBottom()
    {
        const IconPainter icons;
        const QRect rect(20, 5, 60, 20);
        const QImage image =
            drawn([&](QPainter *painter) { icons.drawSelectEffect(painter, rect, Qt::blue); });
        const QColor blue(Qt::blue);
        const QColor white(Qt::white);
        // The pen of two pixels lies on either side of the frame's line.
        const int middleX = rect.center().x();
        const int middleY = rect.center().y();
        for (const int x : {20, 21, 78, 79})
            QCOMPARE(image.pixelColor(x, middleY), blue);
        for (const int x : {19, 22, 77, 80})
            QCOMPARE(image.pixelColor(x, middleY), white);
        for (const int y : {5, 6, 24, 25})
            QCOMPARE(image.pixelColor(middleX, y), blue);
        for (const int y : {4, 7, 23, 26})
            QCOMPARE(image.pixelColor(middleX, y), white);
    }

    void theFrameHasRoundCornersAndKeepsTheBrush()
    {
        const IconPainter icons;
        const QImage image = drawn([&](QPainter *painter) {
            painter->setBrush(Qt::yellow);
            icons.drawSelectEffect(painter, QRect(20, 5, 60, 20), Qt::blue);
            QCOMPARE(painter->brush().color(), QColor(Qt::yellow));
            QCOMPARE(painter->pen().color(), QColor(Qt::black));
            QVERIFY(!painter->testRenderHint(QPainter::Antialiasing));
        });
        const QImage expected = drawn([](QPainter *painter) {
            painter->setRenderHint(QPainter::Antialiasing);
            painter->setPen(QPen(QColor(Qt::blue), 2));
            painter->setBrush(Qt::yellow);
            painter->drawRoundedRect(QRect(21, 6, 58, 19), 4.0, 4.0);
        });
        QCOMPARE(image, expected);
        QCOMPARE(image.pixelColor(50, 15), QColor(Qt::yellow));
        QCOMPARE(image.pixelColor(20, 5), QColor(Qt::white));
    }

    void noPainterIsSurvived()
    {
        IconPainter icons;
        icons.drawTxt(nullptr, Box, QStringLiteral("Sea"), Left);
        icons.drawProgress(nullptr, Box, Qt::green, Box, Qt::blue);
        icons.drawSelectEffect(nullptr, Box, Qt::blue);
        icons.draw(nullptr, QStyleOptionViewItem(), QModelIndex(), misNormal);
        QVERIFY(icons.size().isEmpty());
    }
};

NX_TEST_MAIN_WIDGETS(tst_INxItemMediaIconBasePainter)
#include "tst_INxItemMediaIconBasePainter.moc"
