// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxModulePath.h>

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

QString nxModulePath(const void *inside)
{
    Dl_info info{};
    if (dladdr(inside, &info) == 0 || !info.dli_fname)
        return QString();
    return QFileInfo(QFile::decodeName(info.dli_fname)).canonicalFilePath();
}
