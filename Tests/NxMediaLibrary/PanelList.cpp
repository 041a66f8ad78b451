// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PanelList.h"

#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>
#include <NxVBLModel/NxMediaItemMimeData.h>

#include <QDrag>

PanelList::PanelList(QWidget *parent) : NxMediaItemView(parent)
{
    connect(mediaDelegate(), &NxMediaItemDelegate::sigRepaint, this, [this] { ++m_rowRepaints; });
}

PanelList::~PanelList() = default;

void PanelList::paintEvent(QPaintEvent *event)
{
    ++m_paints;
    NxMediaItemView::paintEvent(event);
}

void PanelList::dragOut(QDrag *drag)
{
    const auto *medias = qobject_cast<const NxMediaItemMimeData *>(drag->mimeData());
    Q_EMIT draggedOut(medias ? medias->items() : QList<INxAbstractMedia *>());
}
