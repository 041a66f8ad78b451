// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxMediaIndex.h>

#include <NxVBLModel/INxFolderMedia.h>

#include <QModelIndex>

INxAbstractMedia *mediaAt(const QModelIndex &itemIndex)
{
    return static_cast<INxAbstractMedia *>(itemIndex.internalPointer());
}

INxFolderMedia *folderAt(const QModelIndex &treeIndex)
{
    return static_cast<INxFolderMedia *>(treeIndex.internalPointer());
}
