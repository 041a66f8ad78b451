// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/objects/NxClipNode.h>
#include <NxVBLEngine/objects/NxTimelineNode.h>
#include <NxVBLModel/INxClip.h>

/// A clip of a project behind one of the model's interfaces of clips.
template<typename Interface>
class NxEngineClipOf : public Interface, public NxClipNode
{
public:
    using NxClipNode::NxClipNode;

    INxClip *clip() override { return this; }

    int kind() const override { return record().kind; }
    QString mediaId() const override { return mediaText(); }
    INxTimeline *timeline() const override
    {
        NxTimelineNode *shownOn = home();
        return shownOn ? shownOn->timeline() : nullptr;
    }
    NxClipPlace place() const override { return shownPlace(); }
};
