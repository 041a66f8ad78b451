// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaRef.h>

#include <QList>
#include <QString>

#include <random>

class INxAbstractMedia;
class INxClip;
class INxFolderMedia;
class INxSplitScreenClip;
class INxTimeline;
class ProjectDesk;
struct NxClipPlace;

/// A user who does one thing after another with the panel and the timelines, chosen by a seed,
/// and who answers its questions.
class PresenterSession
{
public:
    PresenterSession(ProjectDesk *desk, quint32 seed);

    /// Does one thing; never undo or redo.
    void step();
    /// What the last step did, for a failing test to print.
    [[nodiscard]] QString lastOperation() const { return m_operation; }
    /// From 0 to below `bound`.
    int below(int bound);

private:
    using Operation = void (PresenterSession::*)();
    struct Choice
    {
        const char *name;
        Operation run;
        int weight;
    };

    void importFiles();
    void addMedia();
    void removeMedia();
    void bringBackMedia();
    void removeUnused();
    void renameMedia();
    void relinkMedia();
    void dealWithMissing();
    void markMedia();
    void selectMedia();
    void addFolder();
    void renameFolder();
    void moveFolder();
    void removeFolder();
    void addTimeline();
    void addComposite();
    void addClip();
    void addSplitScreen();
    void addInnerClip();
    void moveClip();
    void removeClip();

    [[nodiscard]] QString fresh(const char *stem);
    [[nodiscard]] NxClipPlace anyPlace();
    /// Null when there is none.
    [[nodiscard]] INxAbstractMedia *anyMedia();
    [[nodiscard]] QList<INxAbstractMedia *> someMedia(INxFolderMedia *folder);
    [[nodiscard]] INxFolderMedia *anyFolder();
    [[nodiscard]] INxTimeline *anyTimeline();
    [[nodiscard]] INxClip *anyClip(INxTimeline *timeline);
    [[nodiscard]] INxSplitScreenClip *anySplitScreen();

    ProjectDesk *const m_desk; // Not owned.
    const quint32 m_seed;
    std::mt19937 m_random;
    int m_serial = 0;
    NxMediaRef m_removed; // One of those that were removed last.
    QString m_operation;
};
