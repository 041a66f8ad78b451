// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxClipNode.h>

#include <NxVBLEngine/objects/NxTimelineMemory.h>

NxClipNode::NxClipNode(NxTimelineMemory *memory, const NxClipRecord &record)
    : m_memory(memory),
      m_record(record)
{
    m_record.alive = false;
}

NxClipNode::~NxClipNode() = default;

void NxClipNode::setTrackAndPosition(int track, qint64 position)
{
    m_record.place.track = track;
    m_record.place.position = position;
}

NxTimelineNode *NxClipNode::home() const
{
    return isAlive() ? m_memory->timeline(m_record.timeline) : nullptr;
}

NxClipPlace NxClipNode::shownPlace() const
{
    const NxClipNode *split = isInner() ? m_memory->clip(m_record.split) : nullptr;
    NxClipPlace place = split ? split->record().place : m_record.place;
    place.inPoint = m_record.place.inPoint;
    return place;
}

QString NxClipNode::mediaText() const
{
    return m_record.media == 0 ? QString() : QString::number(m_record.media);
}
