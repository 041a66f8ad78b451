// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/NxFolderTreeItemPainter.h>

#include <Support/NxTestMain.h>

#include <QFontMetrics>
#include <QModelIndex>
#include <QPainter>
#include <QStyleOptionViewItem>
#include <QTest>

namespace {

QVector<int> valuesOf(const NxFolderTreeItemPainter::Indents &indents)
{
    return {indents.first, indents.second, indents.third, indents.fourth};
}

} // namespace

class tst_NxFolderTreeItemPainter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void hasTheIndentsOfAPlainTreeAtFirst();
    void takesFourIndentsInTheirOrder();
    void aNameTakesAsMuchRoomAsItsFontNeeds_data();
    void aNameTakesAsMuchRoomAsItsFontNeeds();
    void drawsNothingByItself();
    void completesNothingUnderTheMouse();
    void isOwnedByItsParent();
};

void tst_NxFolderTreeItemPainter::hasTheIndentsOfAPlainTreeAtFirst()
{
    const NxFolderTreeItemPainter painter;
    QCOMPARE(valuesOf(painter.indent()), QVector<int>({4, 0, 0, 0}));
    QCOMPARE(painter.size(), QSize());
    QVERIFY(painter.childIds().isEmpty());
}

void tst_NxFolderTreeItemPainter::takesFourIndentsInTheirOrder()
{
    NxFolderTreeItemPainter painter;
    painter.setIndent(1, -2, 30, 400);
    QCOMPARE(valuesOf(painter.indent()), QVector<int>({1, -2, 30, 400}));
    painter.setIndent(0, 0, 0, 0);
    QCOMPARE(valuesOf(painter.indent()), QVector<int>({0, 0, 0, 0}));
}

void tst_NxFolderTreeItemPainter::aNameTakesAsMuchRoomAsItsFontNeeds_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<QString>("text");
    QTest::newRow("no text") << QPoint(0, 0) << 12 << QString();
    QTest::newRow("a name") << QPoint(24, 40) << 12 << QStringLiteral("Holiday");
    QTest::newRow("a large font") << QPoint(24, 40) << 30 << QStringLiteral("Holiday");
    QTest::newRow("before the place of zero")
        << QPoint(-9, -100) << 16 << QStringLiteral("Holiday in the mountains");
}

void tst_NxFolderTreeItemPainter::aNameTakesAsMuchRoomAsItsFontNeeds()
{
    QFETCH(QPoint, place);
    QFETCH(int, pixelSize);
    QFETCH(QString, text);
    QFont font;
    font.setPixelSize(pixelSize);
    const QFontMetrics metrics(font);
    const NxFolderTreeItemPainter painter;
    const QRect rect = painter.getTextDrawRect(place.x(), place.y(), font, text);
    QCOMPARE(rect.topLeft(), place + QPoint(5, -4));
    QCOMPARE(rect.size(), QSize(metrics.horizontalAdvance(text) + 5, metrics.height() + 5));
}

void tst_NxFolderTreeItemPainter::drawsNothingByItself()
{
    NxFolderTreeItemPainter folders;
    folders.setSize(QSize(20, 20));
    QImage image(20, 20, QImage::Format_ARGB32);
    image.fill(Qt::green);
    const QImage before = image;
    {
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.rect = image.rect();
        folders.draw(&painter, option, QModelIndex(), misSelectedHovered);
        folders.draw(nullptr, option, QModelIndex(), misNormal);
    }
    QCOMPARE(image, before);
}

void tst_NxFolderTreeItemPainter::completesNothingUnderTheMouse()
{
    NxFolderTreeItemPainter painter;
    painter.initPaintStateInfo();
    painter.initItemChildrenInfo(1);
    painter.setSize(QSize(20, 20));
    QVERIFY(painter.childRect(0).isNull());
    painter.usageEventFromFromChild(0);
    QCOMPARE(painter.useEvent(), int(mueNone));
}

void tst_NxFolderTreeItemPainter::isOwnedByItsParent()
{
    QObject parent;
    const auto *painter = new NxFolderTreeItemPainter(&parent);
    QCOMPARE(painter->parent(), &parent);
}

NX_TEST_MAIN_WIDGETS(tst_NxFolderTreeItemPainter)
#include "tst_NxFolderTreeItemPainter.moc"
