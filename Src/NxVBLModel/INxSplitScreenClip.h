// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxClip.h>

#include <QList>

/// A clip that shows several clips beside one another (kind 3). Owns the inner clips.
class NXVBLMODEL_EXPORT INxSplitScreenClip : public INxClip
{
public:
    ~INxSplitScreenClip() override;

    [[nodiscard]] int kind() const override;
    [[nodiscard]] virtual QList<INxClip *> innerClips() = 0;
    /// False when the clip is not one of the inner clips.
    virtual bool removeInnerClip(INxClip *clip) = 0;
};
