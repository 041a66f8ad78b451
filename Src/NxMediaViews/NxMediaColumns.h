// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxMediaViews/NxMediaViewsExport.h>
#include <NxVBLModel/NxMediaTypes.h>

#include <QString>
#include <QStringList>

class INxAbstractMediaItem;

/// The columns of a list of media: their texts, their sort keys, how wide they are. The column's
/// number is that of NxMediaItemModel, which knows the headings. No function touches a disk.
namespace NxMediaColumns {

/// Ten in the project's media, five in every other category.
[[nodiscard]] NXMEDIAVIEWS_EXPORT int count(NXVBLMODEL::NxMediaCategoryType category);
/// Empty where nothing is known, or where the column holds no text.
[[nodiscard]] NXMEDIAVIEWS_EXPORT QString text(const INxAbstractMediaItem &media,
                                               NXVBLMODEL::NxMediaCategoryType category,
                                               int column);
/// One text for each column.
[[nodiscard]] NXMEDIAVIEWS_EXPORT QStringList texts(const INxAbstractMediaItem &media,
                                                    NXVBLMODEL::NxMediaCategoryType category);
/// What a click on the heading sorts by; sbNone where there is nothing to sort by.
[[nodiscard]] NXMEDIAVIEWS_EXPORT NXMEDIALIBRARY::NxMediaItemViewSortBy sortKey(
    NXVBLMODEL::NxMediaCategoryType category, int column);
/// The column of a sort key; -1 for none.
[[nodiscard]] NXMEDIAVIEWS_EXPORT int column(NXVBLMODEL::NxMediaCategoryType category,
                                             NXMEDIALIBRARY::NxMediaItemViewSortBy key);
/// Before the user drags its edge, px.
[[nodiscard]] NXMEDIAVIEWS_EXPORT int defaultWidth(NXVBLMODEL::NxMediaCategoryType category,
                                                   int column);
/// Qt::AlignRight for numbers and timecodes, else Qt::AlignLeft.
[[nodiscard]] NXMEDIAVIEWS_EXPORT Qt::Alignment alignment(NXVBLMODEL::NxMediaCategoryType category,
                                                          int column);

} // namespace NxMediaColumns
