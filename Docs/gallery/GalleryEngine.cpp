// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "GalleryEngine.h"

#include "GalleryMedia.h"

#include <NxVBLModel/INxBsThumbManager.h>

#include <QMap>
#include <QPainter>
#include <QPainterPath>

namespace {

/// A landscape under a sky of this hue.
QImage painted(int hue, const QSize &size)
{
    QImage cover(size, QImage::Format_RGB32);
    QPainter painter(&cover);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, QColor::fromHsv(hue, 150, 225));
    sky.setColorAt(1, QColor::fromHsv((hue + 40) % 360, 90, 245));
    painter.fillRect(cover.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromHsv((hue + 40) % 360, 40, 255));
    const qreal unit = size.height() / 9.0;
    painter.drawEllipse(QPointF(size.width() * 0.7, unit * 3), unit, unit);
    for (const qreal peak : {0.3, 0.62}) {
        QPainterPath hill(QPointF(size.width() * (peak - 0.45), size.height()));
        hill.lineTo(size.width() * peak, unit * (peak < 0.5 ? 3.6 : 4.8));
        hill.lineTo(size.width() * (peak + 0.5), size.height());
        painter.setBrush(QColor::fromHsv(hue, 120, peak < 0.5 ? 120 : 85));
        painter.drawPath(hill);
    }
    return cover;
}

class GalleryThumbs final : public INxBsThumbManager
{
public:
    QImage thumbnail(INxAbstractMedia *media, const QSize &devicePixels) override
    {
        const auto *item = dynamic_cast<const GalleryItem *>(media);
        if (!item || item->hue < 0)
            return {};
        QImage &cover = m_covers[item->hue * 10000 + devicePixels.width()];
        if (cover.isNull())
            cover = painted(item->hue, devicePixels);
        return cover;
    }
    void cancelRequests() override {}

private:
    QMap<int, QImage> m_covers; // By hue and width.
};

} // namespace

INxBsThumbManager *GalleryEngine::createThumbManager()
{
    return new GalleryThumbs;
}
