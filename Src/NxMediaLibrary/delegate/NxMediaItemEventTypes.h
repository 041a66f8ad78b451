// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <QMetaType>

class QStyleOptionViewItem;

/// @file
/// What delegates and painters say to each other about one row. Values beyond the named ones may
/// arrive from a host's own painters and must be survived. Never renumber one.

/// What one mouse event means to a painter.
enum NxMediaItemMouseEvent : int {
    mmeNone = 0, ///< Anything else, and presses and releases while a modal mask is shown.
    mmeMove = 1,
    mmeLeftPress = 2,
    mmeOtherPress = 3,
    mmeLeftRelease = 4,
    mmeOtherRelease = 5,
    mmeDoubleClick = 6, ///< Of any button, whether or not a mask is shown.
};

/// How a row is drawn.
enum NxMediaItemState : int {
    misNormal = 0,
    misHovered = 1,
    misSelected = 2,
    misSelectedHovered = 3,
    misDisabled = 4,
};

/// One hit area inside a row.
enum NxMediaItemChildStatus : int {
    mcsInitial = 0, ///< Not touched yet; drawn as normal.
    mcsDisabled = 1, ///< Does nothing, and no mouse event changes it.
    mcsNormal = 2,
    mcsHovered = 3,
    mcsPressed = 4,
};

/// What a click on a row has come to.
enum NxMediaItemEventCondition : int {
    mecNone = 0,
    mecPress = 1,
    mecRelease = 3,
    mecDoubleClick = 4,
};

/// The action that a click on a hit area completes. Painters of a host have values of their own.
enum NxMediaItemUsageEvents : int {
    mueNone = 0, ///< The row itself was clicked.
    mueHoveredOnly = 1, ///< Reaches the presenter only from the row that is drawn hovered.
    mueToggleGroup = 8, ///< The arrow of a group's header.
    mueViewMore = 10, ///< "View More".
};

/// What a click has come to with this mouse event: nothing for moves and unknown events.
[[nodiscard]] NXMEDIALIBRARY_EXPORT NxMediaItemEventCondition
mediaItemEventCondition(NxMediaItemMouseEvent event);
/// How a row is drawn that the view describes so.
[[nodiscard]] NXMEDIALIBRARY_EXPORT NxMediaItemState
mediaItemState(const QStyleOptionViewItem &option);

Q_DECLARE_METATYPE(NxMediaItemEventCondition)
