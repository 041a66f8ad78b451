// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

#include <QString>
#include <QStringList>

class INxFolderMedia;

/// Folder paths as users write them: names from the section down, "/" between them, and "/" and
/// "\" inside a name written "\/" and "\\". The empty path is the section itself.
namespace NxFolderPath {

/// "Holiday/Day 1" for a folder two below its section; empty for sections and the hidden root.
[[nodiscard]] NXVBLMODEL_EXPORT QString of(const INxFolderMedia *folder);
[[nodiscard]] NXVBLMODEL_EXPORT QString join(const QStringList &names);
/// Names are trimmed; empty ones (a leading or doubled "/") are left out.
[[nodiscard]] NXVBLMODEL_EXPORT QStringList split(const QString &path);
/// Null when there is no such folder below the section.
[[nodiscard]] NXVBLMODEL_EXPORT INxFolderMedia *find(INxFolderMedia *section, const QString &path);

} // namespace NxFolderPath
