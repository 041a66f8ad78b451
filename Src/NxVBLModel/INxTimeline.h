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

    /// A timeline over one clip, for previews; takes the clip over. Null when no engine is
    /// installed or the clip is null. The caller owns it.
    [[nodiscard]] static INxTimeline *createInstance(INxClip *clip);

    /// Empty for one that is only a preview.
    [[nodiscard]] virtual QString name() const;
    /// How many tracks hold clips, empty ones between them included.
    [[nodiscard]] virtual int trackCount();
    /// By track, then by position. Clips inside split screens and composite timelines are theirs.
    [[nodiscard]] virtual QList<INxClip *> clips() = 0;
    /// Takes the clip away with all that it shows. False when the timeline does not hold it.
    virtual bool removeClip(INxClip *clip) = 0;
    /// Takes the clip over. `position` in frames of the timeline. A project's timeline takes back
    /// clips that were removed from it; false for others, and where it has no room.
    virtual bool insertClip(INxClip *clip, int track, qint64 position) = 0;
    /// px.
    virtual void setOutputSize(int width, int height);
    [[nodiscard]] virtual qint64 frameCount();
    /// Fills `rgb32` (width x height x 4 bytes, rows without gaps, 0xffRRGGBB); false when there
    /// is no such frame, and then nothing is written.
    virtual bool renderFrame(qint64 frame, int width, int height, uchar *rgb32);
};
