// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

/// Told how many items the stock provider's category holds.
class NXVBLMODEL_EXPORT NxVCGMediaNumObserver
{
public:
    virtual ~NxVCGMediaNumObserver();

    virtual void onVCGMediaNumChanged(int total) = 0;
};
