// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxMediaEngine.h>

/// An engine that has nothing but covers: it paints one for every GalleryItem with a hue.
class GalleryEngine final : public INxMediaEngine
{
public:
    [[nodiscard]] INxBsThumbManager *createThumbManager() override;
};
