// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxVBLModel/NxMediaTypes.h>

#include <array>

/// A snapshot of how all categories are shown; element i belongs to the category with the code i.
/// A fresh one shows large thumbnails and holds 0 everywhere else.
struct MatterViewMenuState
{
    /// One 32-bit enum value for each category.
    using Values = std::array<qint32, NXVBLMODEL::MediaCategoryCount>;

    MatterViewMenuState() { viewTypes.fill(NXMEDIALIBRARY::vmLargeThumbnail); }

    Values filterTypes{};
    Values viewTypes{};
    Values sortBys{};
    Values sortByOrders{};
    Values groupBys{};
    Values groupByOrders{};
};
