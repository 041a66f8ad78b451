// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxClipPlace.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QString>

class INxAbstractMedia;
class INxClip;
class INxCompositeTimeline;
class INxSplitScreenClip;
class INxTimeline;

/// Builds the timelines of a project. Owned by the project.
///
/// Every call is one undo step, or joins the one that is open. What is refused leaves no trace but
/// a log line: a place that makes no sense, or that another clip of the track covers; an object
/// of another project; anything while the project is read-only. Clips are moved and removed
/// through their timelines. What is removed stays alive for the undo that can bring it back, and
/// comes back as the same object. GUI thread only.
class NXVBLMODEL_EXPORT INxTimelineEditor
{
public:
    virtual ~INxTimelineEditor();

    /// Null when the name is empty once trimmed, or too long.
    virtual INxTimeline *addTimeline(const QString &name) = 0;
    /// Removes a timeline with all that stands on it. One that stands as a clip on another
    /// timeline goes with that clip.
    virtual bool removeTimeline(INxTimeline *timeline) = 0;
    virtual bool renameTimeline(INxTimeline *timeline, const QString &name) = 0;

    /// A clip of a media of the project.
    virtual INxClip *addClip(INxTimeline *timeline, INxAbstractMedia *media,
                             const NxClipPlace &place) = 0;
    /// A split-screen clip that shows nothing yet.
    virtual INxSplitScreenClip *addSplitScreen(INxTimeline *timeline, const NxClipPlace &place) = 0;
    /// One more clip beside those that a split-screen clip shows; it is shown as long as that
    /// clip, beginning at `inPoint` of the media.
    virtual INxClip *addInnerClip(INxSplitScreenClip *split, INxAbstractMedia *media,
                                  qint64 inPoint) = 0;
    /// An empty timeline that stands as a clip on another one, which may be composite, too.
    virtual INxCompositeTimeline *addComposite(INxTimeline *outer, const QString &name,
                                               const NxClipPlace &place) = 0;
    /// Moves a clip to another track or position of its timeline. False when refused.
    virtual bool moveClip(INxClip *clip, int track, qint64 position) = 0;
};
