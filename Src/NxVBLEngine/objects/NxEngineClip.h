// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/objects/NxEngineClipOf.h>

/// A clip of a media, or one that stands for a composite timeline.
class NXVBLENGINE_TEST_EXPORT NxEngineClip final : public NxEngineClipOf<INxClip>
{
public:
    using NxEngineClipOf::NxEngineClipOf;
    ~NxEngineClip() override;
};
