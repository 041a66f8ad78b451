// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/objects/NxEngineTimelineEditor.h>
#include <NxVBLEngine/objects/NxTimelineMemory.h>
#include <NxVBLEngine/objects/NxTimelineNode.h>
#include <NxVBLModel/INxTimeline.h>

/// A timeline of a project behind one of the model's interfaces of timelines.
template<typename Interface>
class NxEngineTimelineOf : public Interface, public NxTimelineNode
{
public:
    using NxTimelineNode::NxTimelineNode;

    INxTimeline *timeline() override { return this; }

    QString name() const override { return record().name; }
    int trackCount() override { return countTracks(); }
    QList<INxClip *> clips() override { return shownClips(); }
    bool removeClip(INxClip *clip) override { return memory()->editor()->removeClip(this, clip); }
    bool insertClip(INxClip *clip, int track, qint64 position) override
    {
        return memory()->editor()->insertClip(this, clip, track, position);
    }
    qint64 frameCount() override { return countFrames(); }
};
