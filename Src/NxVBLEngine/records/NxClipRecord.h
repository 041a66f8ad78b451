// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxClipPlace.h>
#include <NxVBLModel/NxMediaTypes.h>

#include <limits>

/// What a project keeps of one clip.
struct NxClipRecord
{
    qint64 id = 0; ///< Counter of the project, never used twice.
    qint64 timeline = 0; ///< Id of the timeline that shows it.
    qint64 split = 0; ///< Id of the split-screen clip that it stands in; 0 for none.
    int kind = NXVBLMODEL::ckVideo; ///< NXVBLMODEL::NxClipKind.
    qint64 media = 0; ///< Id of the media or resource; 0 for a clip without one.
    /// Inside a split screen only the in-point counts: the rest is the split screen's.
    NxClipPlace place;
    bool alive = true; ///< False: removed, and kept for the undo step that can bring it back.
};

/// Whether a clip can stand there, were the timeline empty.
[[nodiscard]] constexpr bool isPossible(const NxClipPlace &place)
{
    return place.track >= 0 && place.track < std::numeric_limits<int>::max() && place.position >= 0
           && place.length >= 1 && place.inPoint >= 0
           && place.position <= std::numeric_limits<qint64>::max() - place.length;
}
