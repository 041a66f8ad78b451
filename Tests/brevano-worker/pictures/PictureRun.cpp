// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PictureRun.h"

#include <brevano-worker/pictures/PictureMaker.h>

#include <QFile>

PictureRun::PictureRun(const QString &path)
{
    NxResult<std::unique_ptr<FootageFile>> file = FootageFile::open(QFile::encodeName(path));
    if (!file)
        qFatal("%s: %s", qUtf8Printable(path), qUtf8Printable(file.error().message));
    m_file = file.take();
    m_answer.fingerprint = fingerprintOf(*m_file);
}

NxReadRequest PictureRun::request(int wishes) const
{
    NxReadRequest request;
    request.path = m_file->path();
    request.wishes = quint8(wishes);
    return request;
}

void PictureRun::makeOfStream(qint64 durationUs, int wishes)
{
    const NxResult<std::unique_ptr<Container>> container = Container::open(m_file.get());
    if (!container) {
        m_answer.failure = container.error().message;
        return;
    }
    PictureMaker(m_dir.path())
        .makeOfStream(request(wishes), container->get(), durationUs, &m_answer);
}

void PictureRun::makeOfStill(int wishes)
{
    PictureMaker(m_dir.path()).makeOfStill(request(wishes), m_file.get(), &m_answer);
}

void PictureRun::forget()
{
    const NxFingerprint fingerprint = m_answer.fingerprint;
    m_answer = {};
    m_answer.fingerprint = fingerprint;
}

QImage PictureRun::row(const QImage &strip, int row)
{
    return strip.copy(0, row * NxPictureFile::FrameHeight, NxPictureFile::FrameWidth,
                      NxPictureFile::FrameHeight);
}

QString PictureRun::path(NxPictureKind kind) const
{
    return m_dir.filePath(NxPictureFile::name(m_answer.fingerprint, kind));
}
