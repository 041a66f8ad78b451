// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PanelList.h"

#include <NxMediaLibrary/delegate/INxPreviewFrameHelper.h>
#include <NxMediaLibrary/delegate/NxGifPreviewHelper.h>
#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>
#include <NxMediaViews/NxMediaItemPainter.h>
#include <NxVBLModel/NxMediaIndex.h>
#include <NxVBLModel/NxMediaItemMimeData.h>

#include <memory>

using namespace NXMEDIALIBRARY;

PanelList::PanelList(QWidget *parent)
    : QListView(parent),
      m_delegate(new NxMediaItemDelegate(this)),
      m_painter(new NxMediaItemPainter)
{
    m_delegate->setItemPainter(m_painter);
    setItemDelegate(m_delegate);
    setMouseTracking(true);
    setUniformItemSizes(true);
    setResizeMode(QListView::Adjust);
    setMediaViewMode(vmList);
    connect(m_delegate, &NxMediaItemDelegate::sigRepaint, this, [this](const QModelIndex &index) {
        ++m_rowRepaints;
        update(index);
    });
    connect(m_delegate, &NxMediaItemDelegate::sigRepaintAll, this, [this] {
        for (const QPersistentModelIndex &row : m_painter->takeGifRows()) {
            ++m_gifRepaints;
            update(row);
        }
    });
    connect(this, &QListView::entered, m_delegate, &NxMediaItemDelegate::itemEntered);
    connect(this, &QListView::viewportEntered, m_delegate, &NxMediaItemDelegate::viewportEntered);
    connect(m_delegate, &NxMediaItemDelegate::sigItemEnterEvent, this, &PanelList::play);
    connect(m_delegate, &NxMediaItemDelegate::sigViewportEnterEvent, this, &PanelList::stop);
}

PanelList::~PanelList() = default;

void PanelList::setMediaViewMode(NxMediaItemViewMode mode)
{
    const bool isList = mode == vmList;
    QListView::setViewMode(isList ? QListView::ListMode : QListView::IconMode);
    setMovement(QListView::Static);
    setDragEnabled(true); // The movement took it away.
    m_painter->setViewMode(mode);
    fitRows();
    scheduleDelayedItemsLayout();
}

void PanelList::startDrag(Qt::DropActions)
{
    const std::unique_ptr<QMimeData> dragged(model()->mimeData(selectedIndexes()));
    const auto *medias = dynamic_cast<const NxMediaItemMimeData *>(dragged.get());
    Q_EMIT draggedOut(medias ? medias->items() : QList<INxAbstractMedia *>());
}

// Whoever looks at nothing lets nothing play; the next paint starts it again.
void PanelList::hideEvent(QHideEvent *event)
{
    NxGifPreviewHelper::getInstance()->stopPlay();
    stop();
    QListView::hideEvent(event);
}

void PanelList::leaveEvent(QEvent *event)
{
    stop();
    QListView::leaveEvent(event);
}

void PanelList::resizeEvent(QResizeEvent *event)
{
    fitRows();
    QListView::resizeEvent(event);
}

void PanelList::play(const QModelIndex &index)
{
    stop();
    m_delegate->previewFrameHelper()->setMedia(index, mediaAt(index));
    m_delegate->previewFrameHelper()->playPreviewFrame();
}

void PanelList::stop()
{
    m_delegate->previewFrameHelper()->stopPreviewFrame();
}

void PanelList::fitRows()
{
    m_painter->setListWidth(viewport()->width());
    m_delegate->setGroupHeaderSize(m_painter->size());
    m_delegate->setViewMoreHeaderSize(m_painter->size());
}
