// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// One C++ source file of a tree, as the house rules look at it.
struct SourceFile
{
    /// Where it lies, from the root of the tree that was read, with "/".
    QString path;
    /// The file as written, a line each.
    QStringList lines;
    /// The same lines with comments and the insides of string and character literals as spaces,
    /// so that a word in a text is never taken for code.
    QStringList codeLines;

    /// The folder the file lies in, from the root; empty for the root itself.
    [[nodiscard]] QString folder() const;
    [[nodiscard]] bool isHeader() const;
    /// "path:line: message", the form in which every fault is told. \a line counts from 0.
    [[nodiscard]] QString fault(int line, const QString &message) const;

    /// The file \a path whose content is \a text.
    [[nodiscard]] static SourceFile fromText(const QString &path, const QString &text);
    /// All .h and .cpp files under \a root, in order of their paths.
    /// An unreadable file is one with no text.
    [[nodiscard]] static QVector<SourceFile> readTree(const QString &root);
};
