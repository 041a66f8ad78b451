// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/pictures/NxPictureKey.h>

#include <QByteArray>
#include <QColor>
#include <QDateTime>
#include <QFile>
#include <QSize>
#include <QString>

/// Pictures as a worker leaves them in the cache folder. A failure ends the test program.
namespace CachedPictures {

constexpr QSize WholeCover{NxPictureFile::CoverWidth, NxPictureFile::CoverHeight};
constexpr QSize WholeStrip{NxPictureFile::FrameWidth, NxPictureFile::StripHeight};

/// Contents that differ from those of any other number.
[[nodiscard]] NxFingerprint contents(int number);
[[nodiscard]] QString path(const QString &folder, const NxFingerprint &contents,
                           NxPictureKind kind);
/// A picture of one colour.
[[nodiscard]] QByteArray jpeg(const QSize &size, const QColor &colour = Qt::red);
/// Writes a file, with its folder; answers its path.
QString write(const QString &folder, const NxFingerprint &contents, NxPictureKind kind,
              const QByteArray &bytes);
void setLastUse(const QString &path, const QDateTime &time);
/// JPEG changes colours a little.
[[nodiscard]] bool isAlike(const QColor &a, const QColor &b);

/// A cover whose file does not answer: whoever loads it waits, and finds it gone in the end.
class Jam
{
    Q_DISABLE_COPY_MOVE(Jam)
public:
    Jam(const QString &folder, const NxFingerprint &contents);
    ~Jam() { release(); }

    void release();

private:
    QFile m_pipe;
};

} // namespace CachedPictures
