// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

#include <QList>

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

    [[nodiscard]] virtual QList<INxClip *> clips() = 0;
    /// False when the timeline does not hold the clip.
    virtual bool removeClip(INxClip *clip) = 0;
    /// Takes the clip over. `position` in frames of the timeline.
    virtual bool insertClip(INxClip *clip, int track, qint64 position) = 0;
    /// px.
    virtual void setOutputSize(int width, int height);
    [[nodiscard]] virtual qint64 frameCount();
    /// Fills `rgb32` (width x height x 4 bytes, rows without gaps, 0xffRRGGBB); false when there
    /// is no such frame, and then nothing is written.
    virtual bool renderFrame(qint64 frame, int width, int height, uchar *rgb32);
};
