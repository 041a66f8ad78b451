// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxFootageFacts.h>

#include <QString>

/// How far the reading of a file has come. The values stand in projects: never renumber one.
enum class NxReadState : int {
    Unread = 0, ///< Its name is all that is known.
    Read = 1,
    Failed = 2, ///< It cannot be read, for a reason.
};

/// How far a picture of a file has come. The values stand in projects: never renumber one.
enum class NxPictureState : int {
    Unknown = 0, ///< Not tried yet.
    Made = 1, ///< It was put into the cache, from where it may have vanished since.
    None = 2, ///< There is nothing to show: sound has no film strip.
    Failed = 3, ///< It cannot be made, for a reason.
};

/// What is known of the contents of a media's file: what was read, and how its pictures fare.
struct NxFootageRecord
{
    qint64 media = 0; ///< Its id.
    NxReadState state = NxReadState::Unread;
    QString reason; ///< Of a failure, a sentence for the user.
    NxFileStamp stamp; ///< Of the file as it was read.
    NxFootageFacts facts; ///< Counts only when the file was read.
    NxFingerprint fingerprint;
    /// The way in which the fingerprint was made; one of another way counts as none.
    int fingerprintVersion = NxFingerprint::Version;
    NxPictureState cover = NxPictureState::Unknown;
    NxPictureState strip = NxPictureState::Unknown;
    QString coverReason; ///< Of a failure.
    QString stripReason; ///< Of a failure.
};
