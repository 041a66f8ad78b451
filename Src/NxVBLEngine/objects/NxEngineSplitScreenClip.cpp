// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineSplitScreenClip.h>

#include <NxVBLEngine/objects/NxEngineTimelineEditor.h>
#include <NxVBLEngine/objects/NxTimelineMemory.h>

#include <algorithm>

NxEngineSplitScreenClip::~NxEngineSplitScreenClip() = default;

bool NxEngineSplitScreenClip::removeInnerClip(INxClip *clip)
{
    return memory()->editor()->removeInnerClip(this, clip);
}

void NxEngineSplitScreenClip::insert(NxClipNode *inner)
{
    const auto isBefore = [](INxClip *standing, qint64 id) {
        return NxTimelineMemory::nodeOf(standing)->id() < id;
    };
    m_inner.insert(std::lower_bound(m_inner.begin(), m_inner.end(), inner->id(), isBefore),
                   inner->clip());
}

void NxEngineSplitScreenClip::take(NxClipNode *inner)
{
    m_inner.removeOne(inner->clip());
}
