// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaItemView.h>

#include <NxCore/NxLog.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemSelectionModel.h>
#include <NxMediaLibrary/delegate/NxGifPreviewHelper.h>
#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>
#include <NxMediaViews/NxMediaColumns.h>
#include <NxMediaViews/NxMediaItemPainter.h>
#include <NxMediaViews/NxMediaItemViewAccessible_p.h>
#include <NxMediaViews/NxMediaItemView_p.h>
#include <NxVBLModel/INxAbstractMedia.h>
#include <NxVBLModel/NxMediaIndex.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>

using namespace NXMEDIALIBRARY;

namespace {

constexpr int TileSpacing = 4; // px
constexpr int HeadAir = 14; // px, above and below the title of a group together.
constexpr int SmallestStep = 16; // px
constexpr int StepsOfLine = 3; // The wheel moves three steps a notch.

int visibleViews = 0;

} // namespace

NxMediaItemViewPrivate::NxMediaItemViewPrivate(NxMediaItemView *view)
    : q(view),
      delegate(new NxMediaItemDelegate(view)),
      painter(new NxMediaItemPainter),
      header(new QHeaderView(Qt::Horizontal, view)),
      mode(painter->viewMode())
{
    delegate->setItemPainter(painter);
    NxSkinStyle::instance()->Attach(this);
}

NxMediaItemViewPrivate::~NxMediaItemViewPrivate()
{
    disconnectModel();
    NxSkinStyle::instance()->Detach(this);
}

void NxMediaItemViewPrivate::OnSkinChangedEvent(INxSkinEvent *)
{
    q->viewport()->update();
}

void NxMediaItemViewPrivate::connectDelegate()
{
    QObject::connect(
        delegate, &NxMediaItemDelegate::sigRepaint, q,
        [this](const QModelIndex &index) { repaintRow(index.isValid() ? index.row() : hovered); });
    QObject::connect(delegate, &NxMediaItemDelegate::sigRepaintAll, q, [this] {
        const QVector<QPersistentModelIndex> rows = painter->takeGifRows();
        for (const QPersistentModelIndex &row : rows)
            repaintRow(row.row());
    });
    QObject::connect(
        delegate, &NxMediaItemDelegate::sigMediaItemEvent, q,
        [this](int usage, NxMediaItemEventCondition condition, const QModelIndex &index) {
            const QPersistentModelIndex row(index);
            Q_EMIT q->sigMediaItemEvent(usage, condition, index);
            if (usage == mueToggleGroup && row.isValid())
                toggle(row.row());
            else if (usage == mueViewMore && row.isValid())
                showMore();
        });
    QObject::connect(delegate, &NxMediaItemDelegate::sigMediaItemRenameEvent, q,
                     [this](const QModelIndex &index, const QString &name) {
                         Q_EMIT q->sigRenameWanted(mediaAt(index), name);
                     });
    QObject::connect(delegate, &NxMediaItemDelegate::sigExtraImportEvent, q, [this] {
        if (isLeftPress)
            Q_EMIT q->sigImportWanted();
    });
}

void NxMediaItemViewPrivate::connectPointer()
{
    constexpr int step = 30; // ms
    bandTimer.setInterval(step);
    QObject::connect(&bandTimer, &QTimer::timeout, q, [this] { scrollBand(); });
}

void NxMediaItemViewPrivate::connectHeader()
{
    header->setSectionsClickable(true);
    header->setSectionsMovable(true);
    header->setFirstSectionMovable(false);
    header->setStretchLastSection(true);
    header->setHighlightSections(false);
    header->setSortIndicatorShown(false);
    header->hide();
    QObject::connect(header, &QHeaderView::sectionClicked, q, [this](int column) {
        const NxMediaItemViewSortBy key =
            model ? NxMediaColumns::sortKey(model->categoryType(), column) : sbNone;
        if (key != sbNone)
            Q_EMIT q->sigSortRequested(key);
    });
    const auto widthsChanged = [this] {
        if (isList())
            layOutLater();
    };
    QObject::connect(header, &QHeaderView::sectionResized, q, widthsChanged);
    QObject::connect(header, &QHeaderView::sectionMoved, q, widthsChanged);
}

void NxMediaItemViewPrivate::disconnectModel()
{
    for (const QMetaObject::Connection &connection : connections)
        QObject::disconnect(connection);
    connections.clear();
}

void NxMediaItemViewPrivate::connectModel()
{
    disconnectModel();
    if (!model)
        return;
    connections.push_back(
        QObject::connect(model, &QAbstractItemModel::modelAboutToBeReset, q, [this] {
            rememberSelection();
            isDirty = true;
            isResetting = true;
        }));
    connections.push_back(QObject::connect(
        model, &NxMediaItemModel::sigRemoveItem, q,
        [this](const QModelIndex &, int first, int) { memory.forget(mediaOf(first)); }));
    connections.push_back(QObject::connect(model, &QObject::destroyed, q, [this] {
        forgetRows();
        fitHeader();
        q->viewport()->update();
    }));
}

void NxMediaItemViewPrivate::forgetRows()
{
    stop();
    grid = NxMediaGrid();
    memory.clear();
    editing.reset();
    edited = QPersistentModelIndex();
    folded.clear();
    folder = nullptr;
    pressed = nullptr;
    hovered = -1;
    currentRow = -1;
    isSelectionWanted = false;
    isShowWanted = false;
    isResetting = false;
    isDirty = true;
}

NxMediaItemSelectionModel *NxMediaItemViewPrivate::selection() const
{
    return qobject_cast<NxMediaItemSelectionModel *>(q->selectionModel());
}

void NxMediaItemViewPrivate::retranslate()
{
    q->setAccessibleName(NxMediaItemView::tr("Media"));
    header->setAccessibleName(NxMediaItemView::tr("Columns"));
}

QPoint NxMediaItemViewPrivate::offset() const
{
    return {q->horizontalOffset(), q->verticalOffset()};
}

NxMediaGrid::Measures NxMediaItemViewPrivate::measures() const
{
    NxMediaGrid::Measures measures;
    measures.cell = painter->size();
    measures.headHeight = q->fontMetrics().height() + HeadAir;
    measures.isList = isList();
    measures.spacing = isList() ? 0 : TileSpacing;
    const int room = q->viewport()->width();
    measures.width = isList() ? qMax(room, header->length()) : room;
    measures.isRightToLeft = q->isRightToLeft();
    return measures;
}

void NxMediaItemViewPrivate::fitPainters()
{
    painter->setViewMode(mode);
    painter->setNameFont(q->font());
    painter->setLayoutDirection(q->layoutDirection());
    const int room = q->viewport()->width();
    painter->setListWidth(qMax(room, header->length()));
    painter->setListNameWidth(isList() && header->count() > 0 ? header->sectionSize(0) : 0);
    const QSize head(room, measures().headHeight);
    delegate->setGroupHeaderSize(head);
    delegate->setViewMoreHeaderSize(head);
}

void NxMediaItemViewPrivate::fitScrollBars()
{
    const QSize room = q->viewport()->size();
    QScrollBar *down = q->verticalScrollBar();
    down->setRange(0, qMax(0, grid.height() - room.height()));
    down->setPageStep(room.height());
    down->setSingleStep(
        qMax(SmallestStep, painter->size().height() / (isList() ? 1 : StepsOfLine)));
    QScrollBar *across = q->horizontalScrollBar();
    across->setRange(0, isList() ? qMax(0, header->length() - room.width()) : 0);
    across->setPageStep(room.width());
    across->setSingleStep(SmallestStep);
    header->setOffset(across->value());
}

void NxMediaItemViewPrivate::fitHeader()
{
    const bool isShown = isList() && model;
    const int height = isShown ? header->sizeHint().height() : 0;
    header->setVisible(isShown);
    q->setViewportMargins(0, height, 0, 0);
    const QRect room = q->viewport()->geometry();
    header->setGeometry(room.left(), room.top() - height, room.width(), height);
}

void NxMediaItemViewPrivate::tellItemsPerLine()
{
    const int count = q->itemsPerLine();
    if (!model || model->itemCountPerLine() == count)
        return;
    model->setItemCountPerLine(count, model->itemCountPerLine() > 0);
    if (model->getFilter().searchMode == esmSimilar)
        model->updateSimilarMediaItems();
}

void NxMediaItemViewPrivate::layOutLater()
{
    remember();
    isDirty = true;
    q->viewport()->update();
}

QRect NxMediaItemViewPrivate::placeOf(int row) const
{
    QRect place = grid.rect(row);
    if (place.isNull())
        return place;
    place.translate(-offset());
    if (grid.isHead(row)) {
        place.moveLeft(0);
        place.setWidth(q->viewport()->width());
    }
    return place;
}

int NxMediaItemViewPrivate::rowAt(const QPoint &point) const
{
    return grid.rowAt(point + offset());
}

INxAbstractMedia *NxMediaItemViewPrivate::mediaOf(int row) const
{
    return model ? model->mediaItem(row) : nullptr;
}

void NxMediaItemViewPrivate::repaintRow(int row)
{
    if (row >= 0 && !isDirty)
        q->viewport()->update(placeOf(row));
}

NxMediaItemView::NxMediaItemView(QWidget *parent)
    : QAbstractItemView(parent),
      d(std::make_unique<NxMediaItemViewPrivate>(this))
{
    setItemDelegate(d->delegate);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(EditKeyPressed);
    setDragEnabled(true);
    viewport()->setAcceptDrops(true);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // Or widths would depend on heights.
    d->connectDelegate();
    d->connectPointer();
    d->connectHeader();
    NxMediaItemViewAccessible::install();
    d->retranslate();
}

NxMediaItemView::~NxMediaItemView()
{
    if (d->isCounted)
        --visibleViews;
    if (d->accessible)
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(d->accessible));
}

void NxMediaItemViewPrivate::takeModel()
{
    const QScopedValueRollback<bool> settling(isSettling, true); // Nothing can be asked meanwhile.
    const QPointer<QItemSelectionModel> before(q->selectionModel());
    q->QAbstractItemView::setModel(model);
    if (model) {
        QItemSelectionModel *made = q->selectionModel();
        q->setSelectionModel(new NxMediaItemSelectionModel(model, model));
        delete made;
    }
    if (before)
        before->deleteLater(); // Who is being told of a selection may ask for another model.
}

void NxMediaItemView::setModel(QAbstractItemModel *model)
{
    auto *shown = qobject_cast<NxMediaItemModel *>(model);
    if (model && !shown) {
        NX_LOG_ERROR("it is no model of media: %s", model->metaObject()->className());
        return;
    }
    if (shown == d->model && shown)
        return;
    d->forgetRows();
    d->model = shown;
    const bool hadSelection = selectionModel() && selectionModel()->hasSelection();
    d->takeModel();
    d->connectModel();
    d->header->setModel(shown);
    for (int column = 0; shown && column < d->header->count(); ++column)
        d->header->resizeSection(column,
                                 NxMediaColumns::defaultWidth(shown->categoryType(), column));
    d->fitHeader();
    d->tellItemsPerLine();
    viewport()->update();
    if (hadSelection)
        d->tellSelection();
}

NxMediaItemModel *NxMediaItemView::mediaModel() const
{
    return d->model;
}

NxMediaItemSelectionModel *NxMediaItemView::mediaSelection() const
{
    d->settle();
    return d->selection();
}

NxMediaItemDelegate *NxMediaItemView::mediaDelegate() const
{
    return d->delegate;
}

NxMediaItemPainter *NxMediaItemView::mediaPainter() const
{
    return d->painter;
}

QHeaderView *NxMediaItemView::columnHeader() const
{
    return d->header;
}

void NxMediaItemView::setViewMode(NxMediaItemViewMode mode)
{
    if (mode == d->mode)
        return;
    d->layOutLater(); // What is visible, as it lies now.
    d->mode = mode;
    d->cursorRow = -1;
    d->fitHeader();
    d->fitPainters();
    d->tellItemsPerLine();
}

NxMediaItemViewMode NxMediaItemView::viewMode() const
{
    return d->mode;
}

void NxMediaItemView::setSort(const NxMediaItemViewSort &sort)
{
    const int column =
        d->model ? NxMediaColumns::column(d->model->categoryType(), sort.sortBy) : -1;
    d->header->setSortIndicatorShown(column >= 0);
    if (column >= 0)
        d->header->setSortIndicator(column,
                                    sort.order == soASC ? Qt::AscendingOrder : Qt::DescendingOrder);
}

int NxMediaItemView::itemsPerLine() const
{
    return NxMediaGrid::itemsPerLine(d->measures());
}

QModelIndex NxMediaItemView::indexAt(const QPoint &point) const
{
    d->settle();
    const int row = d->rowAt(point);
    return row < 0 ? QModelIndex() : d->model->index(row, 0);
}

QRect NxMediaItemView::visualRect(const QModelIndex &index) const
{
    d->settle();
    return index.isValid() && index.model() == d->model ? d->placeOf(index.row()) : QRect();
}

void NxMediaItemView::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    d->settle();
    if (!index.isValid() || index.model() != d->model)
        return;
    const QRect place = d->grid.rect(index.row());
    const int room = viewport()->height();
    int top = verticalOffset();
    const bool isBelow = place.bottom() > top + room - 1;
    if (hint == PositionAtCenter)
        top = place.center().y() - room / 2;
    else if (hint == PositionAtTop || (hint == EnsureVisible && place.top() < top))
        top = place.top();
    else if (hint == PositionAtBottom || (hint == EnsureVisible && isBelow))
        top = qMin(place.top(), place.bottom() + 1 - room);
    verticalScrollBar()->setValue(top);
}

QPair<int, int> NxMediaItemView::visibleRows() const
{
    d->settle();
    const int top = verticalOffset();
    return d->grid.rowsBetween(top, top + viewport()->height() - 1);
}

void NxMediaItemView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                  const QVector<int> &)
{
    if (d->isDirty)
        return; // Everything is painted anew.
    if (topLeft.row() == bottomRight.row())
        NxMediaItemViewAccessible::tell(this, QAccessible::NameChanged, topLeft.row());
    const QPair<int, int> seen = visibleRows();
    const int last = qMin(seen.second, bottomRight.row());
    for (int row = qMax(seen.first, topLeft.row()); row >= 0 && row <= last; ++row)
        d->repaintRow(row);
}

int NxMediaItemView::horizontalOffset() const
{
    const QScrollBar *bar = horizontalScrollBar();
    return isRightToLeft() ? bar->maximum() - bar->value() : bar->value();
}

int NxMediaItemView::verticalOffset() const
{
    return verticalScrollBar()->value();
}

bool NxMediaItemView::isIndexHidden(const QModelIndex &) const
{
    return false;
}

void NxMediaItemView::updateGeometries()
{
    d->fitHeader();
    QAbstractItemView::updateGeometries();
}

void NxMediaItemView::resizeEvent(QResizeEvent *event)
{
    d->layOutLater();
    QAbstractItemView::resizeEvent(event);
    d->fitHeader();
    d->fitPainters();
    d->tellItemsPerLine();
}

void NxMediaItemView::changeEvent(QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::FontChange || type == QEvent::LayoutDirectionChange
        || type == QEvent::StyleChange) {
        d->layOutLater();
        d->fitHeader();
        d->fitPainters();
    }
    if (type == QEvent::LanguageChange) {
        d->retranslate();
        d->header->viewport()->update();
        viewport()->update();
    }
    QAbstractItemView::changeEvent(event);
}

void NxMediaItemView::showEvent(QShowEvent *event)
{
    if (!d->isCounted)
        ++visibleViews;
    d->isCounted = true;
    QAbstractItemView::showEvent(event);
}

// Whoever looks at nothing lets nothing play; the next paint starts it again.
void NxMediaItemView::hideEvent(QHideEvent *event)
{
    if (d->isCounted && --visibleViews == 0)
        NxGifPreviewHelper::getInstance()->stopPlay();
    d->isCounted = false;
    d->pointerLeft();
    QAbstractItemView::hideEvent(event);
}

void NxMediaItemView::scrollContentsBy(int, int dy)
{
    d->header->setOffset(horizontalScrollBar()->value());
    if (d->isSettling)
        return;
    viewport()->update();
    if (d->isDirty) {
        d->anchorTop += dy;
        d->anchorGroupTop += dy;
        return;
    }
    updateEditorGeometries();
    d->updateHover();
    if (state() == DragSelectingState)
        d->selectBand();
    Q_EMIT sigVisibleRowsChanged();
}
