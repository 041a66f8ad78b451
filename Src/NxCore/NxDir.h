// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QStringList>

/// Questions about folders and file suffixes. From any thread.
class NXCORE_EXPORT NxDir
{
public:
    /// Whether a suffix ("mp4", ".mp4") or the suffix of a path ("C:/a/b.MP4") is on a list.
    ///
    /// Every entry of the list is a pattern ("*.MP4"), a suffix, or several of them joined with
    /// ";". Case does not matter. "*" and "*.*" fit everything. A file name is the suffix after
    /// its last point; a text without point and separator is a suffix itself.
    [[nodiscard]] static bool CheckFilters(const QString &suffixOrPath, const QStringList &filters);

    /// The absolute paths of all files in a folder, hidden ones too, in the order of their names;
    /// with `recursive` also in the folders below, after the files beside them. Links to folders
    /// are not followed. Empty when there is no such folder.
    [[nodiscard]] static QStringList getAllFile(const QString &dir, bool recursive);
};
