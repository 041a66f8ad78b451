// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QString>

/// What the product is called.
class NXCORE_EXPORT NxCustomProductInfo
{
public:
    /// The name that dialogs without a title of their own are titled with.
    [[nodiscard]] static QString NGetProductName();
};
