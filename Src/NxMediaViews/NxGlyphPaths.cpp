// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxGlyphPaths_p.h>

#include <QPolygonF>
#include <QVector>

#include <iterator>

namespace {

QPainterPath roundedPath(const QRectF &rect, qreal radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

QPainterPath rectPath(const QRectF &rect)
{
    QPainterPath path;
    path.addRect(rect);
    return path;
}

QPainterPath ellipsePath(const QRectF &rect)
{
    QPainterPath path;
    path.addEllipse(rect);
    return path;
}

QPainterPath polygonPath(const QVector<QPointF> &corners)
{
    QPainterPath path;
    path.addPolygon(QPolygonF(corners));
    path.closeSubpath();
    return path;
}

QPainterPath film()
{
    QPainterPath path = roundedPath({2, 3, 12, 10}, 1);
    for (const qreal y : {4.0, 7.0, 10.0}) {
        path -= rectPath({3, y, 1.5, 2});
        path -= rectPath({11.5, y, 1.5, 2});
    }
    return path - polygonPath({{6.6, 5.6}, {10.2, 8}, {6.6, 10.4}});
}

QPainterPath sound()
{
    QPainterPath path = ellipsePath({2.6, 10, 4.2, 3.6});
    path |= ellipsePath({9.2, 8.8, 4.2, 3.6});
    path |= rectPath({5.5, 4, 1.3, 8});
    path |= rectPath({12.1, 3, 1.3, 7.6});
    return path | polygonPath({{5.5, 3.6}, {13.4, 2}, {13.4, 4.8}, {5.5, 6.4}});
}

QPainterPath picture()
{
    QPainterPath path = roundedPath({2, 3, 12, 10}, 1) - rectPath({3.2, 4.2, 9.6, 7.6});
    path |= polygonPath({{3.6, 11.6}, {6.6, 7.2}, {8.8, 10}, {10.2, 8.6}, {12.4, 11.6}});
    return path | ellipsePath({9.4, 5.2, 2.2, 2.2});
}

QPainterPath motion()
{
    QPainterPath path = roundedPath({2, 2.6, 9.4, 8}, 1) - rectPath({3.2, 3.8, 7, 5.6});
    path -= rectPath({4.2, 5, 9.8, 8.4});
    return path | roundedPath({5, 5.8, 9, 7.6}, 1);
}

QPainterPath text()
{
    return rectPath({2.5, 3.5, 11, 1.6}) | rectPath({2.5, 7.2, 11, 1.6})
           | rectPath({2.5, 10.9, 7, 1.6});
}

QPainterPath folder()
{
    return roundedPath({1.5, 4.5, 13, 8.7}, 1)
           | polygonPath({{1.5, 6}, {1.5, 3.9}, {2.2, 3.2}, {6, 3.2}, {7.6, 4.8}, {7.6, 6}});
}

QPainterPath projectTemplate()
{
    return rectPath({2, 3, 7, 6}) | rectPath({10, 3, 4, 6}) | rectPath({2, 10, 4, 3})
           | rectPath({7, 10, 7, 3});
}

QPainterPath element()
{
    return polygonPath(
        {{8, 1.6}, {9.7, 6.3}, {14.4, 8}, {9.7, 9.7}, {8, 14.4}, {6.3, 9.7}, {1.6, 8}, {6.3, 6.3}});
}

QPainterPath plus()
{
    return rectPath({7, 3, 2, 10}) | rectPath({3, 7, 10, 2});
}

QPainterPath used()
{
    return polygonPath({{2.4, 8.4}, {3.9, 6.9}, {6.6, 9.6}, {12.1, 4.1}, {13.6, 5.6}, {6.6, 12.6}});
}

QPainterPath proxy()
{
    QPainterPath path = roundedPath({4.5, 2.5, 8, 6.6}, 3.2) | rectPath({4.5, 2.5, 4, 6.6});
    path -= roundedPath({6.4, 4.3, 4.3, 3}, 1.4);
    return path | rectPath({4.5, 2.5, 1.9, 11});
}

QPainterPath standard()
{
    return polygonPath({{8, 1.8},
                        {9.8, 6},
                        {14.3, 6.4},
                        {10.9, 9.3},
                        {12, 13.8},
                        {8, 11.4},
                        {4, 13.8},
                        {5.1, 9.3},
                        {1.7, 6.4},
                        {6.2, 6}});
}

QPainterPath premium()
{
    return polygonPath(
        {{1.8, 4.6}, {5.2, 7.4}, {8, 2.8}, {10.8, 7.4}, {14.2, 4.6}, {13, 12.8}, {3, 12.8}});
}

QPainterPath missing()
{
    QPainterPath path = polygonPath({{8, 1.6}, {15, 14}, {1, 14}});
    path -= rectPath({7.2, 5.8, 1.6, 4.4});
    return path - rectPath({7.2, 11.2, 1.6, 1.6});
}

using Drawing = QPainterPath (*)();

/// By NxGlyph.
constexpr Drawing Drawings[] = {film,    sound, picture, motion, text,     folder,  projectTemplate,
                                element, plus,  used,    proxy,  standard, premium, missing};
static_assert(std::size(Drawings) == size_t(NxGlyph::Missing) + 1, "every glyph has a drawing");

} // namespace

QPainterPath nxGlyphPath(NxGlyph glyph)
{
    return Drawings[size_t(glyph)]();
}
