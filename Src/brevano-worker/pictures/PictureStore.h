// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxWorkerProtocol/NxPictureFile.h>

#include <QImage>

#include <optional>

/// What a picture in the cache folder was decoded from; it is written into the picture's file.
struct PictureSource
{
    int bitDepth = 0; ///< Bits a channel; 0: not known.
    QString pixelFormat; ///< Empty: not known.
};

/// Writes pictures into the cache folder, and finds those that are there. Whoever looks there sees
/// a whole picture or none: it is written by another name beside its place
/// ("<name>.<process>.part") and renamed.
class PictureStore
{
public:
    /// Folders are made with the first picture.
    explicit PictureStore(QString cacheFolder);

    /// The error is a sentence that names the cause; nothing is left behind then.
    [[nodiscard]] NxResult<void> write(const NxFingerprint &fingerprint, NxPictureKind kind,
                                       const QImage &picture,
                                       const PictureSource &source = {}) const;
    /// What the picture that is there was made from; none when there is none, or no whole one.
    /// Nothing is decoded.
    [[nodiscard]] std::optional<PictureSource> find(const NxFingerprint &fingerprint,
                                                    NxPictureKind kind) const;

private:
    [[nodiscard]] QString path(const NxFingerprint &fingerprint, NxPictureKind kind) const;

    const QString m_cacheFolder;
};
