// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxQuietFiles.h>

bool NxQuietFiles::noteSeen(qint64 media, const NxFileStamp &stamp, qint64 now)
{
    const auto known = m_files.find(media);
    if (known == m_files.end() || known->stamp != stamp) {
        m_files.insert(media, {stamp, now});
        return false;
    }
    if (now - known->since < Quiet)
        return false;
    m_files.erase(known);
    return true;
}

QVector<qint64> NxQuietFiles::due(qint64 now) const
{
    QVector<qint64> media;
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
        if (now - file->since >= Quiet)
            media.append(file.key());
    }
    return media;
}
