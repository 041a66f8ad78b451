// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxFootageFacts.h>

#include <QSize>
#include <QString>

/// The pictures that are made of footage, and how their files in the cache folder are called.
enum class NxPictureKind : quint8 {
    Cover = 0, ///< Fits CoverSize, never enlarged.
    Strip = 1, ///< StripRows frames of StripFrameSize, stacked; a new moment every RowsPerMoment.
};

namespace NxPictureFile {

constexpr int CoverWidth = 480; ///< px
constexpr int CoverHeight = 270; ///< px
constexpr int FrameWidth = 144; ///< px
constexpr int FrameHeight = 81; ///< px
constexpr int Moments = 10;
constexpr int RowsPerMoment = 6;
constexpr int StripHeight = Moments * RowsPerMoment * FrameHeight; ///< 4860 px

/// The moment of a film strip's picture, of `Moments`, in a film of that length: the middle of
/// the tenth that it stands for.
[[nodiscard]] constexpr qint64 momentUs(int moment, qint64 durationUs)
{
    return durationUs * (2 * moment + 1) / (2 * Moments);
}
/// The moment that the cover shows: a tenth into the film, past what is black at the beginning.
[[nodiscard]] constexpr qint64 coverMomentUs(qint64 durationUs)
{
    return durationUs / Moments;
}

/// The path below the cache folder, e.g. "3f/3f0c...-1-6291456-cover-1.jpg". It names the contents
/// of the file and the way the picture was made, so whoever knows both finds it.
[[nodiscard]] QString name(const NxFingerprint &fingerprint, NxPictureKind kind);

} // namespace NxPictureFile
