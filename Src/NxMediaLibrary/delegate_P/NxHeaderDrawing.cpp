// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate_P/NxHeaderDrawing.h>

#include <NxWidgets/NxSkinStyle.h>

#include <QPaintDevice>
#include <QPainter>
#include <QPixmap>

namespace {

struct StatusName
{
    NxMediaItemChildStatus status;
    const char *name;
};

constexpr StatusName StatusNames[] = {
    {mcsDisabled, "disabled"},
    {mcsNormal, "normal"},
    {mcsHovered, "hover"},
    {mcsPressed, "pressed"},
};

} // namespace

NxArrowPictures loadArrowPictures(QLatin1String side)
{
    const NxSkinStyle *skin = NxSkinStyle::instance();
    NxArrowPictures pictures;
    for (const StatusName &it : StatusNames) {
        const QString path =
            QStringLiteral(":/Resource/icon8_arrow-%1-%2.png").arg(side, QLatin1String(it.name));
        pictures.insert(it.status, NxSkinPicture(skin->FormatResourceFile(path)));
    }
    return pictures;
}

void drawArrowPicture(QPainter *painter, const QRect &rect, const NxSkinPicture &picture)
{
    if (picture.isNull())
        return;
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter->drawPixmap(rect, picture.pixmap(painter->device()->devicePixelRatioF()));
    painter->restore();
}

QRect arrowRect(int x, int y, int rowHeight)
{
    return {x, y + (rowHeight - NxArrowSize) / 2, NxArrowSize, NxArrowSize};
}

void drawCentreLine(QPainter *painter, const QRect &rect)
{
    if (rect.isEmpty())
        return;
    const int y = rect.center().y();
    painter->drawLine(rect.left(), y, rect.right(), y);
}

QRect withoutNegativeSize(const QRect &rect)
{
    return {rect.topLeft(), rect.size().expandedTo({0, 0})};
}
