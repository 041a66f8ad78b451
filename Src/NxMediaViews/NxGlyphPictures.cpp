// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxGlyphPictures_p.h>

#include <NxMediaViews/NxGlyphPaths_p.h>

#include <QPainter>

namespace {

constexpr int MostPictures = 512; // A host that changes colours all the time costs no more.
constexpr qreal Corner = 3.0; // Of a badge, in units of the glyph.
constexpr qreal BadgedScale = 0.75; // Of the glyph in its badge.

QPixmap drawn(NxGlyph glyph, int devicePixels, const QColor &colour, const QColor &ground)
{
    QPixmap picture(devicePixels, devicePixels);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(devicePixels / NxGlyphUnits, devicePixels / NxGlyphUnits);
    if (ground.isValid()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground);
        painter.drawRoundedRect(QRectF(0, 0, NxGlyphUnits, NxGlyphUnits), Corner, Corner);
        const qreal inset = NxGlyphUnits * (1 - BadgedScale) / 2;
        painter.translate(inset, inset);
        painter.scale(BadgedScale, BadgedScale);
    }
    painter.fillPath(nxGlyphPath(glyph), colour);
    return picture;
}

} // namespace

QPixmap NxGlyphPictures::picture(NxGlyph glyph, int side, const QColor &colour,
                                 qreal devicePixelRatio, const QColor &ground)
{
    const int devicePixels = qRound(side * devicePixelRatio);
    if (devicePixels < 1)
        return {};
    const Key key{glyph, devicePixels, colour.rgba(), ground.isValid() ? ground.rgba() : 0};
    const auto found = m_pictures.constFind(key);
    if (found != m_pictures.constEnd() && found->devicePixelRatio() == devicePixelRatio)
        return *found;
    if (m_pictures.size() >= MostPictures)
        m_pictures.clear();
    QPixmap picture = drawn(glyph, devicePixels, colour, ground);
    picture.setDevicePixelRatio(devicePixelRatio);
    m_pictures.insert(key, picture);
    return picture;
}
