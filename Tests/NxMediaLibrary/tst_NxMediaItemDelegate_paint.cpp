// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include "MediaDelegateStand.h"
#include "TextLines.h"

Q_DECLARE_METATYPE(QStyle::State)

namespace {

const QStyle::State plain = QStyle::State_Enabled;
const QStyle::State hovered = plain | QStyle::State_MouseOver;
const QStyle::State selected = plain | QStyle::State_Selected;

QModelIndex file(const MediaDelegateStand &stand)
{
    return stand.at(QStringLiteral("file"));
}

} // namespace

/// Which painter draws a row, and how.
class tst_NxMediaItemDelegate_paint : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theStateIsWhatTheViewShows_data();
    void theStateIsWhatTheViewShows();
    void thePainterGetsTheViewsOption();
    void theHoveredRowIsRemembered_data();
    void theHoveredRowIsRemembered();
    void aRowThatIsDrawnUnhoveredIsForgottenFirst();
    void eachPainterRemembersItsOwnRow();
    void rowsAreDrawnByTheirPainter_data();
    void rowsAreDrawnByTheirPainter();
    void viewMoreRowsAreDrawnByTheirOwnPainter();
    void whatCannotBeDrawnIsLeftOut();
    void withoutPainterNothingIsDrawn();
};

void tst_NxMediaItemDelegate_paint::theStateIsWhatTheViewShows_data()
{
    QTest::addColumn<QStyle::State>("shown");
    QTest::addColumn<int>("state");
    QTest::newRow("at rest") << plain << int(misNormal);
    QTest::newRow("hovered") << hovered << int(misHovered);
    QTest::newRow("selected") << selected << int(misSelected);
    QTest::newRow("selected and hovered") << (selected | hovered) << int(misSelectedHovered);
    QTest::newRow("disabled") << QStyle::State(QStyle::State_None) << int(misDisabled);
    QTest::newRow("disabled and hovered")
        << QStyle::State(QStyle::State_MouseOver) << int(misDisabled);
    QTest::newRow("disabled and selected")
        << QStyle::State(QStyle::State_Selected) << int(misDisabled);
    QTest::newRow("disabled in all ways")
        << (QStyle::State_MouseOver | QStyle::State_Selected) << int(misDisabled);
    QTest::newRow("in a focused window")
        << (plain | QStyle::State_Active | QStyle::State_HasFocus | QStyle::State_Open)
        << int(misNormal);
}

void tst_NxMediaItemDelegate_paint::theStateIsWhatTheViewShows()
{
    QFETCH(QStyle::State, shown);
    QFETCH(int, state);
    MediaDelegateStand stand;
    stand.paint(stand.at(QStringLiteral("resource")), shown);
    QCOMPARE(stand.take(), QStringList{QStringLiteral("media draws 2 in state %1").arg(state)});
}

void tst_NxMediaItemDelegate_paint::thePainterGetsTheViewsOption()
{
    const MediaDelegateStand stand;
    stand.painter->setInk(Qt::red);
    QImage image(400, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter canvas(&image);
    stand.delegate->paint(&canvas, stand.option(file(stand)), file(stand));
    QCOMPARE(image.pixelColor(30, 50), QColor(Qt::red));
    QCOMPARE(image.pixelColor(33, 53), QColor(Qt::red));
    QCOMPARE(image.pixelColor(29, 50), QColor(Qt::white));
    QCOMPARE(image.pixelColor(34, 54), QColor(Qt::white));
}

void tst_NxMediaItemDelegate_paint::theHoveredRowIsRemembered_data()
{
    QTest::addColumn<QStyle::State>("first");
    QTest::addColumn<QStyle::State>("then");
    QTest::addColumn<bool>("isSameRow");
    QTest::addColumn<int>("hoverRow");
    const QStyle::State both = selected | hovered;
    const QStyle::State disabled = QStyle::State_MouseOver;
    QTest::newRow("never hovered") << plain << selected << true << -1;
    QTest::newRow("hovered") << plain << hovered << true << 0;
    QTest::newRow("selected and hovered") << plain << both << true << 0;
    QTest::newRow("hovered no more") << hovered << plain << true << -1;
    QTest::newRow("selected no longer hovered") << both << selected << true << -1;
    QTest::newRow("disabled") << hovered << disabled << true << -1;
    QTest::newRow("another row drawn") << hovered << plain << false << 0;
    QTest::newRow("another row selected") << hovered << selected << false << 0;
    QTest::newRow("another row hovered") << hovered << hovered << false << 2;
}

void tst_NxMediaItemDelegate_paint::theHoveredRowIsRemembered()
{
    QFETCH(QStyle::State, first);
    QFETCH(QStyle::State, then);
    QFETCH(bool, isSameRow);
    QFETCH(int, hoverRow);
    const MediaDelegateStand stand;
    stand.paint(file(stand), first);
    stand.paint(isSameRow ? file(stand) : stand.at(QStringLiteral("resource")), then);
    QCOMPARE(stand.painter->getHoverItem(), hoverRow);
}

void tst_NxMediaItemDelegate_paint::aRowThatIsDrawnUnhoveredIsForgottenFirst()
{
    class Asking : public RecordingPainter<>
    {
    public:
        using RecordingPainter::RecordingPainter;
        void draw(QPainter *, const QStyleOptionViewItem &, const QModelIndex &,
                  NxMediaItemState) const override
        {
            hoverAtDraw.append(getHoverItem());
        }
        mutable QList<int> hoverAtDraw;
    };
    MediaDelegateStand stand;
    auto *painter = new Asking(QStringLiteral("asking"), &stand.journal);
    stand.delegate->setItemPainter(painter);
    stand.paint(file(stand), hovered);
    stand.paint(file(stand), plain);
    QCOMPARE(painter->hoverAtDraw, QList<int>({0, -1}));
}

void tst_NxMediaItemDelegate_paint::eachPainterRemembersItsOwnRow()
{
    const MediaDelegateStand stand;
    const QModelIndex group = stand.at(QStringLiteral("group"));
    const INxItemBasePainter *groups = stand.delegate->getItemPainter(group);
    stand.paint(file(stand), hovered);
    stand.paint(group, hovered);
    QCOMPARE(stand.painter->getHoverItem(), 0);
    QCOMPARE(groups->getHoverItem(), group.row());
    stand.paint(group, plain);
    QCOMPARE(stand.painter->getHoverItem(), 0);
    QCOMPARE(groups->getHoverItem(), -1);
}

void tst_NxMediaItemDelegate_paint::rowsAreDrawnByTheirPainter_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("drawn");
    const auto newRow = [](const char *row, const char *drawn) {
        QTest::newRow(row) << QString::fromLatin1(row) << QString::fromLatin1(drawn);
    };
    newRow("file", "media draws 0 in state 0");
    newRow("gone", "media draws 1 in state 0");
    newRow("resource", "media draws 2 in state 0");
    newRow("nothing", "");
    newRow("group", "groups draws 4 in state 0");
    newRow("import", "media draws 5 in state 0");
    newRow("more", "");
    newRow("folder", "media draws 7 in state 0");
    newRow("classification", "media draws 8 in state 0");
}

void tst_NxMediaItemDelegate_paint::rowsAreDrawnByTheirPainter()
{
    QFETCH(QString, row);
    QFETCH(QString, drawn);
    MediaDelegateStand stand;
    stand.delegate->setGroupPainter(
        new RecordingPainter<>(QStringLiteral("groups"), &stand.journal));
    stand.paint(stand.at(row), plain);
    QCOMPARE(stand.take().join(QStringLiteral(", ")), drawn);
}

void tst_NxMediaItemDelegate_paint::viewMoreRowsAreDrawnByTheirOwnPainter()
{
    MediaDelegateStand stand;
    const QModelIndex more = stand.at(QStringLiteral("more"));
    QImage image(400, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    const QImage before = image;
    {
        QPainter canvas(&image);
        QStyleOptionViewItem option = stand.option(more);
        option.state = hovered;
        stand.delegate->paint(&canvas, option, more);
    }
    QVERIFY(image != before);
    QCOMPARE(stand.delegate->getItemPainter(more)->getHoverItem(), more.row());
    QCOMPARE(stand.painter->getHoverItem(), -1);
    QCOMPARE(stand.take(), QStringList());
}

void tst_NxMediaItemDelegate_paint::whatCannotBeDrawnIsLeftOut()
{
    MediaDelegateStand stand;
    stand.paint(file(stand), hovered);
    stand.take();
    stand.delegate->paint(nullptr, stand.option(file(stand)), file(stand));
    stand.paint(QModelIndex(), plain);
    stand.paint(stand.at(QStringLiteral("nothing")), hovered);
    QCOMPARE(stand.take(), QStringList());
    QCOMPARE(stand.painter->getHoverItem(), 0);
}

void tst_NxMediaItemDelegate_paint::withoutPainterNothingIsDrawn()
{
    MediaDelegateStand stand;
    stand.delegate->setItemPainter(nullptr);
    stand.delegate->setGroupPainter(nullptr);
    stand.take();
    QImage image(400, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    const QImage before = image;
    {
        QPainter canvas(&image);
        for (const char *row : {"file", "group", "import"}) {
            const QModelIndex index = stand.at(QLatin1String(row));
            stand.delegate->paint(&canvas, stand.option(index), index);
        }
    }
    QCOMPARE(image, before);
    QCOMPARE(stand.take(), QStringList());
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaItemDelegate_paint)
#include "tst_NxMediaItemDelegate_paint.moc"
