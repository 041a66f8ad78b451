// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QString>
#include <QStringList>

/// Where the program brevano-worker stands.
namespace NxWorkerLocation {

/// Beside the engine's library, then in libexec/brevano of the same installation, then what the
/// environment variable NX_WORKER names. The error says where it was looked for.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT NxResult<QString> find();
/// The same for a library in `folder` and the value of the variable.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT NxResult<QString> find(
    const QString &folder, const QString &variable);

} // namespace NxWorkerLocation
