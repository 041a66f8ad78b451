// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

/// Lets the calling thread step back behind the one that paints the window, from now on and for
/// good: it gets what that one leaves, and a little more, so that it never stands still. Meant for
/// threads whose results somebody waits to see; a thread that steps back further already stays as
/// it is. Where single threads have no priority (macOS) nothing changes.
NXCORE_EXPORT void nxStepBack();
