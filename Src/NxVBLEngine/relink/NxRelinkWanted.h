// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaRef.h>
#include <NxWorkerProtocol/NxFootageFacts.h>

#include <QString>

/// A media whose file is looked for, as it stood when the search began.
struct NxRelinkWanted
{
    NxMediaRef media;
    qint64 id = 0; ///< 0: nothing is looked for, or not any more.
    QString path; ///< Where its file should be.
    QString name; ///< Of that file.
    qint64 size = -1; ///< Of that file in bytes; -1: not known.
    NxFingerprint fingerprint; ///< Null: not known.
    qint64 length = -1; ///< As INxMediaInfo::duration(); -1: never read.
};

/// A file that may be the one that a media was made from.
struct NxRelinkCandidate
{
    QString path;
    QString name;
    qint64 size = -1; ///< Bytes.
    NxFingerprint fingerprint; ///< Null: not known.
    qint64 length = -1; ///< As INxMediaInfo::duration(); -1: not known.
    bool isOut = false; ///< It can be nobody's file: it cannot be read, or is a media's already.
};
