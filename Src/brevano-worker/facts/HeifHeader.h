// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QSize>

#include <optional>

class FootageFile;

/// What the header of a HEIF picture says. The image plugin learns the size by decoding all of the
/// picture, which takes a hundred times as long.
struct HeifHeader
{
    QSize size; ///< px, as shown.
    int rotation = 0; ///< Degrees clockwise: 0, 90, 180, 270.

    /// Nothing when the file is no HEIF picture, or one whose size only decoding tells.
    [[nodiscard]] static std::optional<HeifHeader> read(const FootageFile &file);
};
