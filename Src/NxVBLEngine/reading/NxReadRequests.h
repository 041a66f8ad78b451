// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxWorkerProtocol/NxWorkerMessages.h>

#include <QString>

/// How workers are asked about files.
namespace NxReadRequests {

/// `wishes`: bits of NxReadWish. The suffix decides by which way the file is read.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT NxReadRequest of(quint64 number, const QString &path,
                                                       quint8 wishes);

} // namespace NxReadRequests
