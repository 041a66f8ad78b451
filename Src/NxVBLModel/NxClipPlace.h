// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

/// Where a clip stands and what it shows, in frames of its timeline.
struct NxClipPlace
{
    int track = 0; ///< From 0, the lowest.
    qint64 position = 0; ///< Where it begins.
    qint64 length = 0; ///< How long it is shown; at least 1.
    qint64 inPoint = 0; ///< Where in the media it begins.

    friend bool operator==(const NxClipPlace &a, const NxClipPlace &b)
    {
        return a.track == b.track && a.position == b.position && a.length == b.length
               && a.inPoint == b.inPoint;
    }
    friend bool operator!=(const NxClipPlace &a, const NxClipPlace &b) { return !(a == b); }
};
