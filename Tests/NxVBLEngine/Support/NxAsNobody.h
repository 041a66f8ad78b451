// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <functional>

/// Runs parts of a test as a user who has no special rights. Root may write everywhere, so that
/// its tests of permissions would prove nothing.
namespace NxAsNobody {

/// Runs `body` in a child process, as user "nobody" when this process is root, and answers what it
/// answered. The child shares nothing but what stood in memory before; other threads do not exist
/// in it. When the child died, the answer says so.
[[nodiscard]] QString run(const std::function<QString()> &body);

/// Gives a file, or a folder with all in it, to the user that run() uses.
void give(const QString &path);

} // namespace NxAsNobody
