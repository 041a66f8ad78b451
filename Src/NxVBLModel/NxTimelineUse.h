// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class INxClip;
class INxTimeline;

/// One place where a timeline uses a media. Both belong to the project.
struct NxTimelineUse
{
    INxTimeline *timeline = nullptr;
    INxClip *clip = nullptr;
};
