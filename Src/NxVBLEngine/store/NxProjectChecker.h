// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QStringList>

class NxSqliteDatabase;
struct NxProjectContents;

/// Finds out whether a project file is sound.
namespace NxProjectChecker {

/// Every page of the file, and every row against the others. Sentences for a user; empty when all
/// is well. Takes about as long as reading the file twice.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT QStringList problems(NxSqliteDatabase *database);

/// The rows against each other.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT QStringList problemsOf(const NxProjectContents &contents);

} // namespace NxProjectChecker
