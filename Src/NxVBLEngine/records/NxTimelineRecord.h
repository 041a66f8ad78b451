// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// What a project keeps of one timeline.
struct NxTimelineRecord
{
    qint64 id = 0; ///< Counter of the project, never used twice.
    QString name;
    /// The clip that stands for the timeline on another one; 0 for a timeline of its own.
    qint64 outerClip = 0;
    bool alive = true; ///< False: removed, and kept for the undo step that can bring it back.
};
