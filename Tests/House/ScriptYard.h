// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "Command.h"

#include <QTemporaryDir>

/// A folder with copies of the project's scripts and harmless programs of the names that they call,
/// so that a script can be run whole without installing or building anything. Every harmless
/// program notes its call as a line of calls().
class ScriptYard
{
public:
    ScriptYard();

    /// False when the folder could not be set up; nothing else may be called then.
    [[nodiscard]] bool isValid() const;

    /// Puts a program \a name in front of the real one: it notes its call, then runs \a body, which
    /// is bash.
    void fakeProgram(const QString &name, const QString &body = QStringLiteral("exit 0"));
    /// Writes \a text into the file \a name of the yard, made with its folders, as a program.
    void writeProgram(const QString &name, const QString &text);
    /// Makes the package list name \a packages.
    void listPackages(const QStringList &packages);

    /// Runs a script of the yard from the folder the user is in.
    [[nodiscard]] CommandResult run(const QString &script, const QStringList &arguments) const;
    /// Runs \a commands in bash after sourcing the shared set-up; with \a answer on a terminal
    /// unless it is null, else without any terminal.
    [[nodiscard]] CommandResult runSetup(const QString &commands, const QString &answer = {}) const;

    /// The calls of the harmless programs so far, each "name argument argument".
    [[nodiscard]] QStringList calls() const;
    /// The yard's folder, with links resolved.
    [[nodiscard]] QString folder() const;
    /// The folder in which the user of the scripts stands.
    [[nodiscard]] QString userFolder() const;

private:
    void copyScript(const QString &name);
    [[nodiscard]] QProcessEnvironment environment() const;

    QTemporaryDir m_folder;
    bool m_isValid = true;
};
