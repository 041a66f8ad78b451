// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFolderRows_p.h"

#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxMediaViews/NxFolderItemPainter.h>
#include <NxVBLModel/NxMediaIndex.h>

NxFolderRows::NxFolderRows(QObject *parent) : NxMediaTreeModel(parent) {}

NxFolderRows::~NxFolderRows() = default;

QVariant NxFolderRows::data(const QModelIndex &index, int role) const
{
    const INxFolderMedia *folder = role == Qt::AccessibleTextRole ? folderAt(index) : nullptr;
    if (!folder)
        return NxMediaTreeModel::data(index, role);
    const QString text = tr("%1, %n media", nullptr, NxFolderItemPainter::mediaCount(*folder));
    return text.arg(folder->name());
}

Qt::ItemFlags NxFolderRows::flags(const QModelIndex &index) const
{
    const INxFolderMedia *folder = folderAt(index);
    const bool isDraggable = folder && !NxMediaLibraryUtils::isSpecialFolder(folder);
    const Qt::ItemFlags known = NxMediaTreeModel::flags(index);
    return isDraggable ? known | Qt::ItemIsDragEnabled : known;
}
