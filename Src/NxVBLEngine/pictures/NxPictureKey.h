// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxPictureFile.h>

#include <QHash>
#include <QSize>

/// One picture in memory: of which contents, which one, and how large.
struct NxPictureKey
{
    NxFingerprint contents;
    NxPictureKind kind = NxPictureKind::Cover;
    QSize size; ///< Device pixels to fit; not set for film strips, which are kept as they are.

    friend bool operator==(const NxPictureKey &a, const NxPictureKey &b)
    {
        return a.contents == b.contents && a.kind == b.kind && a.size == b.size;
    }
};

inline uint qHash(const NxPictureKey &key, uint seed = 0)
{
    // The contents' hash is one already.
    return qHash(key.contents.low ^ quint64(key.kind), seed)
           ^ qHash(quint64(key.size.width()) << 32 | quint64(quint32(key.size.height())), seed);
}
