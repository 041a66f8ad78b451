// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxTimeline.h>

/// A timeline that stands as a clip on another one; its clips() may be composite, too.
class NXVBLMODEL_EXPORT INxCompositeTimeline : public INxTimeline
{
public:
    ~INxCompositeTimeline() override;

    /// The clip that stands for this timeline on the outer one. Not owned.
    [[nodiscard]] virtual INxClip *outerClip() const = 0;
};
