// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaViews/NxGlyph_p.h>

#include <QPainterPath>

/// The units along each side of a glyph.
constexpr qreal NxGlyphUnits = 16.0;

/// The shape of a glyph, to be filled.
[[nodiscard]] QPainterPath nxGlyphPath(NxGlyph glyph);
