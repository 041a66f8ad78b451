// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QTemporaryDir>

/// A copy of the program and its libraries where every user of the machine may start it. A build in
/// a home that is closed to others, such as root's, cannot be started by anybody else.
class ReadableProgram
{
public:
    ReadableProgram();

    /// The program's path; empty when the copy could not be made.
    [[nodiscard]] QString path() const;
    /// Lets a program that is started with \a environment find the copied libraries.
    void addLibrariesTo(QProcessEnvironment *environment) const;

private:
    [[nodiscard]] bool copyHere(const QString &file) const;
    [[nodiscard]] bool copyAll() const;

    const QTemporaryDir m_folder;
    bool m_isComplete = false;
};
