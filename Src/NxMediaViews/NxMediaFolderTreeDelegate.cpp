// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaFolderTreeDelegate.h>

#include <NxMediaViews/NxFolderItemPainter.h>

NxMediaFolderTreeDelegate::NxMediaFolderTreeDelegate(QObject *parent) : NxFolderTreeDelegate(parent)
{
}

NxMediaFolderTreeDelegate::~NxMediaFolderTreeDelegate() = default;

QSize NxMediaFolderTreeDelegate::sizeHint(const QStyleOptionViewItem &option,
                                          const QModelIndex &index) const
{
    const QSize styled = NxFolderTreeDelegate::sizeHint(option, index);
    const INxItemBasePainter *rowPainter = itemPainter();
    return rowPainter ? QSize(styled.width(), qMax(styled.height(), rowPainter->size().height()))
                      : styled;
}

void NxMediaFolderTreeDelegate::createItemPaintTool()
{
    setItemPainter(new NxFolderItemPainter(this));
}
