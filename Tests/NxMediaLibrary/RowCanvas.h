// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NxSkinStyle.h>

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPoint>
#include <QRect>

/// What the tests of painters draw on, and look at afterwards.

/// The same text in it is as wide on every machine.
inline QFont rowFont(int pixels = 14)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixels);
    return font;
}

/// White, of this size on a screen of this ratio.
inline QImage blankCanvas(const QSize &size, qreal ratio = 1.0)
{
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    return image;
}

/// A white canvas after the deed.
template<typename Deed>
QImage drawnOn(const QSize &size, const Deed &deed, qreal ratio = 1.0)
{
    QImage image = blankCanvas(size, ratio);
    QPainter painter(&image);
    painter.setFont(rowFont());
    deed(&painter);
    return image;
}

/// Where anything but white is, in pixels of the image.
inline QRect inked(const QImage &image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::white))
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

/// A part of an image that begins to be compared with another: without its ratio.
inline QImage part(const QImage &image, const QRect &pixels)
{
    QImage cut = image.copy(pixels);
    cut.setDevicePixelRatio(1.0);
    return cut;
}

/// A picture of the resources on white.
inline QImage pictureOnWhite(const QString &path)
{
    QImage picture(path);
    picture.setDevicePixelRatio(1.0); // Whatever its name says.
    return drawnOn(picture.size(), [&](QPainter *painter) { painter->drawImage(0, 0, picture); });
}

/// An arrow of a skin, as the file is named.
inline QImage arrowOnWhite(NxSkin skin, const char *name)
{
    const QString folder =
        QLatin1String(skin == NxSkin::Light ? ":/Resource/Light/" : ":/Resource/");
    return pictureOnWhite(folder + QLatin1String("icon8_arrow-") + QLatin1String(name)
                          + QLatin1String(".png"));
}

inline QColor skinColor(NxSkinColor key)
{
    return NxSkinStyle::instance()->GetColor(key);
}
