// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemFilter.h>

/// The filter of the online stock provider's category.
///
/// As the plain filter, with the provider's media type in place of the type filter. A
/// classification is an entrance, not a clip: it passes by its id alone, always while no
/// classification is chosen.
class NXMEDIALIBRARY_EXPORT NxVCGMediaItemFilter : public NxMediaItemFilter
{
protected:
    [[nodiscard]] bool accepts(const INxAbstractMedia *media,
                               const NXMEDIALIBRARY::NxMediaItemViewFilter &filter,
                               const NxKeywordMatcher &keyword) const override;
};
