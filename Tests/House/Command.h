// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// How a finished program ended and what it said.
struct CommandResult
{
    /// Exit code; -1 when the program could not be started, crashed or took over ten minutes.
    int code = -1;
    QString output;
    QString errors;
};

/// Runs \a program to its end with nothing on its standard input.
[[nodiscard]] CommandResult runCommand(
    const QString &program, const QStringList &arguments, const QString &folder = {},
    const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());
