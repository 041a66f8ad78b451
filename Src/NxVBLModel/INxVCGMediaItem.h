// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMediaItem.h>

/// A clip of the online stock provider (category 8).
class NXVBLMODEL_EXPORT INxVCGMediaItem : public INxAbstractMediaItem
{
public:
    ~INxVCGMediaItem() override;

    /// True for a clip that lives at the provider.
    [[nodiscard]] virtual bool isOnline() const;
    /// True until the clip's file is here; an online clip that is not available is not dragged.
    [[nodiscard]] virtual bool isNotAvailable() const;
    /// NXVBLMODEL::VCGResourceState.
    [[nodiscard]] virtual int stateCode() const;
    [[nodiscard]] virtual bool isPreviewAvailable() const;
    [[nodiscard]] virtual int mediaCount() const;
    /// Empty when there is no such media.
    [[nodiscard]] virtual QString mediaPath(int index) const;
    [[nodiscard]] virtual QSize frameSize() const;
};
