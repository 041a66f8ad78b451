// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QByteArray>
#include <QString>

/// What the first bytes of a project file say, read without SQLite and so without touching
/// anything.
struct NXVBLENGINE_TEST_EXPORT NxProjectHeader
{
    static constexpr int Size = 100; ///< Bytes.

    qint64 version = 0; ///< Of the structure.
    qint64 neededSize = 0; ///< Bytes the file should at least have.
    qint64 fileSize = 0; ///< Bytes it has.

    /// An error when this is no project that the program can open.
    [[nodiscard]] static NxResult<NxProjectHeader> read(const QString &path);
};
