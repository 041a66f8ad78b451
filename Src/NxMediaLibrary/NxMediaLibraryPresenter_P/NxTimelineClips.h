// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <QList>
#include <QSet>
#include <QString>
#include <QVector>

class INxClip;
class INxProject;
class INxSplitScreenClip;
class INxTimeline;

/// The clips by which a project's timelines use some media, found in one walk over all timelines.
///
/// Removing goes from the inside out: clips on composite timelines, innermost first, then clips
/// inside split screens, then those on outer timelines. Each clip is removed once. Valid until
/// the timelines change by other hands.
class NXMEDIALIBRARY_TEST_EXPORT NxTimelineClips
{
public:
    /// Clips of one timeline.
    struct OfTimeline
    {
        INxTimeline *timeline = nullptr; ///< Not owned.
        QVector<INxClip *> clips; ///< Not owned.
    };
    /// Clips of one split screen.
    struct OfSplitScreen
    {
        INxSplitScreenClip *split = nullptr; ///< Not owned.
        QVector<INxClip *> clips; ///< Not owned.
    };

    /// @param project may be null: then there is nothing.
    NxTimelineClips(INxProject *project, const QSet<QString> &mediaIds);

    /// Answers how many clips were removed.
    int remove() const;

    [[nodiscard]] const QVector<OfTimeline> &onComposites() const { return m_onComposites; }
    [[nodiscard]] const QVector<OfSplitScreen> &inSplitScreens() const { return m_inSplitScreens; }
    [[nodiscard]] const QVector<OfTimeline> &onOuterTimelines() const { return m_onOuter; }

private:
    void walk(INxTimeline *timeline, const QSet<QString> &mediaIds);
    void walkSplitScreen(INxSplitScreenClip *split, const QSet<QString> &mediaIds);

    QVector<OfTimeline> m_onComposites; // Innermost first.
    QVector<OfSplitScreen> m_inSplitScreens; // Innermost first.
    QVector<OfTimeline> m_onOuter;
};
