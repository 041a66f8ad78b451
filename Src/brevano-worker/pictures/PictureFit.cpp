// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/pictures/PictureFit.h>

#include <QPainter>

#include <algorithm>

QSize PictureFit::within(QSizeF shape, QSize box, Enlarge enlarge)
{
    double scale = std::min(box.width() / shape.width(), box.height() / shape.height());
    if (enlarge == Enlarge::Never)
        scale = std::min(scale, 1.0);
    return QSize(std::clamp(qRound(shape.width() * scale), 1, box.width()),
                 std::clamp(qRound(shape.height() * scale), 1, box.height()));
}

QImage PictureFit::overBlack(const QImage &picture)
{
    if (!picture.hasAlphaChannel())
        return picture.convertToFormat(QImage::Format_RGB32);
    QImage whole(picture.size(), QImage::Format_RGB32);
    whole.fill(Qt::black);
    QPainter painter(&whole);
    painter.drawImage(0, 0, picture);
    return whole;
}
