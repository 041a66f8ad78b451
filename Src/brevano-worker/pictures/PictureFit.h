// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>
#include <QSize>

/// How pictures are brought to the sizes in which they are shown.
namespace PictureFit {

enum class Enlarge {
    Never,
    ToFill, ///< Until it touches the box.
};

/// The size of a picture of that shape inside a box; at least 1 x 1 px.
[[nodiscard]] QSize within(QSizeF shape, QSize box, Enlarge enlarge);

/// The picture without holes. What can be seen through is black, as on a timeline where nothing
/// lies beneath: cached pictures are JPEG, which knows no transparency.
[[nodiscard]] QImage overBlack(const QImage &picture);

} // namespace PictureFit
