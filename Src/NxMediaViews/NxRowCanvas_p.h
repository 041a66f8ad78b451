// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaViews/NxBadgePictures_p.h>
#include <NxMediaViews/NxElidedTexts_p.h>
#include <NxMediaViews/NxGlyphPictures_p.h>

#include <QRect>

class QImage;
class QPainter;
class QStyleOptionViewItem;

/// What rows draw again and again, kept between paints.
struct NxRowCaches
{
    NxGlyphPictures glyphs;
    NxElidedTexts names;
    NxElidedTexts details;
    NxBadgePictures badges;
};

/// Draws one row on a screen of any crispness. Empty places are left alone.
class NxRowCanvas
{
public:
    /// None of them is owned; they live longer. Texts are drawn in the option's font.
    NxRowCanvas(QPainter *painter, const QStyleOptionViewItem &option, NxRowCaches *caches);

    [[nodiscard]] QPainter *painter() const { return m_painter; }
    [[nodiscard]] bool isRightToLeft() const;
    /// How many pixels of the screen the place takes.
    [[nodiscard]] QSize devicePixels(const QSize &size) const;

    void ground(const QRect &place, const QColor &colour) const;
    /// @param ground of a badge behind the glyph; an invalid colour: none.
    void glyph(NxGlyph glyph, const QRect &place, const QColor &colour,
               const QColor &ground = QColor()) const;
    /// One line in the middle of the place's height, from where reading begins.
    void name(const QString &text, const QRect &place, const QColor &colour) const;
    /// A smaller line; `alignment` is mirrored where rows are.
    void detail(const QString &text, const QRect &place, const QColor &colour,
                Qt::Alignment alignment = Qt::AlignLeft) const;
    /// A text in a badge at the beginning of the place.
    void badge(const QString &text, const QRect &place, const QColor &ink,
               const QColor &ground) const;
    /// A picture in pixels of the screen, in the middle of the place; never scaled.
    void picture(const QImage &picture, const QRect &place) const;

private:
    void line(NxElidedTexts &texts, const QFont &font, const QString &text, const QRect &place,
              Qt::Alignment alignment) const;

    QPainter *const m_painter; // Not owned, as the next two.
    const QStyleOptionViewItem &m_option;
    NxRowCaches *const m_caches;
    const qreal m_ratio;
};
