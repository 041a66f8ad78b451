// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/pictures/CoverMaker.h>

#include <NxWorkerProtocol/NxPictureFile.h>
#include <brevano-worker/pictures/FilmReader.h>
#include <brevano-worker/pictures/KeyPictures.h>
#include <brevano-worker/pictures/PictureScaler.h>

#include <QCoreApplication>

CoverMaker::CoverMaker(FilmReader *film, KeyPictures *keys) : m_film(film), m_keys(keys) {}

NxResult<QImage> CoverMaker::make(qint64 momentUs)
{
    const QSize box(NxPictureFile::CoverWidth, NxPictureFile::CoverHeight);
    PictureScaler scaler = PictureScaler::of(m_film->stream());
    const auto shown = [&](const AVFrame *frame) {
        return frame ? scaler.fitted(frame, box, PictureFit::Enlarge::Never) : QImage();
    };
    const AVFrame *frame = momentUs > 0 ? m_keys->atOrBefore(m_film->timeOf(momentUs)) : nullptr;
    QImage cover = shown(frame);
    if (cover.isNull()) {
        frame = m_keys->firstThere();
        cover = shown(frame);
    }
    if (cover.isNull())
        return NxError{
            QCoreApplication::translate("CoverMaker", "No picture of the film can be decoded.")};
    m_format = AVPixelFormat(frame->format);
    return cover;
}
