// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxWorkerLocation.h>

#include <NxCore/NxModulePath.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

#ifdef Q_OS_WIN
constexpr QLatin1String ProgramName("brevano-worker.exe");
#else
constexpr QLatin1String ProgramName("brevano-worker");
#endif

/// An installation keeps its libraries in lib or in lib/<system>.
constexpr const char *Prefixes[] = {"..", "../.."};

QStringList candidates(const QString &folder, const QString &variable)
{
    const QDir libraries(folder);
    QStringList paths{libraries.filePath(ProgramName)};
    for (const char *prefix : Prefixes) {
        const QDir installation(libraries.filePath(QLatin1String(prefix)));
        paths += QDir::cleanPath(
            installation.filePath(QStringLiteral("libexec/brevano/") + ProgramName));
    }
    if (!variable.isEmpty())
        paths += variable;
    return paths;
}

} // namespace

NxResult<QString> NxWorkerLocation::find(const QString &folder, const QString &variable)
{
    const QStringList paths = candidates(folder, variable);
    for (const QString &path : paths) {
        const QFileInfo file(path);
        if (file.isFile() && file.isExecutable())
            return file.absoluteFilePath();
    }
    return NxError{QCoreApplication::translate("NxWorkerLocation",
        "The program that reads footage is not installed; it was looked for as %1.")
                       .arg(paths.join(QStringLiteral(", ")))};
}

NxResult<QString> NxWorkerLocation::find()
{
    static const char anchor = 0;
    return find(QFileInfo(nxModulePath(&anchor)).absolutePath(), qEnvironmentVariable("NX_WORKER"));
}
