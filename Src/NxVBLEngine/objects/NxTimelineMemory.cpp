// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxTimelineMemory.h>

#include <NxCore/NxLog.h>
#include <NxVBLEngine/objects/NxEngineClip.h>
#include <NxVBLEngine/objects/NxEngineCompositeTimeline.h>
#include <NxVBLEngine/objects/NxEngineSplitScreenClip.h>
#include <NxVBLEngine/objects/NxEngineTimeline.h>
#include <NxVBLEngine/objects/NxEngineTimelineEditor.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

using namespace NXVBLMODEL;

namespace {

NxEngineSplitScreenClip *splitOf(NxClipNode *clip)
{
    return dynamic_cast<NxEngineSplitScreenClip *>(clip);
}

auto placeById(std::vector<NxClipNode *> *clips, qint64 id)
{
    return std::lower_bound(
        clips->begin(), clips->end(), id,
        [](const NxClipNode *clip, qint64 other) { return clip->id() < other; });
}

// By where they stand, so that views list them as they are met.
void sortByPlace(std::vector<NxTimelineNode *> *composites)
{
    std::sort(composites->begin(), composites->end(),
              [](const NxTimelineNode *a, const NxTimelineNode *b) {
                  const NxClipPlace &left = a->outer()->record().place;
                  const NxClipPlace &right = b->outer()->record().place;
                  return std::tie(left.track, left.position)
                         < std::tie(right.track, right.position);
              });
}

} // namespace

NxTimelineMemory::NxTimelineMemory(NxProjectMemory *project)
    : m_project(project),
      m_editor(std::make_unique<NxEngineTimelineEditor>(this))
{
}

NxTimelineMemory::~NxTimelineMemory() = default;

// Looking up

NxTimelineNode *NxTimelineMemory::timeline(qint64 id) const
{
    const auto found = m_timelines.find(id);
    return found == m_timelines.end() ? nullptr : found->second.get();
}

NxClipNode *NxTimelineMemory::clip(qint64 id) const
{
    const auto found = m_clips.find(id);
    return found == m_clips.end() ? nullptr : found->second.get();
}

NxTimelineNode *NxTimelineMemory::timelineOf(const NxClipNode *outer) const
{
    return m_timelinesByOuter.value(outer->id(), nullptr);
}

NxClipNode *NxTimelineMemory::nodeOf(INxClip *clip)
{
    return dynamic_cast<NxClipNode *>(clip);
}

NxTimelineNode *NxTimelineMemory::nodeOf(INxTimeline *timeline)
{
    return dynamic_cast<NxTimelineNode *>(timeline);
}

QVector<qint64> NxTimelineMemory::clipsGoneWith(qint64 clip) const
{
    QVector<qint64> ids;
    for (const auto &[id, node] : m_clips) {
        if (!node->isAlive() && node->wentWith() == clip)
            ids.append(id);
    }
    std::sort(ids.begin(), ids.end());
    return ids;
}

QList<INxTimeline *> NxTimelineMemory::timelines() const
{
    QHash<NxTimelineNode *, std::vector<NxTimelineNode *>> standingOn;
    for (const auto &[id, timeline] : m_timelines) {
        if (timeline->isAlive()) {
            const NxClipNode *outer = timeline->outer();
            standingOn[outer ? outer->home() : nullptr].push_back(timeline.get());
        }
    }
    QList<INxTimeline *> ordered;
    std::vector<NxTimelineNode *> waiting = standingOn.take(nullptr);
    std::reverse(waiting.begin(), waiting.end());
    while (!waiting.empty()) {
        NxTimelineNode *next = waiting.back();
        waiting.pop_back();
        ordered.append(next->timeline());
        std::vector<NxTimelineNode *> composites = standingOn.take(next);
        sortByPlace(&composites);
        waiting.insert(waiting.end(), composites.rbegin(), composites.rend());
    }
    return ordered;
}

QList<NxTimelineUse> NxTimelineMemory::uses(const QString &mediaId) const
{
    QList<NxTimelineUse> uses;
    const auto found = m_uses.constFind(mediaId.toLongLong());
    if (found == m_uses.constEnd())
        return uses;
    uses.reserve(int(found->size()));
    for (NxClipNode *clip : *found)
        uses.append({clip->home()->timeline(), clip->clip()});
    return uses;
}

int NxTimelineMemory::useCount(qint64 media) const
{
    const auto found = m_uses.constFind(media);
    return found == m_uses.constEnd() ? 0 : int(found->size());
}

// Making

void NxTimelineMemory::make(const NxTimelineRecord &record)
{
    std::unique_ptr<NxTimelineNode> made;
    if (record.outerClip == 0)
        made = std::make_unique<NxEngineTimeline>(this, record);
    else
        made = std::make_unique<NxEngineCompositeTimeline>(this, record);
    if (record.outerClip != 0)
        m_timelinesByOuter.insert(record.outerClip, made.get());
    m_timelines[record.id] = std::move(made);
}

void NxTimelineMemory::make(const NxClipRecord &record)
{
    std::unique_ptr<NxClipNode> made;
    if (record.kind == ckSplitScreen)
        made = std::make_unique<NxEngineSplitScreenClip>(this, record);
    else
        made = std::make_unique<NxEngineClip>(this, record);
    m_clips[record.id] = std::move(made);
}

// Applying changes

void NxTimelineMemory::apply(const NxChange &change)
{
    struct Handler
    {
        NxChangeKind what;
        void (NxTimelineMemory::*apply)(const NxChange &);
    };
    static const std::array<Handler, 6> handlers = {{
        {NxChangeKind::TimelineAdd, &NxTimelineMemory::applyTimelineLife},
        {NxChangeKind::TimelineRemove, &NxTimelineMemory::applyTimelineLife},
        {NxChangeKind::TimelineRename, &NxTimelineMemory::applyTimelineRename},
        {NxChangeKind::ClipAdd, &NxTimelineMemory::applyClipAdd},
        {NxChangeKind::ClipRemove, &NxTimelineMemory::applyClipRemove},
        {NxChangeKind::ClipMove, &NxTimelineMemory::applyClipMove},
    }};
    for (const Handler &handler : handlers) {
        if (handler.what == change.what)
            (this->*handler.apply)(change);
    }
}

void NxTimelineMemory::applyTimelineLife(const NxChange &change)
{
    for (const qint64 id : change.ids) {
        if (NxTimelineNode *changed = timeline(id))
            changed->setAlive(change.what == NxChangeKind::TimelineAdd);
        else
            NX_LOG_INFO("timeline %lld is not there", id);
    }
}

void NxTimelineMemory::applyTimelineRename(const NxChange &change)
{
    if (NxTimelineNode *renamed = timeline(change.ids.value(0)))
        renamed->setName(change.after.text);
}

void NxTimelineMemory::applyClipAdd(const NxChange &change)
{
    QSet<qint64> media;
    for (const qint64 id : change.ids) {
        NxClipNode *added = clip(id);
        if (!added || !canLive(added)) {
            NX_LOG_INFO("clip %lld has no place any more", id);
            continue;
        }
        bringToLife(added);
        media.insert(added->record().media);
    }
    showUses(media);
}

void NxTimelineMemory::applyClipRemove(const NxChange &change)
{
    QSet<qint64> media;
    for (const qint64 id : change.ids) {
        NxClipNode *removed = clip(id);
        if (!removed || !removed->isAlive()) {
            NX_LOG_INFO("clip %lld is not there", id);
            continue;
        }
        takeLife(removed);
        removed->setWentWith(change.after.number);
        media.insert(removed->record().media);
    }
    showUses(media);
}

void NxTimelineMemory::applyClipMove(const NxChange &change)
{
    NxClipNode *moved = clip(change.ids.value(0));
    if (!moved)
        return;
    NxTimelineNode *home = moved->home();
    if (home)
        home->take(moved);
    moved->setTrackAndPosition(change.after.folder, change.after.place);
    if (home)
        home->insert(moved);
}

bool NxTimelineMemory::canLive(const NxClipNode *clip) const
{
    const NxClipRecord &record = clip->record();
    const NxTimelineNode *home = timeline(record.timeline);
    if (clip->isAlive() || !home)
        return false;
    if (!clip->isInner())
        return home->hasRoom(record.place, nullptr);
    const NxClipNode *split = this->clip(record.split);
    return split && split->isAlive() && split->record().kind == ckSplitScreen;
}

void NxTimelineMemory::bringToLife(NxClipNode *clip)
{
    clip->setAlive(true);
    if (clip->isInner())
        splitOf(this->clip(clip->record().split))->insert(clip);
    else
        clip->home()->insert(clip);
    noteUse(clip);
}

void NxTimelineMemory::takeLife(NxClipNode *clip)
{
    forgetUse(clip);
    if (clip->isInner())
        splitOf(this->clip(clip->record().split))->take(clip);
    else
        clip->home()->take(clip);
    clip->setAlive(false);
}

// Uses

void NxTimelineMemory::noteUse(NxClipNode *clip)
{
    if (clip->record().media == 0)
        return;
    std::vector<NxClipNode *> &uses = m_uses[clip->record().media];
    uses.insert(placeById(&uses, clip->id()), clip);
}

void NxTimelineMemory::forgetUse(NxClipNode *clip)
{
    const auto found = m_uses.find(clip->record().media);
    if (found == m_uses.end())
        return;
    found->erase(placeById(&*found, clip->id()));
    if (found->empty())
        m_uses.erase(found);
}

void NxTimelineMemory::showUses(const QSet<qint64> &media)
{
    for (const qint64 id : media)
        m_project->setUses(id, useCount(id));
}

// Forgetting

QVector<qint64> NxTimelineMemory::removedTimelines(const QVector<qint64> &ids) const
{
    QVector<qint64> removed;
    for (const qint64 id : ids) {
        const NxTimelineNode *known = timeline(id);
        if (known && !known->isAlive())
            removed.append(id);
    }
    return removed;
}

QVector<qint64> NxTimelineMemory::removedClips(const QVector<qint64> &ids) const
{
    QVector<qint64> removed;
    for (const qint64 id : ids) {
        const NxClipNode *known = clip(id);
        if (known && !known->isAlive())
            removed.append(id);
    }
    return removed;
}

void NxTimelineMemory::forget(const QVector<qint64> &timelines, const QVector<qint64> &clips)
{
    for (const qint64 id : timelines) {
        const auto found = m_timelines.find(id);
        m_timelinesByOuter.remove(found->second->record().outerClip);
        m_deadTimelines.push_back(std::move(found->second));
        m_timelines.erase(found);
    }
    for (const qint64 id : clips) {
        const auto found = m_clips.find(id);
        m_deadClips.push_back(std::move(found->second));
        m_clips.erase(found);
    }
}

void NxTimelineMemory::bury()
{
    m_deadTimelines.clear();
    m_deadClips.clear();
}
