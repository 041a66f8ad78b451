// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/disk/NxFileProbe.h>

QString NxFileProbe::volumeOf(const QString &path, const QStringList &roots)
{
    QString innermost;
    for (const QString &root : roots) {
        if (root.size() <= innermost.size() || !path.startsWith(root))
            continue;
        const bool whole = root.endsWith(QLatin1Char('/')) || path.size() == root.size()
            || path.at(root.size()) == QLatin1Char('/');
        if (whole)
            innermost = root;
    }
    return innermost;
}
