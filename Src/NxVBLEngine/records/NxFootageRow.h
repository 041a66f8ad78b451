// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/records/NxFootageRecord.h>

/// What one file has for itself: a footage record without what it shares with other files. By the
/// million at opening.
struct NxFootageRow
{
    qint64 media = 0;
    NxReadState state = NxReadState::Unread;
    NxPictureState cover = NxPictureState::Unknown;
    NxPictureState strip = NxPictureState::Unknown;
    int streams = -1; ///< Which of the shared descriptions is meant; -1: none.
    NxFileStamp stamp;
    qint64 frames = 0;
    NxRational rate;
    qint64 durationUs = 0;
    qint64 videoBitRate = 0;
    qint64 audioBitRate = 0;
    qint64 shot = NxNoFootageTime;
    QString timecode;
    QString reel;
    NxFingerprint fingerprint;
    QString reason;
    QString coverReason;
    QString stripReason;

    /// The row of a record, without a number for its streams. What contradicts the states is left
    /// out: facts of a file that was not read, reasons of what did not fail, a fingerprint made in
    /// another way, and a picture that was made but cannot be found without a fingerprint. Numbers
    /// below nothing become unknown.
    [[nodiscard]] NXVBLENGINE_TEST_EXPORT static NxFootageRow of(const NxFootageRecord &record);

    /// Whether a view that shows the file shows the same of both. Only the stamps may differ.
    [[nodiscard]] NXVBLENGINE_TEST_EXPORT bool looksLike(const NxFootageRow &other) const;
    /// Nothing is known: as if there were no row.
    [[nodiscard]] NXVBLENGINE_TEST_EXPORT bool isBlank() const;

    /// Whether all but the shared description is the same.
    friend bool operator==(const NxFootageRow &a, const NxFootageRow &b)
    {
        return a.stamp == b.stamp && a.looksLike(b);
    }
    friend bool operator!=(const NxFootageRow &a, const NxFootageRow &b) { return !(a == b); }
};
