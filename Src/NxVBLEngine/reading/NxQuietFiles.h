// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxWorkerProtocol/NxFootageFacts.h>

#include <QHash>
#include <QVector>

/// Files that were written after they were read: when each has been quiet long enough to be read
/// again. Values only; times in ms of any clock.
class NXVBLENGINE_TEST_EXPORT NxQuietFiles
{
public:
    static constexpr qint64 Quiet = 1'500; ///< ms

    /// The file was seen like this. True when it has been quiet: it may be read, and is forgotten.
    [[nodiscard]] bool noteSeen(qint64 media, const NxFileStamp &stamp, qint64 now);
    void forget(qint64 media) { m_files.remove(media); }
    void clear() { m_files.clear(); }
    /// Those that are to be looked at again now, because they may be quiet by now.
    [[nodiscard]] QVector<qint64> due(qint64 now) const;
    [[nodiscard]] bool contains(qint64 media) const { return m_files.contains(media); }
    [[nodiscard]] bool isEmpty() const { return m_files.isEmpty(); }

private:
    struct Change
    {
        NxFileStamp stamp;
        qint64 since = 0;
    };

    QHash<qint64, Change> m_files;
};
