// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemFilter.h>

/// The filter of the stock media category.
///
/// As the plain filter, and beyond it: classifications never pass; a choice of resolution drops
/// stock video that is narrower, but keeps what has no size yet; a keyword is looked for in a
/// stock item's title, or in its tags when it has no title.
class NXMEDIALIBRARY_EXPORT NxStockMediaItemFilter : public NxMediaItemFilter
{
protected:
    [[nodiscard]] bool accepts(const INxAbstractMedia *media,
                               const NXMEDIALIBRARY::NxMediaItemViewFilter &filter,
                               const NxKeywordMatcher &keyword) const override;
};
