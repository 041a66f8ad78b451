// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <memory>

class INxMediaItemFilter;

/// Makes the filters. Each still wants its settings: INxMediaItemFilter::SetFilterParam().
class NXMEDIALIBRARY_EXPORT NxMediaItemFilterFactory
{
public:
    NxMediaItemFilterFactory() = delete;

    /// For every category without a filter of its own.
    [[nodiscard]] static std::unique_ptr<INxMediaItemFilter> createMediaItemFilter();
    /// For the stock media category.
    [[nodiscard]] static std::unique_ptr<INxMediaItemFilter> createStockMediaItemFilter();
    /// For the online stock provider's category.
    [[nodiscard]] static std::unique_ptr<INxMediaItemFilter> createVCGMediaItemFilter();
};
