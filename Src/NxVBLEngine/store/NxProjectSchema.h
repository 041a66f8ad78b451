// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QtGlobal>

#include <vector>

class NxSqliteDatabase;

/// One step of a project file's structure from a version to the next; false when it failed.
using NxSchemaStep = bool (*)(NxSqliteDatabase &database);

/// The structure of a project file, by version.
///
/// A file says what it is in SQLite's application id, and its version in SQLite's user version.
/// Version 0 is an empty file. A new version of the structure appends one step.
namespace NxProjectSchema {

constexpr qint64 ApplicationId = 0x4272766E; ///< "Brvn"

/// The step at index n leads from version n to n + 1.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT const std::vector<NxSchemaStep> &steps();
/// The version this program writes.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT int currentVersion();

/// Takes a file up to the last version, all steps in one transaction.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT NxResult<void> migrate(
    NxSqliteDatabase *database, const std::vector<NxSchemaStep> &migrations);

/// "/a/b.brevano: was made by a newer version (schema 7, this program knows 2)"
[[nodiscard]] NxError newerVersion(const QString &path, qint64 version);

} // namespace NxProjectSchema
