// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>

/// How one category of the panel is shown: what its view menu and its type filter say.
/// A fresh record holds the value 0 in every field.
struct MatterMenu
{
    NXMEDIALIBRARY::NxMediaTypeFilter filterType{}; ///< Lasts until the program ends.
    NXMEDIALIBRARY::NxMediaItemViewMode viewType{};
    NXMEDIALIBRARY::NxMediaItemViewSortBy sortBy{};
    NXMEDIALIBRARY::NxMediaItemViewSortOrder sortByOrder{};
    NXMEDIALIBRARY::NxMediaItemViewGroupBy groupBy{};
    NXMEDIALIBRARY::NxMediaItemViewSortOrder groupByOrder{};
};
