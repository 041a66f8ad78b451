// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxModulePath_p.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

QString nxModulePath()
{
    Dl_info info{};
    if (dladdr(reinterpret_cast<void *>(&nxModulePath), &info) == 0 || !info.dli_fname)
        return QString();
    return QFileInfo(QFile::decodeName(info.dli_fname)).canonicalFilePath();
}
