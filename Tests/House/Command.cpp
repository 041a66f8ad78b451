// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "Command.h"

#include <QProcess>

CommandResult runCommand(const QString &program, const QStringList &arguments,
                         const QString &folder, const QProcessEnvironment &environment)
{
    constexpr int patienceMs = 600000;
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.setWorkingDirectory(folder);
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(patienceMs) || process.exitStatus() != QProcess::NormalExit)
        return {-1, QString(), process.errorString()};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}
