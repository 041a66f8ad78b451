// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QString>

/// What must be found out before QSettings writes an ini file of the user.
///
/// QSettings puts a cut-off file in the place of the good one when the disk is full, and waits
/// without limit for its lock file. Whoever writes settings asks here first and leaves the file
/// alone when there is trouble. What happens between asking and writing is not seen.
class NXCORE_EXPORT NxIniFileGuard
{
public:
    NxIniFileGuard() = delete;

    /// Why this ini file must not be written now, as the end of a sentence that begins with "it";
    /// empty when nothing stands in the way. Waits at most 100 ms for another program's write.
    [[nodiscard]] static QString writingTrouble(const QString &path);
    /// Whether something stands at this path that is no file: a pipe would never let go of who
    /// opens it.
    [[nodiscard]] static bool isForeign(const QString &path);
};
