// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/pictures/Waveform.h>

#include <NxWorkerProtocol/NxPictureFile.h>

#include <QPainter>

namespace {

constexpr QRgb Ground = qRgb(0x1f, 0x22, 0x26);
constexpr QRgb Wave = qRgb(0x4c, 0xc2, 0xb4);
constexpr double Reach = 0.45; // Of the height, to each side of the middle.

} // namespace

QImage Waveform::of(const std::vector<float> &peaks)
{
    QImage picture(NxPictureFile::CoverWidth, NxPictureFile::CoverHeight, QImage::Format_RGB32);
    picture.fill(Ground);
    QPainter painter(&picture);
    const int columns = int(peaks.size());
    const int middle = picture.height() / 2;
    for (int column = 0; column < columns; ++column) {
        const int left = column * picture.width() / columns;
        const int right = (column + 1) * picture.width() / columns;
        // Silence is a line.
        const int reach = qMax(1, qRound(double(peaks[size_t(column)]) * Reach * picture.height()));
        painter.fillRect(left, middle - reach, right - left, 2 * reach, QColor(Wave));
    }
    return picture;
}
