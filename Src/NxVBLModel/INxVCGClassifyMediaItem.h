// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMediaItem.h>

/// A classification that the stock provider offers as an entry of a folder. Never dragged.
class NXVBLMODEL_EXPORT INxVCGClassifyMediaItem : public INxAbstractMediaItem
{
public:
    ~INxVCGClassifyMediaItem() override;

    [[nodiscard]] int subKind() const override;
    [[nodiscard]] virtual qint64 classifyId() const = 0;
};
