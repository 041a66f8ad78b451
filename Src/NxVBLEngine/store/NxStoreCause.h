// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QString>

/// What was being done to a project file when it failed.
enum class NxStoreDeed {
    Open,
    Read,
    Write,
    Copy,
    Remove,
};

/// The sentences of the store: every one names the file and the cause.
namespace NxStoreCause {

/// Why SQLite refused, in words for a user. `systemError` is the errno behind it, or 0.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT QString ofSqlite(int code, int systemError);
/// Why the system refused: "permission denied".
[[nodiscard]] QString ofSystem(int systemError);

/// "/a/b.brevano: cannot be written: the disk is full"
[[nodiscard]] NXVBLENGINE_TEST_EXPORT NxError error(const QString &path, NxStoreDeed deed,
                                                    const QString &cause);
/// "/a/b.brevano: is not a Brevano project"
[[nodiscard]] NxError error(const QString &path, const QString &sentence);

/// Whether SQLite's answer means that the file itself cannot be trusted.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT bool isDamage(int code);

} // namespace NxStoreCause
