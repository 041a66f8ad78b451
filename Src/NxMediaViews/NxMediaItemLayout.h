// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxMediaViews/NxMediaViewsExport.h>

#include <QRect>
#include <QSize>

/// Where everything of a media's row lies, px from the row's top left corner.
///
/// A place that a narrow row has no room for is null; none is ever negative or outside the row.
/// In a list the name gives way last.
struct NXMEDIAVIEWS_EXPORT NxMediaItemLayout
{
    /// The size of a row of this mode.
    /// @param lineHeight of the name, px.
    /// @param listWidth the width of a row of the list; the other modes are as wide as their cover.
    [[nodiscard]] static QSize rowSize(NXMEDIALIBRARY::NxMediaItemViewMode mode, int lineHeight,
                                       int listWidth);
    /// The places in a row of any size.
    /// @param listNameWidth of a list with columns: the width of the first one, px. Everything but
    /// the row lies in it, and what other columns tell (kind, length, use) has no place. 0: all
    /// of the row is laid out.
    [[nodiscard]] static NxMediaItemLayout of(NXMEDIALIBRARY::NxMediaItemViewMode mode,
                                              const QSize &row, int lineHeight,
                                              Qt::LayoutDirection direction, int listNameWidth = 0);
    /// The same for a row whose top left corner is there.
    [[nodiscard]] NxMediaItemLayout translated(const QPoint &topLeft) const;

    QRect row;
    QRect cover;
    QRect name;
    QRect duration; ///< On a cover the button lies over its end.
    QRect kindMark;
    QRect kindText; ///< Of the list.
    QRect usedMark;
    QRect proxyMark;
    QRect licenceMark;
    QRect missingMark; ///< In the middle of the cover.
    QRect addButton;
    QRect progress;
};
