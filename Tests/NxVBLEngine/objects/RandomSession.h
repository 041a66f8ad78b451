// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineFixture.h"

#include <random>

/// A user who does one thing after another to a project, chosen by a seed.
class RandomSession
{
public:
    RandomSession(NxProjectMemory *memory, quint32 seed);

    /// Does one operation. True when it changed something.
    bool step();
    /// What the last step did, for a failing test to print.
    [[nodiscard]] QString lastOperation() const { return m_operation; }

private:
    using Operation = bool (RandomSession::*)();
    struct Choice
    {
        const char *name;
        Operation run;
        int weight;
    };

    bool addMedia();
    bool addFolder();
    bool renameMedia();
    bool renameFolder();
    bool renameResource();
    bool moveMedia();
    bool moveFolder();
    bool removeMedia();
    bool removeFolder();
    bool markMedia();
    bool markResource();
    bool relink();
    bool addTimeline();
    bool addComposite();
    bool addClip();
    bool addSplitScreen();
    bool addInnerClip();
    bool moveClip();
    bool removeClip();
    bool removeInnerClip();
    bool bringBackClip();
    bool renameTimeline();
    bool removeTimeline();
    bool several();
    bool undo();
    bool redo();

    int below(int bound);
    QString name(const char *stem);
    NxEngineCategory *anyCategory();
    NxEngineFolder *anyFolder(NxEngineCategory *category, bool userFolder);
    NxEngineMedia *anyMedia();
    QList<INxAbstractMedia *> someMedia(NxEngineCategory *category);
    /// What a timeline may show: media, or now and then a resource.
    INxAbstractMedia *anyShown();
    INxTimeline *anyTimeline();
    INxClip *anyClip(INxTimeline *timeline);
    INxSplitScreenClip *anySplitScreen();
    NxClipPlace anyPlace();
    NxTimelineMemory *timelines() const { return m_memory->timelines(); }

    NxProjectMemory *const m_memory;
    const quint32 m_seed; // Two sessions over one project name different files.
    std::mt19937 m_random;
    int m_serial = 0;
    qint64 m_lastRemoved = 0; // Of clips, by id.
    QString m_operation;
};
