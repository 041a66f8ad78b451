// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMediaItem.h>

/// An item of the stock media library (category 7).
class NXVBLMODEL_EXPORT INxStockMediaItem : public INxAbstractMediaItem
{
public:
    ~INxStockMediaItem() override;

    /// px; 0 where the service says nothing.
    [[nodiscard]] virtual QSize frameSize() const;
    /// What a keyword is matched against; tags() when it is empty.
    [[nodiscard]] virtual QString title() const;
    [[nodiscard]] virtual QString tags() const;
    [[nodiscard]] virtual int provider() const;
    [[nodiscard]] virtual int orientation() const;
    [[nodiscard]] virtual int format() const;
};
