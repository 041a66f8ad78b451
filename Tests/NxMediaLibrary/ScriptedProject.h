// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/INxUndoStack.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/INxRelinkSearch.h>
#include <NxVBLModel/NxTimelineUse.h>

#include "ScriptedTimeline.h"

/// Notes down where steps begin and end; keeps none.
class ScriptedUndoStack final : public INxUndoStack
{
public:
    explicit ScriptedUndoStack(QStringList *notes) : m_journal(notes) {}

    bool undo() override { return false; }
    bool redo() override { return false; }
    bool canUndo() const override { return false; }
    bool canRedo() const override { return false; }
    QString undoText() const override { return {}; }
    QString redoText() const override { return {}; }
    int count() const override { return 0; }
    int index() const override { return 0; }

protected:
    void openStep(const QString &function, const QString &action) override
    {
        m_journal->append(QStringLiteral("step %1 of %2").arg(action, function));
    }
    void closeStep() override { m_journal->append(QStringLiteral("step ends")); }

private:
    QStringList *const m_journal; // Not owned.
};

/// An open project with the timelines that a test lays out.
struct ScriptedProject final : INxProject
{
    explicit ScriptedProject(QStringList *notes) : journal(notes), stack(notes) {}

    INxMediaLibrary *mediaLibrary() override { return nullptr; }
    INxUndoStack *undoStack() override { return hasUndo ? &stack : nullptr; }
    INxRelinkSearch *relinkSearch() override { return search.get(); }
    QList<INxTimeline *> timelines() override
    {
        ++walks;
        QList<INxTimeline *> list;
        for (const auto &timeline : held)
            list.append(timeline.get());
        return list;
    }
    QList<NxTimelineUse> timelineUses(const QString &mediaId) override
    {
        asked.append(mediaId);
        QList<NxTimelineUse> uses;
        for (const auto &timeline : held) {
            const QList<INxClip *> clips = timeline->clips();
            for (INxClip *clip : clips)
                addUses(clip, mediaId, &uses);
        }
        return uses;
    }

    ScriptedTimeline *addTimeline(const QString &called)
    {
        auto timeline = std::make_unique<ScriptedTimeline>(called, journal);
        ScriptedTimeline *added = timeline.get();
        held.push_back(std::move(timeline));
        return added;
    }
    /// A timeline that stands as a clip, called as itself, on another one.
    template<typename Outer>
    ScriptedComposite *addComposite(Outer *outer, const QString &called)
    {
        ScriptedClip *standing = outer->add(called, QString(), NXVBLMODEL::ckComposite);
        auto composite = std::make_unique<ScriptedComposite>(called, journal, standing);
        ScriptedComposite *added = composite.get();
        held.push_back(std::move(composite));
        return added;
    }

    QStringList *const journal; // Not owned.
    ScriptedUndoStack stack;
    bool hasUndo = true;
    std::unique_ptr<INxRelinkSearch> search;
    std::vector<std::unique_ptr<INxTimeline>> held; ///< In the order in which they are told.
    int walks = 0; ///< How often the timelines were asked for.
    QStringList asked; ///< The media whose uses were asked for.

private:
    static void addUses(INxClip *clip, const QString &mediaId, QList<NxTimelineUse> *uses)
    {
        if (clip->mediaId() == mediaId)
            uses->append({clip->timeline(), clip});
        auto *split = dynamic_cast<INxSplitScreenClip *>(clip);
        const QList<INxClip *> inner = split ? split->innerClips() : QList<INxClip *>();
        for (INxClip *one : inner)
            addUses(one, mediaId, uses);
    }
};
