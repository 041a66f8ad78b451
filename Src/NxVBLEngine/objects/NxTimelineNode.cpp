// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxTimelineNode.h>

#include <NxVBLEngine/objects/NxClipNode.h>
#include <NxVBLEngine/objects/NxTimelineMemory.h>
#include <NxVBLModel/INxClip.h>

#include <algorithm>
#include <tuple>

namespace {

qint64 endOf(const NxClipPlace &place)
{
    return place.position + place.length;
}

} // namespace

NxTimelineNode::NxTimelineNode(NxTimelineMemory *memory, const NxTimelineRecord &record)
    : m_memory(memory),
      m_record(record)
{
    m_record.alive = false;
}

NxTimelineNode::~NxTimelineNode() = default;

NxClipNode *NxTimelineNode::outer() const
{
    return m_record.outerClip == 0 ? nullptr : m_memory->clip(m_record.outerClip);
}

int NxTimelineNode::indexOf(int track, qint64 position) const
{
    const auto isBefore = [](const INxClip *clip, const std::tuple<int, qint64> &spot) {
        const NxClipPlace place = clip->place();
        return std::tie(place.track, place.position) < spot;
    };
    return int(
        std::lower_bound(m_clips.begin(), m_clips.end(), std::make_tuple(track, position), isBefore)
        - m_clips.begin());
}

bool NxTimelineNode::hasRoom(const NxClipPlace &place, const INxClip *except) const
{
    int after = indexOf(place.track, place.position);
    int before = after - 1;
    if (before >= 0 && m_clips.at(before) == except)
        --before;
    if (after < m_clips.size() && m_clips.at(after) == except)
        ++after;
    const NxClipPlace left = before >= 0 ? m_clips.at(before)->place() : NxClipPlace();
    if (before >= 0 && left.track == place.track && endOf(left) > place.position)
        return false;
    const NxClipPlace right = after < m_clips.size() ? m_clips.at(after)->place() : NxClipPlace();
    return after >= m_clips.size() || right.track != place.track || endOf(place) <= right.position;
}

void NxTimelineNode::insert(NxClipNode *clip)
{
    const NxClipPlace &place = clip->record().place;
    m_clips.insert(indexOf(place.track, place.position), clip->clip());
}

void NxTimelineNode::take(NxClipNode *clip)
{
    const NxClipPlace &place = clip->record().place;
    const int index = indexOf(place.track, place.position);
    Q_ASSERT(index < m_clips.size() && m_clips.at(index) == clip->clip());
    m_clips.removeAt(index);
}

int NxTimelineNode::countTracks() const
{
    return m_clips.isEmpty() ? 0 : m_clips.last()->place().track + 1;
}

qint64 NxTimelineNode::countFrames() const
{
    qint64 frames = 0;
    // From the last clip of a track to the last one of the track below it.
    for (int last = m_clips.size() - 1; last >= 0;) {
        const NxClipPlace place = m_clips.at(last)->place();
        frames = std::max(frames, endOf(place));
        last = indexOf(place.track, 0) - 1;
    }
    return frames;
}
