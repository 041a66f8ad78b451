// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineCompositeTimeline.h>

#include <NxVBLEngine/objects/NxClipNode.h>

NxEngineCompositeTimeline::~NxEngineCompositeTimeline() = default;

INxClip *NxEngineCompositeTimeline::outerClip() const
{
    NxClipNode *standing = outer();
    return standing ? standing->clip() : nullptr;
}
