// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/NxCustomDelegate.h>

#include <NxMediaLibrary/delegate/NxGifPreviewHelper.h>
#include <NxWidgets/NxMaskScope.h>

#include <Support/NxTestMain.h>

#include <QApplication>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QStandardItemModel>
#include <QTest>

#include <functional>
#include <memory>
#include <utility>

#include "RecordingPainter.h"
#include "TextLines.h"

namespace {

/// A delegate that lets somebody else do something whenever it hears of the mouse.
class Host : public NxCustomDelegate
{
public:
    using NxCustomDelegate::itemMouseEvent;
    using NxCustomDelegate::itemPainter;
    using NxCustomDelegate::takeItemPainter;

    std::function<void()> deed;
    QStringList mice;

protected:
    void mouseEventHandle(const QMouseEvent *event, const QPoint &position,
                          const QModelIndex &index) override
    {
        mice.append(QStringLiteral("%1 at %2 %3 of row %4")
                        .arg(event->type())
                        .arg(position.x())
                        .arg(position.y())
                        .arg(index.row()));
        NxCustomDelegate::mouseEventHandle(event, position, index);
        if (const auto act = std::exchange(deed, nullptr))
            act();
    }
};

/// A tree of boxes to check, first and second with one below each, and the delegate of it.
struct Stand
{
    Stand()
    {
        for (const char *name : {"first", "second"}) {
            QStandardItem *item = box(name);
            item->appendRow(box("below"));
            model->appendRow(item);
        }
        delegate->takeItemPainter(painter);
        const auto note = [this](const QModelIndex &index) {
            journal.append(QStringLiteral("repaint ") + index.data().toString());
        };
        QObject::connect(delegate.get(), &NxCustomDelegate::sigRepaint, note);
        QObject::connect(delegate.get(), &NxCustomDelegate::sigRepaintAll,
                         [this] { journal.append(QStringLiteral("repaint all")); });
    }

    static QStandardItem *box(const char *name)
    {
        auto *item = new QStandardItem(QString::fromLatin1(name));
        item->setCheckable(true);
        return item;
    }
    QModelIndex top(int row) const { return model->index(row, 0); }
    QModelIndex below(int row) const { return model->index(0, 0, top(row)); }
    static QStyleOptionViewItem option()
    {
        QStyleOptionViewItem option;
        option.rect = QRect(30, 50, 300, 24);
        option.state = QStyle::State_Enabled;
        return option;
    }
    /// The place of a row's box, from the row's top left corner.
    QPoint boxOf(const QModelIndex &index) const
    {
        class Opened : public QStyledItemDelegate
        {
        public:
            using QStyledItemDelegate::initStyleOption;
        };
        QStyleOptionViewItem shown = option();
        Opened().initStyleOption(&shown, index);
        const QRect box =
            QApplication::style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &shown);
        return box.center() - shown.rect.topLeft();
    }
    bool send(const QModelIndex &index, QEvent::Type type, const QPoint &place,
              Qt::MouseButton button = Qt::LeftButton) const
    {
        QMouseEvent event(type, option().rect.topLeft() + place, button, button, Qt::NoModifier);
        return delegate->editorEvent(&event, model.get(), option(), index);
    }
    QStringList take() { return std::exchange(journal, {}); }

    QStringList journal;
    std::unique_ptr<QStandardItemModel> model = std::make_unique<QStandardItemModel>();
    RecordingPainter<> *const painter =
        new RecordingPainter<>(QStringLiteral("painter"), &journal); // The delegate owns it.
    std::unique_ptr<Host> delegate = std::make_unique<Host>();
};

/// Two rows whose indexes are outdated after a reset, and what was asked about last.
class Generations : public QAbstractListModel
{
public:
    int rowCount(const QModelIndex &) const override { return 2; }
    QModelIndex index(int row, int column, const QModelIndex &) const override
    {
        return createIndex(row, column, quintptr(generation));
    }
    QVariant data(const QModelIndex &, int) const override { return {}; }
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        asked = QStringLiteral("row %1 of generation %2").arg(index.row()).arg(index.internalId());
        return QAbstractListModel::flags(index);
    }
    void renew()
    {
        beginResetModel();
        ++generation;
        endResetModel();
    }

    int generation = 1;
    mutable QString asked;
};

bool isChecked(const QModelIndex &index)
{
    return index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
}

} // namespace

Q_DECLARE_METATYPE(QEvent::Type)
Q_DECLARE_METATYPE(Qt::MouseButton)

class tst_NxCustomDelegate : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void rowsAreAsLargeAsThePainterSays();
    void withoutPainterRowsAreAsLargeAsTheStyleSays();
    void thePlaceOfTheMouseCountsFromTheRow();
    void thePainterLearnsOfTheMouse();
    void rowsAreRepaintedWhenTheMouseChangesThem();
    void withoutPainterTheMouseChangesNothing();
    void otherEventsAreNotForThePainter();
    void anInvalidIndexIsNotForThePainter();
    void theStylesBoxesWorkAsWell_data();
    void theStylesBoxesWorkAsWell();
    void theEventGoesOnToTheRowThatStandsThereNow();
    void theEventGoesOnWithANewIndex();
    void aModelThatEmptiesEndsTheEvent();
    void aParentThatGoesEndsTheEvent();
    void aModelThatDiesEndsTheEvent();
    void aDelegateThatDiesEndsTheEvent();
    void aMouseEventMeans_data();
    void aMouseEventMeans();
    void aDialogKeepsClicksAway_data();
    void aDialogKeepsClicksAway();
    void thePreviewRepaintsItsRow();
    void gifsRepaintAllViews();
    void aDeadDelegateRepaintsNothing();
    void theSignalsStandInTheirOrder();
};

void tst_NxCustomDelegate::rowsAreAsLargeAsThePainterSays()
{
    const Stand stand;
    stand.painter->setSize(QSize(160, 120));
    for (const QModelIndex &index : {stand.top(0), stand.top(1), stand.below(0), QModelIndex()})
        QCOMPARE(stand.delegate->sizeHint(Stand::option(), index), QSize(160, 120));
}

void tst_NxCustomDelegate::withoutPainterRowsAreAsLargeAsTheStyleSays()
{
    const Stand stand;
    stand.delegate->takeItemPainter(nullptr);
    const QStyledItemDelegate ground;
    QCOMPARE(stand.delegate->sizeHint(Stand::option(), stand.top(0)),
             ground.sizeHint(Stand::option(), stand.top(0)));
}

void tst_NxCustomDelegate::thePlaceOfTheMouseCountsFromTheRow()
{
    const Stand stand;
    stand.send(stand.top(1), QEvent::MouseMove, QPoint(200, 7));
    stand.send(stand.below(1), QEvent::MouseButtonPress, QPoint(0, 0));
    QCOMPARE(stand.delegate->mice, lines({"5 at 200 7 of row 1", "2 at 0 0 of row 0"}));
}

void tst_NxCustomDelegate::thePainterLearnsOfTheMouse()
{
    const Stand stand;
    stand.painter->addArea(7);
    stand.send(stand.top(0), QEvent::MouseButtonPress, QPoint(5, 5));
    QCOMPARE(stand.painter->mouseInChild(), 0);
    QCOMPARE(stand.painter->childStatus(0), mcsPressed);
    QCOMPARE(stand.painter->useEvent(), 7);
    QCOMPARE(stand.painter->useEventCondition(), mecPress);
}

void tst_NxCustomDelegate::rowsAreRepaintedWhenTheMouseChangesThem()
{
    Stand stand;
    stand.painter->addArea(0);
    stand.send(stand.top(0), QEvent::MouseMove, QPoint(100, 5));
    QCOMPARE(stand.take(), QStringList());
    stand.send(stand.top(0), QEvent::MouseMove, QPoint(5, 5));
    QCOMPARE(stand.take(), lines({"repaint first"}));
    stand.send(stand.top(1), QEvent::MouseMove, QPoint(6, 6));
    QCOMPARE(stand.take(), QStringList());
    stand.painter->needRepaintOnMouseMove();
    stand.send(stand.top(1), QEvent::MouseMove, QPoint(6, 6));
    QCOMPARE(stand.take(), lines({"repaint second"}));
}

void tst_NxCustomDelegate::withoutPainterTheMouseChangesNothing()
{
    Stand stand;
    stand.delegate->takeItemPainter(nullptr);
    stand.take();
    QVERIFY(!stand.send(stand.top(0), QEvent::MouseButtonPress, QPoint(250, 5)));
    QCOMPARE(stand.take(), QStringList());
}

void tst_NxCustomDelegate::otherEventsAreNotForThePainter()
{
    const Stand stand;
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QVERIFY(stand.delegate->editorEvent(&space, stand.model.get(), Stand::option(), stand.top(0)));
    QVERIFY(isChecked(stand.top(0)));
    QEvent leave(QEvent::Leave);
    QVERIFY(!stand.delegate->editorEvent(&leave, stand.model.get(), Stand::option(), stand.top(0)));
    QCOMPARE(stand.delegate->mice, QStringList());
}

void tst_NxCustomDelegate::anInvalidIndexIsNotForThePainter()
{
    const Stand stand;
    QVERIFY(!stand.send(QModelIndex(), QEvent::MouseButtonPress, QPoint(5, 5)));
    QCOMPARE(stand.delegate->mice, QStringList());
}

void tst_NxCustomDelegate::theStylesBoxesWorkAsWell_data()
{
    QTest::addColumn<bool>("isTop");
    QTest::newRow("at the top") << true;
    QTest::newRow("below") << false;
}

void tst_NxCustomDelegate::theStylesBoxesWorkAsWell()
{
    QFETCH(bool, isTop);
    const Stand stand;
    const QModelIndex row = isTop ? stand.top(1) : stand.below(1);
    const QModelIndex other = isTop ? stand.below(1) : stand.top(1);
    QVERIFY(stand.send(row, QEvent::MouseButtonRelease, stand.boxOf(row)));
    QVERIFY(isChecked(row));
    QVERIFY(!isChecked(other));
    QCOMPARE(stand.delegate->mice.size(), 1);
}

void tst_NxCustomDelegate::theEventGoesOnToTheRowThatStandsThereNow()
{
    const Stand stand;
    stand.delegate->deed = [&stand] { stand.model->removeRow(0); };
    QVERIFY(stand.send(stand.top(0), QEvent::MouseButtonRelease, stand.boxOf(stand.top(0))));
    QCOMPARE(stand.top(0).data().toString(), QStringLiteral("second"));
    QVERIFY(isChecked(stand.top(0)));
}

void tst_NxCustomDelegate::theEventGoesOnWithANewIndex()
{
    const Stand stand;
    Generations model;
    stand.delegate->deed = [&model] { model.renew(); };
    QMouseEvent event(QEvent::MouseMove, QPointF(), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    const QModelIndex second = model.index(1, 0, {});
    QVERIFY(!stand.delegate->editorEvent(&event, &model, Stand::option(), second));
    QCOMPARE(model.asked, QStringLiteral("row 1 of generation 2"));
}

void tst_NxCustomDelegate::aModelThatEmptiesEndsTheEvent()
{
    const Stand stand;
    stand.delegate->deed = [&stand] { stand.model->clear(); };
    QVERIFY(!stand.send(stand.below(1), QEvent::MouseButtonRelease, stand.boxOf(stand.below(1))));
    QCOMPARE(stand.model->rowCount(), 0);
}

void tst_NxCustomDelegate::aParentThatGoesEndsTheEvent()
{
    const Stand stand;
    stand.delegate->deed = [&stand] { stand.model->removeRow(0); };
    QVERIFY(!stand.send(stand.below(0), QEvent::MouseButtonRelease, stand.boxOf(stand.below(0))));
    QVERIFY(!isChecked(stand.top(0)));
}

void tst_NxCustomDelegate::aModelThatDiesEndsTheEvent()
{
    Stand stand;
    stand.delegate->deed = [&stand] { stand.model.reset(); };
    QVERIFY(!stand.send(stand.top(0), QEvent::MouseButtonRelease, stand.boxOf(stand.top(0))));
    QVERIFY(!stand.model);
}

void tst_NxCustomDelegate::aDelegateThatDiesEndsTheEvent()
{
    Stand stand;
    stand.delegate->deed = [&stand] { stand.delegate.reset(); };
    QVERIFY(!stand.send(stand.top(0), QEvent::MouseButtonRelease, stand.boxOf(stand.top(0))));
    QVERIFY(!isChecked(stand.top(0)));
    QCOMPARE(stand.take(), lines({"painter dies"}));
}

void tst_NxCustomDelegate::aMouseEventMeans_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<int>("meaning");
    QTest::addColumn<int>("belowADialog");
    const auto newRow = [](const char *name, QEvent::Type type, Qt::MouseButton button,
                           NxMediaItemMouseEvent meaning, NxMediaItemMouseEvent belowADialog) {
        QTest::newRow(name) << type << button << int(meaning) << int(belowADialog);
    };
    newRow("move", QEvent::MouseMove, Qt::NoButton, mmeMove, mmeMove);
    newRow("drag", QEvent::MouseMove, Qt::LeftButton, mmeMove, mmeMove);
    newRow("left press", QEvent::MouseButtonPress, Qt::LeftButton, mmeLeftPress, mmeNone);
    newRow("right press", QEvent::MouseButtonPress, Qt::RightButton, mmeOtherPress, mmeNone);
    newRow("middle press", QEvent::MouseButtonPress, Qt::MiddleButton, mmeOtherPress, mmeNone);
    newRow("back press", QEvent::MouseButtonPress, Qt::BackButton, mmeOtherPress, mmeNone);
    newRow("left release", QEvent::MouseButtonRelease, Qt::LeftButton, mmeLeftRelease, mmeNone);
    newRow("right release", QEvent::MouseButtonRelease, Qt::RightButton, mmeOtherRelease, mmeNone);
    newRow("double click", QEvent::MouseButtonDblClick, Qt::LeftButton, mmeDoubleClick,
           mmeDoubleClick);
    newRow("right double click", QEvent::MouseButtonDblClick, Qt::RightButton, mmeDoubleClick,
           mmeDoubleClick);
    newRow("on a frame", QEvent::NonClientAreaMouseButtonPress, Qt::LeftButton, mmeNone, mmeNone);
}

void tst_NxCustomDelegate::aMouseEventMeans()
{
    QFETCH(QEvent::Type, type);
    QFETCH(Qt::MouseButton, button);
    QFETCH(int, meaning);
    const QMouseEvent event(type, QPointF(), button, button, Qt::NoModifier);
    QCOMPARE(int(Host::itemMouseEvent(&event)), meaning);
}

void tst_NxCustomDelegate::aDialogKeepsClicksAway_data()
{
    aMouseEventMeans_data();
}

void tst_NxCustomDelegate::aDialogKeepsClicksAway()
{
    QFETCH(QEvent::Type, type);
    QFETCH(Qt::MouseButton, button);
    QFETCH(int, meaning);
    QFETCH(int, belowADialog);
    const QMouseEvent event(type, QPointF(), button, button, Qt::NoModifier);
    {
        const NxMaskScope dialog;
        QCOMPARE(int(Host::itemMouseEvent(&event)), belowADialog);
    }
    QCOMPARE(int(Host::itemMouseEvent(&event)), meaning);
}

void tst_NxCustomDelegate::thePreviewRepaintsItsRow()
{
    Stand stand;
    QCOMPARE(stand.painter->preview(), stand.delegate->previewFrameHelper());
    Q_EMIT stand.delegate->previewFrameHelper()->sigUpdate(stand.top(1));
    QCOMPARE(stand.take(), lines({"repaint second"}));
}

void tst_NxCustomDelegate::gifsRepaintAllViews()
{
    Stand stand;
    Stand another;
    Q_EMIT NxGifPreviewHelper::getInstance()->sigUpdate();
    QCOMPARE(stand.take(), lines({"repaint all"}));
    QCOMPARE(another.take(), lines({"repaint all"}));
}

void tst_NxCustomDelegate::aDeadDelegateRepaintsNothing()
{
    Stand stand;
    stand.delegate.reset();
    stand.take();
    Q_EMIT NxGifPreviewHelper::getInstance()->sigUpdate();
    QCOMPARE(stand.take(), QStringList());
}

void tst_NxCustomDelegate::theSignalsStandInTheirOrder()
{
    const QMetaObject &meta = NxCustomDelegate::staticMetaObject;
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(),
             QByteArray("sigRepaint(QModelIndex)"));
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(), QByteArray("sigRepaintAll()"));
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
}

NX_TEST_MAIN_WIDGETS(tst_NxCustomDelegate)
#include "tst_NxCustomDelegate.moc"
