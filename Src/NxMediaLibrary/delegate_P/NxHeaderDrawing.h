// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/delegate/NxMediaItemEventTypes.h>
#include <NxWidgets/NxSkinPicture.h>

#include <QLatin1String>
#include <QMap>
#include <QRect>

class QPainter;

/// @file
/// What the rows that stand between media are drawn of.

using NxArrowPictures = QMap<NxMediaItemChildStatus, NxSkinPicture>;

/// The width and the height of an arrow, px.
constexpr int NxArrowSize = 8;

/// The present skin's arrows that point to a side, "right" or "down".
[[nodiscard]] NxArrowPictures loadArrowPictures(QLatin1String side);

/// The picture scaled into the rectangle, crisp on any screen; nothing for a null one.
void drawArrowPicture(QPainter *painter, const QRect &rect, const NxSkinPicture &picture);

/// Where an arrow stands in a row of this height whose top is at `y`.
[[nodiscard]] QRect arrowRect(int x, int y, int rowHeight);

/// A line through the middle of the rectangle, with the painter's pen; nothing where the
/// rectangle is empty.
void drawCentreLine(QPainter *painter, const QRect &rect);

/// Nothing is left of a rectangle that narrow rows leave no room for: the mouse would find one of
/// negative width on the other side of its edge.
[[nodiscard]] QRect withoutNegativeSize(const QRect &rect);
