// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaTypes.h>
#include <NxVBLModel/NxVBLModelExport.h>

/// A part of a composed element (media type 12). Owned by the element.
class NXVBLMODEL_EXPORT INxMediaPart
{
public:
    virtual ~INxMediaPart();

    /// NXVBLMODEL::NxMediaPartKind.
    [[nodiscard]] virtual int partKind() const = 0;
    [[nodiscard]] virtual bool isPart(int kind) const;
};
