// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NxTempDir.h"

#include <optional>

/// Keeps a test program away from the user's own folders when it is started by hand.
///
/// ctest gives every test folders of its own; without them this makes temporary ones, and chooses
/// the offscreen platform. Lives as long as the program runs; made before the application.
class NxTestHome
{
public:
    NxTestHome();

private:
    std::optional<NxTempDir> m_home;
};
