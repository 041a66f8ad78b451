// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>

class CommandLine;

/// What a listing or a picture of the panel shows, and how: the words of the command line and,
/// where they say nothing, what the user chose last for the category.
struct ViewChoice
{
    NXVBLMODEL::NxMediaCategoryType category = NXVBLMODEL::mctMedia;
    NXMEDIALIBRARY::NxMediaItemViewMode mode = NXMEDIALIBRARY::vmLargeThumbnail;
    NXMEDIALIBRARY::NxMediaItemViewSort sort;
    NXMEDIALIBRARY::NxMediaItemViewGroup group;
    NXMEDIALIBRARY::NxMediaItemViewFilter filter;

    /// Reads the user's view settings, never writes them. A word that is not known is an error
    /// that says so.
    [[nodiscard]] static NxResult<ViewChoice> of(const CommandLine &line);
};
