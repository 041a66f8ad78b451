// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <brevano-worker/pictures/AvHandles.h>
#include <brevano-worker/pictures/PictureFit.h>

#include <QTransform>

struct AVStream;

/// Makes small upright pictures of square pixels out of decoded frames. Frames may change their
/// size and format as they like.
class PictureScaler
{
public:
    /// `pixelAspect` 0/1: the frames say it themselves.
    PictureScaler(AVRational pixelAspect, const QTransform &upright);
    /// As the container wants the stream to be shown.
    [[nodiscard]] static PictureScaler of(const AVStream *stream);

    /// Null when the frame cannot be shown.
    [[nodiscard]] QImage fitted(const AVFrame *frame, QSize box, PictureFit::Enlarge enlarge);

    /// The quarter turns and mirrorings nearest to a display matrix of a container (nine numbers).
    [[nodiscard]] static QTransform uprightOf(const int32_t *displayMatrix);

private:
    /// Of square pixels, not upright yet; neither side longer than the frame's.
    [[nodiscard]] QSizeF shapeOf(const AVFrame *frame) const;
    [[nodiscard]] QImage scaled(const AVFrame *frame, QSize size);

    AVRational m_pixelAspect;
    QTransform m_upright;
    ScalerHandle m_scaler;
};
