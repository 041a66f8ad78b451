// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// Takes from the process what reading footage does not need, so that a file that turns a decoder
/// against us finds nothing to reach. What the system cannot take is told, not hidden.
namespace Confinement {

/// No new connection to anything, for good. False when the system has no way to do it.
[[nodiscard]] bool dropNetwork();
/// No writing outside `folder`, which must exist, for good. False when the system has no way.
[[nodiscard]] bool writeOnlyBelow(const QString &folder);

} // namespace Confinement
