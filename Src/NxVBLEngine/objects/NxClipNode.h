// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/records/NxClipRecord.h>

#include <QString>

class INxClip;
class NxTimelineMemory;
class NxTimelineNode;

/// What all clips of a project have in common, whatever they show.
///
/// By the hundred thousand: it holds its record and looks everything else up. The timeline memory
/// owns and changes it.
class NXVBLENGINE_TEST_EXPORT NxClipNode
{
public:
    /// Not alive until the memory brings it to life.
    NxClipNode(NxTimelineMemory *memory, const NxClipRecord &record);
    virtual ~NxClipNode();
    NxClipNode(const NxClipNode &) = delete;
    NxClipNode &operator=(const NxClipNode &) = delete;

    [[nodiscard]] virtual INxClip *clip() = 0;

    [[nodiscard]] NxTimelineMemory *memory() const { return m_memory; }
    /// The clip as it stands.
    [[nodiscard]] const NxClipRecord &record() const { return m_record; }
    [[nodiscard]] qint64 id() const { return m_record.id; }
    /// False while the clip is removed.
    [[nodiscard]] bool isAlive() const { return m_record.alive; }
    [[nodiscard]] bool isInner() const { return m_record.split != 0; }
    void setAlive(bool alive) { m_record.alive = alive; }
    void setTrackAndPosition(int track, qint64 position);
    /// The clip with which it went when it was removed; 0: it went by itself.
    [[nodiscard]] qint64 wentWith() const { return m_wentWith; }
    void setWentWith(qint64 clip) { m_wentWith = clip; }

    /// The timeline that shows it; null while it is removed.
    [[nodiscard]] NxTimelineNode *home() const;
    /// As INxClip::place().
    [[nodiscard]] NxClipPlace shownPlace() const;
    /// As INxClip::mediaId().
    [[nodiscard]] QString mediaText() const;

private:
    NxTimelineMemory *const m_memory; // Not owned.
    NxClipRecord m_record;
    qint64 m_wentWith = 0;
};
