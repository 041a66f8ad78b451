// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/records/NxMediaRecord.h>

#include <QString>
#include <QStringList>

#include <functional>

enum class NxFileKind {
    Missing, ///< Nothing of this name, or a link that leads nowhere.
    File,
    Folder,
    Special, ///< A FIFO, a socket or a device. Opening it could wait for ever.
    Denied, ///< Somebody without our rights may know.
    Failed, ///< The disk answered with an error.
};

/// What can be known of a path without opening anything. Links are followed.
struct NxFileFacts
{
    NxFileKind kind = NxFileKind::Missing;
    bool readable = false; ///< We have the right to read it.
    qint64 size = -1; ///< Bytes.
    qint64 created = NxNoTime; ///< ms UTC; not every file system knows it.
    qint64 modified = NxNoTime; ///< ms UTC.
    quint64 device = 0; ///< With `inode` the identity of a file; 0 where the system has none.
    quint64 inode = 0;
    QString error; ///< The system's words, for Denied and Failed.
};

/// How a file is looked at. A test may put something else in place of NxFileProbe::look().
using NxFileLook = std::function<NxFileFacts(const QString &path)>;

/// Looks at files without opening them. Every function may wait for a disk: disk thread only.
namespace NxFileProbe {

[[nodiscard]] NXVBLENGINE_TEST_EXPORT NxFileFacts look(const QString &path);
/// Whether the name itself is a link.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT bool isLink(const QString &path);

struct Canonical
{
    QString path; ///< Empty when there is none.
    QString unshowable; ///< Set instead when the name it leads to is not valid text.
};
/// The path with all links followed.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT Canonical canonicalPath(const QString &path);

/// True when no program could open a file of this path.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT bool isTooLong(const QString &path);

/// Where volumes are mounted; never waits for any of them.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT QStringList volumeRoots();
/// The innermost of the roots that holds a path; empty when none does.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT QString volumeOf(
    const QString &path, const QStringList &roots);

} // namespace NxFileProbe
