// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxAppInfo_p.h"

#include <NxCore/NxLog.h>
#include <NxCore/NxModulePath.h>

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QString userData()
{
    const QString path = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (!QDir().mkpath(path))
        NX_LOG_ERROR("%s: the folder of the user's data cannot be made", qUtf8Printable(path));
    return path;
}

/// The resources stand in share/brevano below one of the folders above the library: the prefix of
/// an installation ("lib/libNxCore.so" or "lib/<system>/libNxCore.so"), or the build folder.
QString resources()
{
    constexpr int levels = 3;
    static const char anchor = 0;
    const QString library = nxModulePath(&anchor);
    QDir above = QFileInfo(library).dir();
    for (int i = 0; i < levels; ++i) {
        const QString candidate = above.filePath(QStringLiteral("share/brevano"));
        if (QFileInfo(candidate).isDir())
            return candidate;
        if (!above.cdUp())
            break;
    }
    NX_LOG_ERROR("%s: no share/brevano stands above the library", qUtf8Printable(library));
    return QString();
}

} // namespace

QString NxAppInfo::getDirectory(int pathKind)
{
    if (pathKind == pkUserData)
        return userData();
    if (pathKind == pkResources)
        return resources();
    NX_LOG_ERROR("no folder has the kind %d", pathKind);
    return QString();
}
