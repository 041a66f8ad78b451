// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaTypes.h>

#include <QStringList>

class INxAbstractMediaItem;

/// What a list view shows of a media.
namespace ColumnTexts {

/// One text for each column of the category's list view, in their order; empty where nothing is
/// known, or where the column holds no text.
[[nodiscard]] QStringList of(const INxAbstractMediaItem &media,
                             NXVBLMODEL::NxMediaCategoryType category);

} // namespace ColumnTexts
