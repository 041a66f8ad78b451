// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/objects/NxEngineTimelineOf.h>

/// A timeline of its own.
class NXVBLENGINE_TEST_EXPORT NxEngineTimeline final : public NxEngineTimelineOf<INxTimeline>
{
public:
    using NxEngineTimelineOf::NxEngineTimelineOf;
    ~NxEngineTimeline() override;
};
