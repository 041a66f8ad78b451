// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QByteArray>
#include <QString>

/// What kind of drive a project lies on.
namespace NxFileSystemKind {

/// The type of the file system that holds this path ("ext4", "nfs4"); empty when unknown.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT QByteArray typeOf(const QString &path);

/// Whether other computers may write there, too. On such a drive a write-ahead log is not safe,
/// because its index is shared memory of one computer.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT bool isNetwork(const QByteArray &type);

} // namespace NxFileSystemKind
