// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "SourceFile.h"

#include <QStringList>

/// How the code of the house is written, as far as a search can tell. Every function takes files
/// with paths from the top of the project and answers its faults as "path:line: message"; an empty
/// list means none.
namespace CodeRules {

/// Words and constructs that the house does not use, in tests or anywhere.
[[nodiscard]] QStringList wordFaults(const QVector<SourceFile> &files);

/// The licence lines, the include guard, line length, line ends and spaces.
[[nodiscard]] QStringList formFaults(const QVector<SourceFile> &files);

/// A test source that its folder's CMakeLists.txt does not name would never run. \a cmakeText
/// answers the CMakeLists.txt of a folder.
template<typename CMakeText>
[[nodiscard]] QStringList unregisteredTests(const QVector<SourceFile> &files, CMakeText cmakeText)
{
    QStringList faults;
    for (const SourceFile &file : files) {
        const QString name =
            file.path.section(QLatin1Char('/'), -1).section(QLatin1Char('.'), 0, 0);
        const bool isTest = name.startsWith(QLatin1String("tst_")) && !file.isHeader();
        if (isTest && !QString(cmakeText(file.folder())).contains(name))
            faults +=
                file.fault(0, QStringLiteral("is named in no CMakeLists.txt, so it never runs"));
    }
    return faults;
}

} // namespace CodeRules
