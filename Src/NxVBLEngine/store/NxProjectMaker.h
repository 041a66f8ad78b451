// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>

#include <QString>

/// Makes new project files.
namespace NxProjectMaker {

/// Why no project of this path can be made, before anything is touched: a file stands there, there
/// is no such folder, it is write-protected, or the name is too long.
[[nodiscard]] NxResult<void> mayMake(const QString &path);
/// Makes an empty project of this path. It appears whole or not at all; a file that stands there
/// is an error and is not touched.
[[nodiscard]] NxResult<void> make(const QString &path, qint64 nowMsec, const char *vfs);

} // namespace NxProjectMaker
