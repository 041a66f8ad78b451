// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// The mouse, and what is dragged.

#include <NxMediaViews/NxMediaItemView.h>

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemSelectionModel.h>
#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>
#include <NxMediaViews/NxMediaItemPainter.h>
#include <NxMediaViews/NxMediaItemView_p.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxGroupMedia.h>
#include <NxVBLModel/NxMediaIndex.h>
#include <NxVBLModel/NxMediaItemMimeData.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QDrag>
#include <QDropEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QUrl>
#include <QWheelEvent>

#include <memory>

namespace {

QStringList localFiles(const QMimeData *data)
{
    QStringList paths;
    if (!data || qobject_cast<const NxMediaItemMimeData *>(data))
        return paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

} // namespace

bool isMedia(const INxAbstractMedia *media)
{
    return media && media->mediaType() != NXVBLMODEL::mtGroup
           && media->mediaType() != NXVBLMODEL::mtImportTile
           && media->mediaType() != NXVBLMODEL::mtViewMoreTile;
}

// Pointer

void NxMediaItemViewPrivate::setPointer(const QPoint &point)
{
    pointer = point;
    isPointerInside = true;
    updateHover();
}

// QRect::normalized() would leave both corners out.
QRect NxMediaItemViewPrivate::band() const
{
    const QPoint end = pointer + offset();
    return QRect(bandStart, QSize(1, 1)).united({end, QSize(1, 1)});
}

QItemSelectionRange NxMediaItemViewPrivate::rangeOf(const NxMediaGrid::Range &rows) const
{
    return {model->index(rows.first, 0), model->index(rows.second, model->columnCount() - 1)};
}

void NxMediaItemViewPrivate::selectBand()
{
    QItemSelection touched;
    const QVector<NxMediaGrid::Range> ranges = grid.mediaIn(band());
    for (const NxMediaGrid::Range &rows : ranges)
        touched.append(rangeOf(rows));
    q->selectionModel()->select(touched, bandCommand);
}

// The base class scrolls only while the pointer moves, and only to a row that is below it.
void NxMediaItemViewPrivate::scrollBand()
{
    const auto beyond = [](int place, int first, int last) {
        return place < first ? place - first : qMax(0, place - last);
    };
    constexpr int margin = 16; // px, inside the edges.
    const QRect calm = q->viewport()->rect().adjusted(margin, margin, -margin, -margin);
    const QPoint way(beyond(pointer.x(), calm.left(), calm.right()),
                     beyond(pointer.y(), calm.top(), calm.bottom()));
    const bool goesOn = q->state() == QAbstractItemView::DragSelectingState && !way.isNull();
    if (!goesOn) {
        bandTimer.stop();
        return;
    }
    if (!bandTimer.isActive()) {
        bandTimer.start();
        return;
    }
    QScrollBar *across = q->horizontalScrollBar();
    across->setValue(across->value() + (q->isRightToLeft() ? -way.x() : way.x()));
    q->verticalScrollBar()->setValue(q->verticalOffset() + way.y());
}

void NxMediaItemViewPrivate::pointerLeft()
{
    isPointerInside = false;
    setHovered(-1);
}

void NxMediaItemViewPrivate::updateHover()
{
    setHovered(isPointerInside ? rowAt(pointer) : -1);
    if (isScrubbing)
        scrub();
}

void NxMediaItemViewPrivate::setHovered(int row)
{
    if (row == hovered)
        return;
    const int before = hovered;
    hovered = row;
    repaintRow(before);
    repaintRow(row);
    stop();
    if (row < 0) {
        delegate->viewportEntered();
        return;
    }
    delegate->itemEntered(model->index(row, 0));
    play(row);
}

void NxMediaItemViewPrivate::play(int row)
{
    INxAbstractMedia *media = mediaOf(row);
    if (!isMedia(media))
        return;
    delegate->previewFrameHelper()->setMedia(model->index(row, 0), media);
    delegate->previewFrameHelper()->playPreviewFrame();
}

void NxMediaItemViewPrivate::stop()
{
    delegate->previewFrameHelper()->stopPreviewFrame();
}

// The strip may not be here yet: then it plays when it comes, and the next move finds it.
void NxMediaItemViewPrivate::scrub()
{
    const QRect place = hovered < 0 ? QRect() : placeOf(hovered);
    if (place.isEmpty())
        return;
    qreal part = qreal(pointer.x() - place.left()) / qMax(1, place.width() - 1);
    if (q->isRightToLeft())
        part = 1.0 - part;
    delegate->previewFrameHelper()->showPreviewFrame(part);
}

void NxMediaItemView::setScrubbing(bool scrubbing)
{
    if (scrubbing == d->isScrubbing)
        return;
    d->isScrubbing = scrubbing;
    if (scrubbing)
        d->scrub();
    else if (d->hovered >= 0)
        d->delegate->previewFrameHelper()->playPreviewFrame();
}

bool NxMediaItemView::isScrubbing() const
{
    return d->isScrubbing;
}

bool NxMediaItemView::viewportEvent(QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::Paint && type != QEvent::Resize)
        d->settle();
    if (type == QEvent::Leave)
        d->pointerLeft();
    return QAbstractItemView::viewportEvent(event);
}

void NxMediaItemView::mousePressEvent(QMouseEvent *event)
{
    d->settle();
    d->setPointer(event->pos());
    d->bandStart = event->pos() + d->offset();
    d->isKeyboardUsed = false;
    d->isLeftPress = event->button() == Qt::LeftButton;
    const INxAbstractMedia *media = d->mediaOf(d->rowAt(event->pos()));
    d->pressed = isMedia(media) && event->button() == Qt::LeftButton ? media : nullptr;
    QAbstractItemView::mousePressEvent(event);
}

void NxMediaItemView::mouseMoveEvent(QMouseEvent *event)
{
    d->settle();
    d->setPointer(event->pos());
    // A reset between the press and now made the base class forget what was pressed.
    const bool isHeld = event->buttons().testFlag(Qt::LeftButton);
    if (isHeld && d->pressed && state() == NoState && mediaSelection()
        && mediaSelection()->selectedItems().contains(const_cast<INxAbstractMedia *>(d->pressed)))
        setState(DraggingState);
    else if (isHeld && !d->pressed && state() == NoState)
        setState(DragSelectingState); // Headers and tiles drag nothing, whatever is selected.
    if (event->buttons() == Qt::NoButton)
        setScrubbing(event->modifiers().testFlag(Qt::ShiftModifier));
    QAbstractItemView::mouseMoveEvent(event);
    if (state() != DragSelectingState)
        return;
    const QModelIndex below = indexAt(event->pos());
    if (!below.isValid() && selectionModel()) { // The base class selects over rows only.
        d->bandCommand = selectionCommand(below, event);
        d->selectBand();
    }
    viewport()->update();
    if (!d->bandTimer.isActive())
        d->scrollBand();
}

void NxMediaItemView::mouseReleaseEvent(QMouseEvent *event)
{
    const bool hadBand = state() == DragSelectingState;
    d->pressed = nullptr;
    QAbstractItemView::mouseReleaseEvent(event);
    if (hadBand)
        viewport()->update();
}

void NxMediaItemView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPersistentModelIndex index(indexAt(event->pos()));
    QAbstractItemView::mouseDoubleClickEvent(event);
    if (event->button() != Qt::LeftButton || !index.isValid())
        return;
    INxAbstractMedia *media = mediaAt(index);
    const INxItemBasePainter *rowPainter = d->delegate->getItemPainter(index);
    const bool isOnArrow = rowPainter && rowPainter->mouseInChild() == 0;
    if (dynamic_cast<INxGroupMedia *>(media)) {
        if (!isOnArrow)
            d->toggle(index.row());
    } else if (isMedia(media)) {
        Q_EMIT sigMediaActivated(media);
    }
}

void NxMediaItemView::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractItemView::wheelEvent(event);
        return;
    }
    // Touchpads send parts of a notch.
    d->turned += event->angleDelta().y();
    const int steps = d->turned / QWheelEvent::DefaultDeltasPerStep;
    d->turned %= QWheelEvent::DefaultDeltasPerStep;
    if (steps != 0)
        Q_EMIT sigZoomWanted(steps);
    event->accept();
}

void NxMediaItemView::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = isKeyboard ? currentIndex() : indexAt(event->pos());
    const QRect seen = visualRect(index).intersected(viewport()->rect());
    const QPoint place = seen.isEmpty() ? viewport()->rect().center() : seen.center();
    const QPoint point = isKeyboard ? place : event->pos();
    INxAbstractMedia *media = mediaAt(index);
    Q_EMIT sigMenuWanted(viewport()->mapToGlobal(point), isMedia(media) ? media : nullptr);
    event->accept();
}

// One index for each row: the base class asks when a drag begins.
QModelIndexList NxMediaItemView::selectedIndexes() const
{
    return mediaSelection() ? mediaSelection()->firstColumnSelectedIndexes() : QModelIndexList();
}

void NxMediaItemView::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command)
{
    d->settle();
    if (!d->model || !selectionModel())
        return;
    if (state() == DragSelectingState) {
        d->bandCommand = command;
        d->selectBand();
        return;
    }
    const int one = d->rowAt(rect.topLeft());
    const int other = d->rowAt(rect.bottomRight());
    QItemSelection selection;
    if (one >= 0 && other >= 0)
        selection.append(d->rangeOf({qMin(one, other), qMax(one, other)}));
    selectionModel()->select(selection, command);
}

QRegion NxMediaItemView::visualRegionForSelection(const QItemSelection &selection) const
{
    QRegion region;
    if (d->isDirty)
        return region;
    const QPair<int, int> seen = visibleRows();
    for (const QItemSelectionRange &range : selection) {
        const int last = qMin(seen.second, range.bottom());
        for (int row = qMax(seen.first, range.top()); row >= 0 && row <= last; ++row)
            region += d->placeOf(row);
    }
    return region;
}

// Dragging out: the media, for views of this program; their files, for others, which may only copy.
void NxMediaItemView::startDrag(Qt::DropActions)
{
    d->pressed = nullptr;
    if (!mediaSelection())
        return;
    std::unique_ptr<QMimeData> mime(
        d->model->mimeData(mediaSelection()->firstColumnSelectedIndexes()));
    const auto *dragged = qobject_cast<const NxMediaItemMimeData *>(mime.get());
    const QList<INxAbstractMedia *> medias =
        dragged ? dragged->items() : QList<INxAbstractMedia *>();
    if (medias.isEmpty())
        return;
    QList<QUrl> urls;
    for (const INxAbstractMedia *media : medias) {
        const auto *item = dynamic_cast<const INxAbstractMediaItem *>(media);
        if (item && !item->filePath().isEmpty())
            urls.append(QUrl::fromLocalFile(item->filePath()));
    }
    mime->setUrls(urls);
    const int row = currentIndex().isValid() ? currentIndex().row() : 0;
    const QRect place = d->placeOf(row).intersected(viewport()->rect());
    auto *drag = new QDrag(this); // Deleted after the drag.
    drag->setMimeData(mime.release());
    if (!place.isEmpty()) {
        drag->setPixmap(viewport()->grab(place));
        drag->setHotSpot(d->pointer - place.topLeft());
    }
    dragOut(drag);
}

void NxMediaItemView::dragOut(QDrag *drag)
{
    drag->exec(Qt::CopyAction);
}

void NxMediaItemView::dragEnterEvent(QDragEnterEvent *event)
{
    const bool isWelcome =
        d->model && d->model->folder() && !localFiles(event->mimeData()).isEmpty();
    event->setAccepted(isWelcome);
    if (!isWelcome)
        return;
    event->setDropAction(Qt::CopyAction);
    d->isDropTarget = true;
    viewport()->update();
}

void NxMediaItemView::dragMoveEvent(QDragMoveEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(d->isDropTarget);
}

void NxMediaItemView::dragLeaveEvent(QDragLeaveEvent *)
{
    d->isDropTarget = false;
    viewport()->update();
}

void NxMediaItemView::dropEvent(QDropEvent *event)
{
    const QStringList paths = localFiles(event->mimeData());
    d->isDropTarget = false;
    viewport()->update();
    event->setAccepted(!paths.isEmpty());
    if (paths.isEmpty())
        return;
    event->setDropAction(Qt::CopyAction);
    Q_EMIT sigFilesDropped(paths);
}
