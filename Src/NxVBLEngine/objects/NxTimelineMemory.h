// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/records/NxChange.h>
#include <NxVBLEngine/records/NxClipRecord.h>
#include <NxVBLEngine/records/NxTimelineRecord.h>
#include <NxVBLModel/NxTimelineUse.h>

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QVector>

#include <map>
#include <memory>
#include <unordered_map>
#include <vector>

class INxClip;
class INxTimeline;
class NxClipNode;
class NxEngineTimelineEditor;
class NxProjectMemory;
class NxTimelineNode;

/// The timelines of the open project in memory, with all clips on them and what was removed.
///
/// Applies the changes that concern them; the editor makes those changes. Knows for every media
/// which living clips show it. GUI thread only.
class NXVBLENGINE_TEST_EXPORT NxTimelineMemory
{
public:
    explicit NxTimelineMemory(NxProjectMemory *project);
    ~NxTimelineMemory();
    NxTimelineMemory(const NxTimelineMemory &) = delete;
    NxTimelineMemory &operator=(const NxTimelineMemory &) = delete;

    /// Fills an empty memory. Announces nothing. What stands nowhere is left out and told in the
    /// log; a clip that covers another is shown on a free track.
    void load(std::vector<NxTimelineRecord> timelines, std::vector<NxClipRecord> clips);

    [[nodiscard]] NxProjectMemory *project() const { return m_project; }
    [[nodiscard]] NxEngineTimelineEditor *editor() const { return m_editor.get(); }
    /// Null when unknown. Removed ones are found, too.
    [[nodiscard]] NxTimelineNode *timeline(qint64 id) const;
    [[nodiscard]] NxClipNode *clip(qint64 id) const;
    /// The timeline that a clip stands for; null for other clips. Removed ones are found, too.
    [[nodiscard]] NxTimelineNode *timelineOf(const NxClipNode *outer) const;
    /// Null for a clip that belongs to no project of the engine.
    [[nodiscard]] static NxClipNode *nodeOf(INxClip *clip);
    [[nodiscard]] static NxTimelineNode *nodeOf(INxTimeline *timeline);
    /// Removed clips that went with that one.
    [[nodiscard]] QVector<qint64> clipsGoneWith(qint64 clip) const;

    /// The living ones, each behind the one it stands on.
    [[nodiscard]] QList<INxTimeline *> timelines() const;
    /// The living clips that show a media, in the order in which they were made.
    [[nodiscard]] QList<NxTimelineUse> uses(const QString &mediaId) const;
    [[nodiscard]] int useCount(qint64 media) const;

    /// Makes an object that a change is about to bring to life.
    void make(const NxTimelineRecord &record);
    void make(const NxClipRecord &record);
    /// Applies a change of timelines or clips and announces whose uses are others now. What does
    /// not fit is passed over and told in the log.
    void apply(const NxChange &change);

    /// Of these ids, those of removed timelines or clips.
    [[nodiscard]] QVector<qint64> removedTimelines(const QVector<qint64> &ids) const;
    [[nodiscard]] QVector<qint64> removedClips(const QVector<qint64> &ids) const;
    /// Forgets removed ones for good; they live until bury().
    void forget(const QVector<qint64> &timelines, const QVector<qint64> &clips);
    void bury();

    /// As NxProjectMemory::brokenInvariant().
    [[nodiscard]] QString brokenInvariant() const;

private:
    using UsesByMedia = QHash<qint64, std::vector<NxClipNode *>>;

    void applyTimelineLife(const NxChange &change);
    void applyTimelineRename(const NxChange &change);
    void applyClipAdd(const NxChange &change);
    void applyClipRemove(const NxChange &change);
    void applyClipMove(const NxChange &change);
    [[nodiscard]] bool canLive(const NxClipNode *clip) const;
    void bringToLife(NxClipNode *clip);
    void takeLife(NxClipNode *clip);
    void noteUse(NxClipNode *clip);
    void forgetUse(NxClipNode *clip);
    void showUses(const QSet<qint64> &media);
    void loadShownClips(const std::vector<NxClipRecord> &clips);
    void putOnFreeTrack(NxClipNode *clip);
    [[nodiscard]] QString brokenTimeline(const NxTimelineNode *timeline) const;
    [[nodiscard]] QString brokenClip(const NxClipNode *clip) const;
    [[nodiscard]] QString brokenUses() const;

    NxProjectMemory *const m_project; // Not owned.
    const std::unique_ptr<NxEngineTimelineEditor> m_editor;
    std::map<qint64, std::unique_ptr<NxTimelineNode>> m_timelines; // Removed ones included.
    std::unordered_map<qint64, std::unique_ptr<NxClipNode>> m_clips; // Removed ones included.
    QHash<qint64, NxTimelineNode *> m_timelinesByOuter; // By clip; removed ones included.
    UsesByMedia m_uses; // Living clips, by id.
    std::vector<std::unique_ptr<NxTimelineNode>> m_deadTimelines; // Until they are buried.
    std::vector<std::unique_ptr<NxClipNode>> m_deadClips;
};
