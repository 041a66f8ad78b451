// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/objects/NxEngineTimelineOf.h>
#include <NxVBLModel/INxCompositeTimeline.h>

/// A timeline that stands as a clip on another one.
class NXVBLENGINE_TEST_EXPORT NxEngineCompositeTimeline final
    : public NxEngineTimelineOf<INxCompositeTimeline>
{
public:
    using NxEngineTimelineOf::NxEngineTimelineOf;
    ~NxEngineCompositeTimeline() override;

    INxClip *outerClip() const override;
};
