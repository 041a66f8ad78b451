// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/records/NxChange.h>
#include <NxVBLModel/INxTimelineEditor.h>

#include <vector>

class NxClipNode;
class NxProjectMemory;
class NxTimelineMemory;
class NxTimelineNode;
class NxUndoRedoCommander;
struct NxClipRecord;

/// Carries out what is done to timelines, those of their own and those that stand as clips. Each
/// call is one undo step; what is refused is told in the log.
class NXVBLENGINE_TEST_EXPORT NxEngineTimelineEditor final : public INxTimelineEditor
{
public:
    static constexpr int MaximumNameLength = 255;

    explicit NxEngineTimelineEditor(NxTimelineMemory *memory);
    ~NxEngineTimelineEditor() override;

    INxTimeline *addTimeline(const QString &name) override;
    bool removeTimeline(INxTimeline *timeline) override;
    bool renameTimeline(INxTimeline *timeline, const QString &name) override;
    INxClip *addClip(INxTimeline *timeline, INxAbstractMedia *media,
                     const NxClipPlace &place) override;
    INxSplitScreenClip *addSplitScreen(INxTimeline *timeline, const NxClipPlace &place) override;
    INxClip *addInnerClip(INxSplitScreenClip *split, INxAbstractMedia *media,
                          qint64 inPoint) override;
    INxCompositeTimeline *addComposite(INxTimeline *outer, const QString &name,
                                       const NxClipPlace &place) override;
    bool moveClip(INxClip *clip, int track, qint64 position) override;

    /// As INxTimeline::removeClip() and insertClip().
    bool removeClip(NxTimelineNode *timeline, INxClip *clip);
    bool insertClip(NxTimelineNode *timeline, INxClip *clip, int track, qint64 position);
    /// As INxSplitScreenClip::removeInnerClip().
    bool removeInnerClip(NxClipNode *split, INxClip *clip);

private:
    [[nodiscard]] NxProjectMemory *project() const;
    [[nodiscard]] NxUndoRedoCommander step(const char *action) const;
    [[nodiscard]] static NxChange changeOf(NxChangeKind what, const QVector<qint64> &ids);
    /// The checks: each answers the thing when it may be changed, or says why not.
    [[nodiscard]] bool mayChange() const;
    [[nodiscard]] QString usableName(const QString &name) const;
    [[nodiscard]] NxTimelineNode *changeable(INxTimeline *timeline) const;
    [[nodiscard]] NxClipNode *changeable(INxClip *clip) const;
    [[nodiscard]] bool hasRoom(const NxTimelineNode *timeline, const NxClipPlace &place,
                               INxClip *except) const;
    [[nodiscard]] bool isKept(const NxClipNode *removed) const;

    NxTimelineNode *makeTimeline(const QString &name, qint64 outerClip);
    NxClipNode *makeClip(NxClipRecord record);
    void move(const NxClipNode *clip, int track, qint64 position);
    void removeWithContents(NxClipNode *clip);
    /// Appends what removes everything inside, innermost first.
    void emptyClip(const NxClipNode *clip, qint64 goesWith, std::vector<NxChange> *changes) const;
    void emptyTimeline(const NxTimelineNode *timeline, qint64 goesWith,
                       std::vector<NxChange> *changes) const;
    void performAll(const std::vector<NxChange> &changes);
    void bringBackContents(const NxClipNode *clip);

    NxTimelineMemory *const m_memory; // Not owned.
};
