// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What is visible, drawn.

#include <NxMediaViews/NxMediaItemView.h>

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>
#include <NxMediaViews/NxMediaItemView_p.h>
#include <NxVBLModel/INxAbstractMedia.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QHeaderView>
#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>

namespace {

constexpr int BandOpacity = 48; // Of 255.
constexpr int DropFrame = 2; // px

} // namespace

void NxMediaItemView::paintEvent(QPaintEvent *event)
{
    const QScopedValueRollback<bool> painting(d->isPainting, true);
    d->settle();
    QPainter painter(viewport());
    painter.fillRect(event->rect(),
                     NxSkinStyle::instance()->GetColor(NxSkinColor::Background_Panel));
    if (!d->model)
        return;
    const int top = verticalOffset();
    const NxMediaGrid::Range rows =
        d->grid.rowsBetween(top + event->rect().top(), top + event->rect().bottom());
    const QBitArray selected = d->selectedRows(rows);
    QStyleOptionViewItem option = viewOptions();
    option.widget = this;
    for (int row = rows.first; row >= 0 && row <= rows.second; ++row) {
        option.rect = d->placeOf(row);
        if (event->region().intersects(option.rect))
            d->drawRow(&painter, &option, row, selected.testBit(row - rows.first));
    }
    d->drawFocus(&painter);
    d->drawBand(&painter);
    d->drawDropFrame(&painter);
}

// By ranges: asking the selection row by row would walk all of them each time.
QBitArray NxMediaItemViewPrivate::selectedRows(const NxMediaGrid::Range &rows) const
{
    if (rows == NxMediaGrid::None)
        return {};
    QBitArray selected(rows.second - rows.first + 1);
    const QItemSelection ranges = q->selectionModel()->selection();
    for (const QItemSelectionRange &range : ranges) {
        const int first = qMax(rows.first, range.top());
        const int last = qMin(rows.second, range.bottom());
        if (first <= last)
            selected.fill(true, first - rows.first, last + 1 - rows.first);
    }
    return selected;
}

void NxMediaItemViewPrivate::drawRow(QPainter *canvas, QStyleOptionViewItem *option, int row,
                                     bool isSelected) const
{
    const QModelIndex index = model->index(row, 0);
    const Qt::ItemFlags flags = index.flags();
    option->state = QStyle::State_Active;
    option->state.setFlag(QStyle::State_Enabled,
                          q->isEnabled() && flags.testFlag(Qt::ItemIsEnabled));
    option->state.setFlag(QStyle::State_Selected,
                          isSelected && flags.testFlag(Qt::ItemIsSelectable));
    option->state.setFlag(QStyle::State_MouseOver, row == hovered);
    option->state.setFlag(QStyle::State_HasFocus, q->hasFocus() && row == q->currentIndex().row());
    delegate->paint(canvas, *option, index);
    if (isList() && !grid.isHead(row))
        drawColumns(canvas, *option, row);
}

void NxMediaItemViewPrivate::drawColumns(QPainter *canvas, const QStyleOptionViewItem &option,
                                         int row) const
{
    QVector<NxMediaColumnPainter::Cell> cells;
    const int room = q->viewport()->width();
    for (int column = 1; column < header->count(); ++column) {
        const int left = header->sectionViewportPosition(column);
        const int width = header->sectionSize(column);
        if (!header->isSectionHidden(column) && left < room && left + width > 0)
            cells.append({column, {left, option.rect.top(), width, option.rect.height()}});
    }
    columnPainter.draw(canvas, option, mediaOf(row), model->categoryType(), cells,
                       mediaItemState(option));
}

// Only the keyboard needs to see where it is; what is selected shows it already.
void NxMediaItemViewPrivate::drawFocus(QPainter *canvas) const
{
    const QModelIndex current = q->currentIndex();
    if (!isKeyboardUsed || !q->hasFocus() || !current.isValid()
        || q->selectionModel()->isSelected(current))
        return;
    QPen pen(NxSkinStyle::instance()->GetColor(NxSkinColor::Accent));
    pen.setStyle(Qt::DotLine);
    canvas->setPen(pen);
    canvas->setBrush(Qt::NoBrush);
    canvas->drawRect(placeOf(current.row()).adjusted(0, 0, -1, -1));
}

void NxMediaItemViewPrivate::drawBand(QPainter *canvas) const
{
    if (q->state() != QAbstractItemView::DragSelectingState)
        return;
    const QColor colour = NxSkinStyle::instance()->GetColor(NxSkinColor::Accent);
    QColor ground = colour;
    ground.setAlpha(BandOpacity);
    canvas->setPen(colour);
    canvas->setBrush(ground);
    canvas->drawRect(band().translated(-offset()).adjusted(0, 0, -1, -1));
}

void NxMediaItemViewPrivate::drawDropFrame(QPainter *canvas) const
{
    if (!isDropTarget)
        return;
    canvas->setPen(QPen(NxSkinStyle::instance()->GetColor(NxSkinColor::Accent), DropFrame));
    canvas->setBrush(Qt::NoBrush);
    canvas->drawRect(q->viewport()->rect().adjusted(1, 1, -DropFrame, -DropFrame));
}
