// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxTimelineMemory.h>

#include <NxCore/NxLog.h>
#include <NxVBLEngine/objects/NxClipNode.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxTimelineNode.h>

using namespace NXVBLMODEL;

namespace {

/// Makes the rows of a project fit each other before objects are made of them.
class RowMender
{
public:
    RowMender(std::vector<NxTimelineRecord> *timelines, std::vector<NxClipRecord> *clips)
        : m_timelineRows(timelines),
          m_clipRows(clips)
    {
        for (NxTimelineRecord &timeline : *timelines)
            m_timelines.insert(timeline.id, &timeline);
        for (NxClipRecord &clip : *clips)
            m_clips.insert(clip.id, &clip);
    }

    void mend()
    {
        for (NxTimelineRecord &timeline : *m_timelineRows) {
            if (timeline.outerClip != 0 && !standsSomewhere(timeline)) {
                NX_LOG_INFO("timeline %lld stood for the unknown clip %lld", timeline.id,
                            timeline.outerClip);
                timeline.outerClip = 0;
            }
        }
        for (NxClipRecord &clip : *m_clipRows) {
            if (clip.alive && !standsSomewhere(clip)) {
                NX_LOG_INFO("clip %lld stood nowhere", clip.id);
                clip.alive = false;
            }
        }
    }

private:
    [[nodiscard]] bool isLiving(qint64 timeline) const
    {
        const NxTimelineRecord *known = m_timelines.value(timeline, nullptr);
        return known && known->alive;
    }

    /// Removed timelines need only a clip of the right kind, for undo.
    [[nodiscard]] bool standsSomewhere(const NxTimelineRecord &timeline)
    {
        const NxClipRecord *outer = m_clips.value(timeline.outerClip, nullptr);
        if (!outer || outer->kind != ckComposite || m_standing.contains(outer->id))
            return false;
        if (timeline.alive && (!outer->alive || !isLiving(outer->timeline) || isInRing(timeline)))
            return false;
        m_standing.insert(outer->id, timeline.alive);
        return true;
    }

    [[nodiscard]] bool isInRing(const NxTimelineRecord &timeline) const
    {
        const NxTimelineRecord *below = &timeline;
        for (int steps = 0; steps <= m_timelines.size(); ++steps) {
            const NxClipRecord *outer = m_clips.value(below->outerClip, nullptr);
            below = outer ? m_timelines.value(outer->timeline, nullptr) : nullptr;
            if (!below)
                return false;
        }
        return true;
    }

    [[nodiscard]] bool standsSomewhere(const NxClipRecord &clip) const
    {
        if (!isLiving(clip.timeline))
            return false;
        if (clip.kind == ckComposite && !m_standing.value(clip.id, false))
            return false;
        const NxClipRecord *split = m_clips.value(clip.split, nullptr);
        return clip.split == 0
               || (split && split->alive && split->kind == ckSplitScreen && split->split == 0
                   && split->timeline == clip.timeline);
    }

    std::vector<NxTimelineRecord> *const m_timelineRows; // Not owned.
    std::vector<NxClipRecord> *const m_clipRows; // Not owned.
    QHash<qint64, NxTimelineRecord *> m_timelines;
    QHash<qint64, NxClipRecord *> m_clips;
    QHash<qint64, bool> m_standing; // Clips that stand for a timeline; whether it lives.
};

} // namespace

void NxTimelineMemory::load(std::vector<NxTimelineRecord> timelines,
                            std::vector<NxClipRecord> clips)
{
    RowMender(&timelines, &clips).mend();
    m_clips.reserve(clips.size());
    for (const NxClipRecord &record : clips)
        make(record);
    for (const NxTimelineRecord &record : timelines) {
        make(record);
        timeline(record.id)->setAlive(record.alive);
    }
    loadShownClips(clips);
    for (const NxClipRecord &record : clips) {
        if (record.alive && record.split != 0)
            bringToLife(clip(record.id));
    }
    for (auto used = m_uses.constBegin(); used != m_uses.constEnd(); ++used)
        m_project->setUses(used.key(), int(used->size()));
}

void NxTimelineMemory::loadShownClips(const std::vector<NxClipRecord> &clips)
{
    std::vector<NxClipNode *> crowded; // They make way for all that stand well.
    for (const NxClipRecord &record : clips) {
        if (!record.alive || record.split != 0)
            continue;
        if (timeline(record.timeline)->hasRoom(record.place, nullptr))
            bringToLife(clip(record.id));
        else
            crowded.push_back(clip(record.id));
    }
    for (NxClipNode *clip : crowded) {
        putOnFreeTrack(clip);
        bringToLife(clip);
    }
}

void NxTimelineMemory::putOnFreeTrack(NxClipNode *clip)
{
    const NxTimelineNode *home = timeline(clip->record().timeline);
    NxClipPlace place = clip->record().place;
    while (!home->hasRoom(place, nullptr)) {
        ++place.track;
        if (!isPossible(place))
            place.track = 0;
    }
    NX_LOG_INFO("clip %lld covered another one of its track and is shown on track %d", clip->id(),
                place.track);
    clip->setTrackAndPosition(place.track, place.position);
}
