// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaViews/NxGlyph_p.h>

#include <QColor>
#include <QHash>
#include <QPixmap>

/// Glyphs as pictures, drawn once for each size, colour and crispness.
class NxGlyphPictures
{
public:
    /// @param side of the picture, px; a null picture below 1.
    /// @param ground of a round badge behind the glyph; an invalid colour: none.
    [[nodiscard]] QPixmap picture(NxGlyph glyph, int side, const QColor &colour,
                                  qreal devicePixelRatio, const QColor &ground = QColor());

private:
    struct Key
    {
        NxGlyph glyph;
        int devicePixels;
        QRgb colour;
        QRgb ground;
        friend bool operator==(const Key &a, const Key &b)
        {
            return a.glyph == b.glyph && a.devicePixels == b.devicePixels && a.colour == b.colour
                   && a.ground == b.ground;
        }
        friend uint qHash(const Key &key, uint seed)
        {
            return ::qHash((uint(key.glyph) << 16) ^ uint(key.devicePixels) ^ (key.colour * 31u)
                               ^ (key.ground * 131u),
                           seed);
        }
    };

    QHash<Key, QPixmap> m_pictures; // Few: as many as there are glyphs, colours and sizes.
};
