// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ToolIcons.h>

#include <NxWidgets/NxSkinStyle.h>

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>

#include <algorithm>

namespace {

using Id = ToolIcons::Id;

constexpr qreal Units = 16.0; // Along each side of a picture.
constexpr qreal Stroke = 1.6;
constexpr qreal Corner = 0.8;

QPainterPath stroked(const QPainterPath &line)
{
    QPainterPathStroker pen;
    pen.setWidth(Stroke);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    return pen.createStroke(line);
}

QPainterPath linePath(const QVector<QPointF> &points)
{
    QPainterPath line;
    line.addPolygon(QPolygonF(points));
    return stroked(line);
}

QPainterPath import()
{
    return linePath({{8, 2}, {8, 10}}) | linePath({{4.6, 6.8}, {8, 10.2}, {11.4, 6.8}})
           | linePath({{2.4, 10.6}, {2.4, 13.6}, {13.6, 13.6}, {13.6, 10.6}});
}

QPainterPath list()
{
    QPainterPath path;
    for (const qreal y : {3.0, 7.2, 11.4}) {
        path.addRoundedRect(QRectF(2, y, 2, 2), Corner, Corner);
        path.addRoundedRect(QRectF(5.6, y, 8.4, 2), Corner, Corner);
    }
    return path;
}

/// So many tiles along each side.
QPainterPath tiles(int count)
{
    constexpr qreal side = 12.0;
    constexpr qreal gap = 1.5;
    const qreal tile = (side - gap * (count - 1)) / count;
    QPainterPath path;
    for (int place = 0; place < count * count; ++place) {
        const QPointF corner(2 + (place % count) * (tile + gap),
                             2 + (place / count) * (tile + gap));
        path.addRoundedRect(QRectF(corner, QSizeF(tile, tile)), Corner, Corner);
    }
    return path;
}

QPainterPath smallTiles()
{
    return tiles(3);
}

QPainterPath middleTiles()
{
    return tiles(2);
}

QPainterPath largeTile()
{
    return tiles(1);
}

QPainterPath sort()
{
    return linePath({{4.5, 2.6}, {4.5, 13}}) | linePath({{2, 10.6}, {4.5, 13.2}, {7, 10.6}})
           | linePath({{9, 3.6}, {11, 3.6}}) | linePath({{9, 7.6}, {12.4, 7.6}})
           | linePath({{9, 11.6}, {14, 11.6}});
}

QPainterPath group()
{
    QPainterPath path;
    for (const qreal y : {2.0, 9.0}) {
        path.addRoundedRect(QRectF(2, y, 12, 1.8), Corner, Corner);
        path.addRoundedRect(QRectF(4.6, y + 3, 4, 2.4), Corner, Corner);
        path.addRoundedRect(QRectF(10, y + 3, 4, 2.4), Corner, Corner);
    }
    return path;
}

QPainterPath filter()
{
    return linePath(
        {{2.4, 3}, {13.6, 3}, {9.4, 8.4}, {9.4, 13}, {6.6, 11.4}, {6.6, 8.4}, {2.4, 3}});
}

QPainterPath search()
{
    QPainterPath ring;
    ring.addEllipse(QRectF(2.4, 2.4, 8.2, 8.2));
    return stroked(ring) | linePath({{9.6, 9.6}, {13.6, 13.6}});
}

QPainterPath clear()
{
    return linePath({{4, 4}, {12, 12}}) | linePath({{12, 4}, {4, 12}});
}

QPainterPath more()
{
    return linePath({{3.6, 4}, {7.4, 8}, {3.6, 12}}) | linePath({{8.6, 4}, {12.4, 8}, {8.6, 12}});
}

struct Shape
{
    Id id;
    QPainterPath (*path)();
};

constexpr Shape Shapes[] = {
    {Id::Import, import},   {Id::List, list},   {Id::Small, smallTiles}, {Id::Middle, middleTiles},
    {Id::Large, largeTile}, {Id::Sort, sort},   {Id::Group, group},      {Id::Filter, filter},
    {Id::Search, search},   {Id::Clear, clear}, {Id::More, more},
};

QPainterPath pathOf(Id id)
{
    const auto *shape = std::find_if(std::begin(Shapes), std::end(Shapes),
                                     [id](const Shape &one) { return one.id == id; });
    return shape == std::end(Shapes) ? QPainterPath() : shape->path();
}

QColor colourOf(QIcon::Mode mode, QIcon::State state)
{
    const NxSkinStyle *skin = NxSkinStyle::instance();
    if (mode == QIcon::Disabled)
        return skin->GetColor(NxSkinColor::Text_Icon_Disabled);
    return skin->GetColor(state == QIcon::On ? NxSkinColor::Accent
                                             : NxSkinColor::Text_Icon_Primary);
}

/// Fills a path in the colour of the moment at which it is shown.
class PathEngine final : public QIconEngine
{
public:
    explicit PathEngine(QPainterPath path) : m_path(std::move(path)) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / Units, rect.height() / Units);
        painter->fillPath(m_path, colourOf(mode, state));
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return picture;
    }

    [[nodiscard]] QIconEngine *clone() const override { return new PathEngine(*this); }

private:
    const QPainterPath m_path;
};

} // namespace

QIcon ToolIcons::icon(Id id)
{
    return QIcon(new PathEngine(pathOf(id)));
}
