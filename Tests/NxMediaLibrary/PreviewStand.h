// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/delegate/INxPreviewFrameHelper.h>

#include <QImage>
#include <QMetaObject>
#include <QTimer>
#include <QVector>

#include <algorithm>
#include <functional>

/// A preview frame helper whose steps a test takes by hand.
struct PreviewStand
{
    PreviewStand()
    {
        for (QTimer *timer : helper.findChildren<QTimer *>())
            (timer->isSingleShot() ? downloadTimer : frameTimer) = timer;
        QObject::connect(&helper, &INxPreviewFrameHelper::sigUpdate, &helper,
                         [this](const QModelIndex &index) {
                             updates.append(index);
                             if (onUpdate)
                                 onUpdate();
                         });
    }
    /// What the frame timer does.
    bool step() { return QMetaObject::invokeMethod(&helper, "slotPlayThumbnailTimeout"); }
    /// What the download timer does.
    bool downloaded() { return QMetaObject::invokeMethod(&helper, "slotDownloadVCGMediaTimeout"); }
    /// The frame to be painted; null when there is none.
    [[nodiscard]] QImage frame() const
    {
        QImage image;
        return helper.getCurIndexPlayThumbnail(image) ? image : QImage();
    }
    [[nodiscard]] bool isPlaying() const { return frameTimer->isActive(); }

    INxPreviewFrameHelper helper;
    QTimer *frameTimer = nullptr; // Not owned, as the next one is not.
    QTimer *downloadTimer = nullptr;
    QVector<QModelIndex> updates;
    std::function<void()> onUpdate;
};

/// A film strip of that many pixels; frame n is of the colour (n, 100, 200).
[[nodiscard]] inline QImage filmStrip(int height, int width = 144)
{
    constexpr int frameHeight = 81;
    QImage strip(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        auto *line = reinterpret_cast<QRgb *>(strip.scanLine(y));
        std::fill(line, line + width, qRgb(y / frameHeight, 100, 200));
    }
    return strip;
}

/// The number of the frame that a picture shows: by its red. -1 for a null picture.
[[nodiscard]] inline int frameShown(const QImage &image)
{
    return image.isNull() ? -1 : qRed(image.pixel(0, 0));
}
