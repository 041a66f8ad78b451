// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/objects/NxEngineClipOf.h>
#include <NxVBLModel/INxSplitScreenClip.h>

/// A clip that shows others beside one another. Knows those that live, in the order in which they
/// were made.
class NXVBLENGINE_TEST_EXPORT NxEngineSplitScreenClip final
    : public NxEngineClipOf<INxSplitScreenClip>
{
public:
    using NxEngineClipOf::NxEngineClipOf;
    ~NxEngineSplitScreenClip() override;

    QList<INxClip *> innerClips() override { return m_inner; }
    bool removeInnerClip(INxClip *clip) override;

    /// A clip came to life in here, or lives no longer.
    void insert(NxClipNode *inner);
    void take(NxClipNode *inner);

private:
    QList<INxClip *> m_inner; // Not owned.
};
