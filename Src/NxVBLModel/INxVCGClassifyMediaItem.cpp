// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxVCGClassifyMediaItem.h>

INxVCGClassifyMediaItem::~INxVCGClassifyMediaItem() = default;

int INxVCGClassifyMediaItem::subKind() const
{
    return NXVBLMODEL::mskStockClassification;
}
