// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxWorkerProtocol/NxPictureFile.h>
#include <NxWorkerProtocol/NxWorkerMessages.h>
#include <brevano-worker/pictures/Fingerprint.h>
#include <brevano-worker/pictures/PictureStore.h>

#include <QImage>
#include <QString>

class Container;
class FootageFile;

/// Makes covers and film strips and puts them into the cache folder.
class PictureMaker
{
public:
    /// The folder is made with the first picture.
    explicit PictureMaker(QString cacheFolder);

    /// Makes what the request wishes and answers it in `answer`, with depth and format of the
    /// pictures. `answer->fingerprint` must be there. `durationUs` 0: not known. The container may
    /// stand anywhere. A GIF of one picture is a picture: it has no film strip, and neither has
    /// sound, whose cover is the picture attached to it, else its waveform. Pictures that the cache
    /// folder has of these contents are not made again, unless the request says so.
    void makeOfStream(const NxReadRequest &request, Container *container, qint64 durationUs,
                      NxReadAnswer *answer) const;
    void makeOfStill(const NxReadRequest &request, FootageFile *file, NxReadAnswer *answer) const;

private:
    void makeOfFilm(const NxReadRequest &request, Container *container, qint64 durationUs,
                    NxReadAnswer *answer) const;
    /// The request without what the cache folder has, which is answered then.
    [[nodiscard]] NxReadRequest withoutKept(const NxReadRequest &request,
                                            NxReadAnswer *answer) const;
    /// Keeps a picture and answers it; `answer` knows what it was decoded from.
    void keep(NxPictureKind kind, const NxResult<QImage> &picture, NxReadAnswer *answer) const;

    const PictureStore m_store;
};
