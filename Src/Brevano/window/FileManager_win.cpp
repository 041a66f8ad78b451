// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/FileManager.h>

#include <QDir>
#include <QProcess>

FileManager::Asker systemFileManager()
{
    return [](const QString &path, QObject *, const FileManager::Answer &answer) {
        QProcess explorer;
        explorer.setProgram(QStringLiteral("explorer.exe"));
        // Explorer reads the command line itself, and understands no quotes around the option.
        explorer.setNativeArguments(
            QStringLiteral("/select,\"%1\"").arg(QDir::toNativeSeparators(path)));
        answer(explorer.startDetached() ? QString() : explorer.errorString());
    };
}
