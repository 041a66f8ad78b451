// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>

#include <QImage>

class QIODevice;

/// A small upright picture of a still, and what the still was made of.
struct StillPicture
{
    QImage picture; ///< Fits the cover's size, never enlarged, without holes.
    int bitDepth = 0; ///< Bits a channel; 0: not known.
    QString pixelFormat; ///< As it is decoded, e.g. "rgb24"; empty: not known.

    /// Reads a still by its content, whatever it is called. Those that can be decoded small are.
    /// The error is a sentence for the user.
    [[nodiscard]] static NxResult<StillPicture> read(QIODevice *device);
};
