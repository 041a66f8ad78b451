// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

class INxAbstractMedia;
class INxFolderMedia;
class QModelIndex;

/// The media behind a row of an item model; null for an invalid index.
///
/// An item model's indexes carry an `INxAbstractMedia *`, a tree model's an `INxFolderMedia *`:
/// for one folder these are two different addresses, and each may only be cast back to the type
/// it was made from. This function and folderAt() are the only places that do so.
[[nodiscard]] NXVBLMODEL_EXPORT INxAbstractMedia *mediaAt(const QModelIndex &itemIndex);

/// The folder behind a row of a folder tree model; null for an invalid index.
[[nodiscard]] NXVBLMODEL_EXPORT INxFolderMedia *folderAt(const QModelIndex &treeIndex);
