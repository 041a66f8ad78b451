// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

/// Offered beside INxAbstractMediaItem by composed elements that know better than their parts
/// what they show. Reached by dynamic_cast.
class NXVBLMODEL_EXPORT INxSecondaryMedia
{
public:
    virtual ~INxSecondaryMedia();

    /// NXVBLMODEL::NxSecondaryKind; a photo exactly when it answers skPhoto.
    [[nodiscard]] virtual int secondaryKind() const = 0;
};
