// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

#include <QList>
#include <QString>

class INxClip;

/// Clips in time. A project's timelines belong to the project; one made by createInstance()
/// belongs to its maker.
class NXVBLMODEL_EXPORT INxTimeline
{
public:
    virtual ~INxTimeline();

    /// A timeline over one clip of INxClip::createVideoClip(), for previews; takes the clip over.
    /// It has 25 frames a second, and whoever shows one in 40 ms sees the film at its own speed.
    /// Null, and the clip stays its owner's, when no engine is installed and for other clips.
    /// The caller owns it and may delete it at any time.
    [[nodiscard]] static INxTimeline *createInstance(INxClip *clip);

    /// Empty for one that is only a preview.
    [[nodiscard]] virtual QString name() const;
    /// How many tracks hold clips, empty ones between them included.
    [[nodiscard]] virtual int trackCount();
    /// By track, then by position. Clips inside split screens and composite timelines are theirs.
    [[nodiscard]] virtual QList<INxClip *> clips() = 0;
    /// Takes the clip away with all that it shows. False when the timeline does not hold it. The
    /// clip of a preview is its caller's then.
    virtual bool removeClip(INxClip *clip) = 0;
    /// Takes the clip over. `position` in frames of the timeline. A project's timeline takes back
    /// clips that were removed from it; false for others, and where it has no room. A preview
    /// takes one clip for previews, at position 0 of track 0.
    virtual bool insertClip(INxClip *clip, int track, qint64 position) = 0;
    /// px. The shape of the frames; what has another shape lies between black bars.
    virtual void setOutputSize(int width, int height);
    /// Of a preview 0 as long as it is not known, and for files that cannot be played.
    [[nodiscard]] virtual qint64 frameCount();
    /// Fills `rgb32` (width x height x 4 bytes, rows without gaps, 0xffRRGGBB); false when there
    /// is no such frame, and then nothing is written. Never waits: a preview is rendered ahead of
    /// what it was asked for last, and a frame that is not there yet is there a moment later.
    virtual bool renderFrame(qint64 frame, int width, int height, uchar *rgb32);
};
