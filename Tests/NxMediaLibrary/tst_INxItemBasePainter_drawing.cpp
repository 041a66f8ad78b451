// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Support/NxTestMain.h>

#include <QImage>
#include <QPainter>
#include <QTest>

#include "PlainPainter.h"
#include "RowCanvas.h"

namespace {

QImage canvas()
{
    return blankCanvas(QSize(40, 40));
}

QPixmap filled(Qt::GlobalColor color)
{
    QPixmap picture(1, 1);
    picture.fill(color);
    return picture;
}

} // namespace

/// The styles of rows, and what painters draw with.
class tst_INxItemBasePainter_drawing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aStateIsDrawnInItsStyle()
    {
        PlainPainter rows;
        rows.setPaintColor(1, Qt::white, Qt::white, rowFont(10), misNormal);
        rows.setPaintColor(3, Qt::red, Qt::green, rowFont(17), misSelected);
        QImage image = canvas();
        QPainter painter(&image);
        rows.adjustDrawingStyle(&painter, misSelected);
        QCOMPARE(painter.pen().width(), 3);
        QCOMPARE(painter.pen().color(), QColor(Qt::red));
        QCOMPARE(painter.brush().color(), QColor(Qt::green));
        QCOMPARE(painter.font().pixelSize(), 17);
    }

    void aStateWithoutAStyleIsDrawnAsNormal_data()
    {
        QTest::addColumn<int>("state");
        QTest::newRow("hovered") << int(misHovered);
        QTest::newRow("selected and hovered") << int(misSelectedHovered);
        QTest::newRow("disabled") << int(misDisabled);
        QTest::newRow("unknown") << 77;
    }
    void aStateWithoutAStyleIsDrawnAsNormal()
    {
        QFETCH(int, state);
        PlainPainter rows;
        rows.setPaintColor(2, Qt::blue, Qt::yellow, rowFont(12), misNormal);
        rows.setPaintColor(3, Qt::red, Qt::green, rowFont(17), misSelected);
        QImage image = canvas();
        QPainter painter(&image);
        rows.adjustDrawingStyle(&painter, NxMediaItemState(state));
        QCOMPARE(painter.pen().width(), 2);
        QCOMPARE(painter.pen().color(), QColor(Qt::blue));
        QCOMPARE(painter.brush().color(), QColor(Qt::yellow));
        QCOMPARE(painter.font().pixelSize(), 12);
    }

    void withoutAnyStyleThePenIsThin()
    {
        const PlainPainter rows;
        QImage image = canvas();
        QPainter painter(&image);
        painter.setPen(QPen(Qt::red, 5, Qt::DotLine));
        rows.adjustDrawingStyle(&painter, misSelected);
        QCOMPARE(painter.pen().width(), 0);
        QCOMPARE(painter.pen().style(), Qt::DotLine);
        QCOMPARE(painter.font(), QFont());
    }

    void theLinesOfPenAndBrushStay_data()
    {
        QTest::addColumn<int>("pen");
        QTest::addColumn<int>("brush");
        QTest::newRow("none") << int(Qt::NoPen) << int(Qt::NoBrush);
        QTest::newRow("patterns") << int(Qt::DashLine) << int(Qt::Dense4Pattern);
    }
    void theLinesOfPenAndBrushStay()
    {
        QFETCH(int, pen);
        QFETCH(int, brush);
        PlainPainter rows;
        rows.setPaintColor(3, Qt::red, Qt::green, rowFont(17), misNormal);
        QImage image = canvas();
        QPainter painter(&image);
        QPen drawn{Qt::PenStyle(pen)};
        drawn.setCapStyle(Qt::RoundCap);
        painter.setPen(drawn);
        painter.setBrush(QBrush(Qt::black, Qt::BrushStyle(brush)));
        rows.adjustDrawingStyle(&painter, misNormal);
        QCOMPARE(int(painter.pen().style()), pen);
        QCOMPARE(painter.pen().capStyle(), Qt::RoundCap);
        QCOMPARE(int(painter.brush().style()), brush);
        QCOMPARE(painter.brush().color(), QColor(Qt::green));
    }

    void aStyleGivenAgainReplacesTheOneBefore()
    {
        PlainPainter rows;
        rows.setPaintColor(3, Qt::red, Qt::green, rowFont(17), misHovered);
        rows.setPaintColor(1, Qt::cyan, Qt::blue, rowFont(9), misHovered);
        QImage image = canvas();
        QPainter painter(&image);
        rows.adjustDrawingStyle(&painter, misHovered);
        QCOMPARE(painter.pen().width(), 1);
        QCOMPARE(painter.pen().color(), QColor(Qt::cyan));
        QCOMPARE(painter.brush().color(), QColor(Qt::blue));
        QCOMPARE(painter.font().pixelSize(), 9);
    }

    void everyStatusHasItsPicture_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QColor>("color");
        QTest::newRow("untouched") << int(mcsInitial) << QColor(Qt::green);
        QTest::newRow("disabled") << int(mcsDisabled) << QColor(Qt::red);
        QTest::newRow("normal") << int(mcsNormal) << QColor(Qt::green);
        QTest::newRow("hovered") << int(mcsHovered) << QColor(Qt::blue);
        QTest::newRow("pressed") << int(mcsPressed) << QColor(Qt::yellow);
        QTest::newRow("unknown") << 5 << QColor(Qt::red);
        QTest::newRow("below all") << -1 << QColor(Qt::red);
    }
    void everyStatusHasItsPicture()
    {
        QFETCH(int, status);
        const PlainPainter rows;
        const QPixmap picture =
            rows.getPicture(NxMediaItemChildStatus(status), filled(Qt::red), filled(Qt::blue),
                            filled(Qt::green), filled(Qt::yellow));
        QTEST(picture.toImage().pixelColor(0, 0), "color");
    }

    void nothingIsDrawnOutsideARoundedClip()
    {
        const PlainPainter rows;
        QImage image = canvas();
        QPainter painter(&image);
        QRect rect(10, 10, 20, 20);
        rows.roundedRectClip(&painter, rect, 8.0, 8.0);
        painter.fillRect(image.rect(), Qt::black);
        painter.end();
        QCOMPARE(rect, QRect(10, 10, 20, 20));
        for (const QPoint &corner :
             {QPoint(10, 10), QPoint(29, 10), QPoint(10, 29), QPoint(29, 29)})
            QCOMPARE(image.pixelColor(corner), QColor(Qt::white));
        for (const QPoint &edge : {QPoint(20, 10), QPoint(10, 20), QPoint(29, 20), QPoint(20, 29)})
            QCOMPARE(image.pixelColor(edge), QColor(Qt::black));
        for (const QPoint &beyond : {QPoint(20, 9), QPoint(9, 20), QPoint(30, 20), QPoint(20, 30)})
            QCOMPARE(image.pixelColor(beyond), QColor(Qt::white));
    }

    void theCornersOfAClipAreAsWideAndHighAsAskedFor()
    {
        const PlainPainter rows;
        QImage image = canvas();
        QPainter painter(&image);
        QRect rect(0, 0, 40, 40);
        rows.roundedRectClip(&painter, rect, 16.0, 2.0);
        painter.fillRect(image.rect(), Qt::black);
        painter.end();
        QCOMPARE(image.pixelColor(2, 0), QColor(Qt::white));
        QCOMPARE(image.pixelColor(16, 0), QColor(Qt::black));
        QCOMPARE(image.pixelColor(0, 3), QColor(Qt::black));
    }

    void aRoundedClipTakesThePlaceOfTheOneBefore()
    {
        const PlainPainter rows;
        QImage image = canvas();
        QPainter painter(&image);
        painter.setClipRect(QRect(0, 0, 5, 5));
        QRect rect(10, 10, 20, 20);
        rows.roundedRectClip(&painter, rect, 4.0, 4.0);
        painter.fillRect(image.rect(), Qt::black);
        painter.end();
        QCOMPARE(image.pixelColor(20, 20), QColor(Qt::black));
        QCOMPARE(image.pixelColor(2, 2), QColor(Qt::white));
    }

    void noPainterIsSurvived()
    {
        PlainPainter rows;
        rows.setPaintColor(3, Qt::red, Qt::green, rowFont(17), misNormal);
        rows.adjustDrawingStyle(nullptr, misNormal);
        QRect rect(10, 10, 20, 20);
        rows.roundedRectClip(nullptr, rect, 4.0, 4.0);
        QCOMPARE(rect, QRect(10, 10, 20, 20));
    }
};

NX_TEST_MAIN_WIDGETS(tst_INxItemBasePainter_drawing)
#include "tst_INxItemBasePainter_drawing.moc"
