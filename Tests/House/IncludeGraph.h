// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "SourceFile.h"

/// One #include line of a source tree.
struct IncludeLine
{
    /// Index of the including file in the tree.
    int file = 0;
    /// Where in that file, counted from 0.
    int line = 0;
    /// What stands between the brackets or quotes.
    QString target;
    /// Path of the included file from the root when it lies in the tree; else empty.
    QString resolved;

    /// The module the included header belongs to: the first folder of \a resolved, or of \a target
    /// when the header is generated; empty when the target names no folder.
    [[nodiscard]] QString targetModule() const;
};

/// The #include lines of \a files, in order. A quoted name is looked for beside the including file
/// first, any name from the root. Lines inside comments are none, and .moc files are passed over.
[[nodiscard]] QVector<IncludeLine> includeLines(const QVector<SourceFile> &files);

/// The first module-relative folder of \a path: "NxCore" of "NxCore/NxFile.h".
[[nodiscard]] QString moduleOf(const QString &path);

/// One sentence for every cycle that the nodes of \a edges (from, to) form: "a -> b -> a".
/// Each node takes part in one told cycle at most.
[[nodiscard]] QStringList cycles(const QVector<QPair<QString, QString>> &edges);
