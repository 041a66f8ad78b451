// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxFolderTreeView.h>

#include "NxFolderTreeViewPrivate_p.h"

#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxVBLModel/NxMediaIndex.h>

#include <QContextMenuEvent>
#include <QDrag>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>

namespace {

constexpr int OpenDelay = 600; // ms, before a folder unfolds that something is held over.

} // namespace

NxFolderTreeView::NxFolderTreeView(QWidget *parent)
    : QTreeView(parent),
      d(std::make_unique<NxFolderTreeViewPrivate>(this))
{
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers); // F2 asks renameFolder(), as everybody else does.
    setDragEnabled(true);
    setAcceptDrops(true);
    setAutoExpandDelay(OpenDelay);
    setVerticalScrollMode(ScrollPerPixel);
    viewport()->setAttribute(Qt::WA_Hover);
    d->retranslate();
}

NxFolderTreeView::~NxFolderTreeView() = default;

void NxFolderTreeView::setPresenter(NxMediaCategoryPresenter *presenter)
{
    d->setPresenter(presenter);
}

NxMediaCategoryPresenter *NxFolderTreeView::presenter() const
{
    return d->presenter;
}

QSet<int> NxFolderTreeView::expandedFolders() const
{
    return d->expandedFolders();
}

void NxFolderTreeView::setExpandedFolders(const QSet<int> &folderIds)
{
    d->setExpandedFolders(folderIds);
}

void NxFolderTreeView::setFolderFont(const QFont &font)
{
    setFont(font);
}

void NxFolderTreeView::newFolder()
{
    d->newFolder();
}

void NxFolderTreeView::renameFolder()
{
    d->editName(d->currentFolder());
}

void NxFolderTreeView::removeFolder()
{
    if (NxFolderMediaManagerPresenter *folders = d->folders())
        folders->removeFolder(folders->currentFolder());
}

void NxFolderTreeView::keyboardSearch(const QString &search)
{
    const QModelIndex found = d->search(search);
    if (found.isValid())
        setCurrentIndex(found);
}

void NxFolderTreeView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        d->retranslate();
    QTreeView::changeEvent(event);
}

void NxFolderTreeView::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = isByKey ? currentIndex() : indexAt(event->pos());
    const QPoint atKey = viewport()->mapToGlobal(visualRect(index).center());
    const QPoint global = isByKey ? atKey : event->globalPos();
    const QPointer<INxFolderMedia> folder = folderAt(index);
    d->pick(folder);
    event->accept();
    if (folder || !index.isValid())
        Q_EMIT sigContextMenu(global, folder);
}

void NxFolderTreeView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Delete)) {
        removeFolder();
        return;
    }
    if (event->key() == Qt::Key_F2 && event->modifiers() == Qt::NoModifier) {
        renameFolder();
        return;
    }
    const QModelIndex before = currentIndex();
    QTreeView::keyPressEvent(event);
    if (currentIndex() != before)
        d->pick(folderAt(currentIndex()));
}

void NxFolderTreeView::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeView::mouseReleaseEvent(event);
    d->markCurrentFolder(); // Another row was pressed, and the pointer left it again.
}

void NxFolderTreeView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    QPainter painter(viewport());
    d->drop.paint(&painter);
}

void NxFolderTreeView::startDrag(Qt::DropActions)
{
    const QModelIndex index = currentIndex();
    INxFolderMedia *folder = folderAt(index);
    if (!NxFolderTreeViewPrivate::isChangeable(folder))
        return;
    const QRect row = visualRect(index);
    auto *drag = new QDrag(this);
    drag->setMimeData(model()->mimeData({index}));
    drag->setPixmap(viewport()->grab(row));
    drag->setHotSpot(viewport()->mapFromGlobal(QCursor::pos()) - row.topLeft());
    d->drop.setDraggedFolder(folder);
    const QPointer<NxFolderTreeView> alive(this);
    carry(drag);
    if (!alive)
        return;
    d->drop.setDraggedFolder(nullptr);
    d->markCurrentFolder();
}

Qt::DropAction NxFolderTreeView::carry(QDrag *drag)
{
    return drag->exec(Qt::MoveAction);
}

void NxFolderTreeView::dragEnterEvent(QDragEnterEvent *event)
{
    d->drop.hover(event);
    event->accept(); // Also where it may not be dropped: it may be on its way.
}

void NxFolderTreeView::dragMoveEvent(QDragMoveEvent *event)
{
    d->drop.hover(event);
    const int margin = autoScrollMargin();
    const QRect calm = viewport()->rect().adjusted(0, margin, 0, -margin);
    if (verticalScrollBar()->maximum() > 0 && !calm.contains(event->pos()))
        startAutoScroll();
}

void NxFolderTreeView::dragLeaveEvent(QDragLeaveEvent *)
{
    stopAutoScroll();
    d->drop.leave();
}

void NxFolderTreeView::dropEvent(QDropEvent *event)
{
    stopAutoScroll();
    d->drop.drop(event);
}
