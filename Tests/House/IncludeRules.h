// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "IncludeGraph.h"

#include <QStringList>

/// Who may include whom among the modules of Src/. Every function takes the files of Src/, paths
/// from there, and answers its faults as "path:line: message"; an empty list means none.
namespace IncludeRules {

/// A module includes only itself and what it stands on, and no private header (_p.h) of another.
[[nodiscard]] QStringList directionFaults(const QVector<SourceFile> &files);

/// Database, decoder, log and widget headers stay in the modules that may know them.
/// \a widgetHeaders names the header files of QtWidgets.
[[nodiscard]] QStringList foreignHeaderFaults(const QVector<SourceFile> &files,
                                              const QStringList &widgetHeaders);

/// No file includes itself by way of others.
[[nodiscard]] QStringList fileCycleFaults(const QVector<SourceFile> &files);

/// No folder includes from another that includes from it, directly or by way of others.
[[nodiscard]] QStringList folderCycleFaults(const QVector<SourceFile> &files);

/// The CMakeLists.txt of \a module, with the content \a text, names no module and no Qt library
/// that the module may not stand on.
[[nodiscard]] QStringList linkFaults(const QString &module, const QString &text);

} // namespace IncludeRules
