// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CachedPictures.h"

#include <RawFiles.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

#include <cstdlib>

NxFingerprint CachedPictures::contents(int number)
{
    constexpr quint64 high = 0xABCD'EF01'2345'6789ULL;
    return {1'000 + number, high + quint64(number), quint64(number) << 32};
}

QString CachedPictures::path(const QString &folder, const NxFingerprint &contents,
                             NxPictureKind kind)
{
    return folder + QLatin1Char('/') + NxPictureFile::name(contents, kind);
}

QByteArray CachedPictures::jpeg(const QSize &size, const QColor &colour)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!image.save(&buffer, "jpg"))
        qFatal("no picture can be written");
    return bytes;
}

QString CachedPictures::write(const QString &folder, const NxFingerprint &contents,
                              NxPictureKind kind, const QByteArray &bytes)
{
    const QString path = CachedPictures::path(folder, contents, kind);
    QFile file(path);
    const bool isWritten = QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
                           && file.write(bytes) == bytes.size();
    if (!isWritten)
        qFatal("%s", qUtf8Printable(file.errorString()));
    return path;
}

void CachedPictures::setLastUse(const QString &path, const QDateTime &time)
{
    QFile file(path);
    const bool isSet = file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly)
                       && file.setFileTime(time, QFileDevice::FileModificationTime);
    if (!isSet)
        qFatal("%s", qUtf8Printable(file.errorString()));
}

CachedPictures::Jam::Jam(const QString &folder, const NxFingerprint &contents)
    : m_pipe(path(folder, contents, NxPictureKind::Cover))
{
    if (!QDir().mkpath(QFileInfo(m_pipe).path()))
        qFatal("no folder for %s", qUtf8Printable(m_pipe.fileName()));
    QFile::remove(m_pipe.fileName());
    RawFiles::makePipe(m_pipe.fileName());
}

void CachedPictures::Jam::release()
{
    // Both ends: it waits for nobody, and lets go whoever waits.
    const bool isOpen =
        m_pipe.isOpen() || m_pipe.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    if (!isOpen && QFile::exists(m_pipe.fileName()))
        qFatal("%s", qUtf8Printable(m_pipe.errorString()));
}

bool CachedPictures::isAlike(const QColor &a, const QColor &b)
{
    constexpr int slack = 12;
    return std::abs(a.red() - b.red()) <= slack && std::abs(a.green() - b.green()) <= slack
           && std::abs(a.blue() - b.blue()) <= slack;
}
