// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxClipPlace.h>
#include <NxVBLModel/NxMediaTypes.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QString>

class INxTimeline;

/// A piece of a media on a timeline. Owned by its timeline; a clip that was made alone is deleted
/// by its maker.
class NXVBLMODEL_EXPORT INxClip
{
public:
    virtual ~INxClip();

    /// A clip over a whole file, for previews. The file is not looked at before a timeline shows
    /// the clip; one that cannot be played has no frames there. Null when the path is empty or no
    /// engine is installed. The caller owns it.
    [[nodiscard]] static INxClip *createVideoClip(const QString &path);

    /// NXVBLMODEL::NxClipKind.
    [[nodiscard]] virtual int kind() const = 0;
    /// INxAbstractMedia::mediaId() of the media; empty for a clip without one.
    [[nodiscard]] virtual QString mediaId() const;
    /// The timeline that shows the clip, for one inside a split screen that of the split screen;
    /// null for a clip alone.
    [[nodiscard]] virtual INxTimeline *timeline() const;
    /// Inside a split screen: the place of the split screen, with an in-point of its own.
    [[nodiscard]] virtual NxClipPlace place() const;
};
