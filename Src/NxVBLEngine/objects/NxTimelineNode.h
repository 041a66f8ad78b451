// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/records/NxTimelineRecord.h>
#include <NxVBLModel/NxClipPlace.h>

#include <QList>
#include <QString>

class INxClip;
class INxTimeline;
class NxClipNode;
class NxTimelineMemory;

/// What all timelines of a project have in common: a name, and clips in order.
///
/// The clips stand in one block, by track and position, which is handed out without copying; one
/// is found by binary search. The timeline memory owns and changes it.
class NXVBLENGINE_TEST_EXPORT NxTimelineNode
{
public:
    /// Not alive until the memory brings it to life.
    NxTimelineNode(NxTimelineMemory *memory, const NxTimelineRecord &record);
    virtual ~NxTimelineNode();
    NxTimelineNode(const NxTimelineNode &) = delete;
    NxTimelineNode &operator=(const NxTimelineNode &) = delete;

    [[nodiscard]] virtual INxTimeline *timeline() = 0;

    [[nodiscard]] NxTimelineMemory *memory() const { return m_memory; }
    /// The timeline as it stands.
    [[nodiscard]] const NxTimelineRecord &record() const { return m_record; }
    [[nodiscard]] qint64 id() const { return m_record.id; }
    /// False while the timeline is removed.
    [[nodiscard]] bool isAlive() const { return m_record.alive; }
    void setAlive(bool alive) { m_record.alive = alive; }
    void setName(const QString &name) { m_record.name = name; }
    /// The clip that stands for it on another timeline; null for a timeline of its own.
    [[nodiscard]] NxClipNode *outer() const;

    [[nodiscard]] const QList<INxClip *> &shownClips() const { return m_clips; }
    /// Whether nothing but `except`, which may be null, stands where a clip is to stand.
    [[nodiscard]] bool hasRoom(const NxClipPlace &place, const INxClip *except) const;
    void insert(NxClipNode *clip);
    void take(NxClipNode *clip);
    [[nodiscard]] int countTracks() const;
    [[nodiscard]] qint64 countFrames() const;

private:
    /// The first clip that does not stand before there.
    [[nodiscard]] int indexOf(int track, qint64 position) const;

    NxTimelineMemory *const m_memory; // Not owned.
    NxTimelineRecord m_record;
    QList<INxClip *> m_clips; // Living ones; not owned.
};
