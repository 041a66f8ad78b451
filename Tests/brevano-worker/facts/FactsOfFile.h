// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxWorkerProtocol/NxFootageFacts.h>

#include <QString>

/// The facts of a file, read as the worker does, by the way that its suffix decides.
namespace FactsOfFile {

[[nodiscard]] NxResult<NxFootageFacts> read(const QString &path);

} // namespace FactsOfFile
