// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/pictures/PictureStore.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr int Quality = 85;
const QString BitDepthKey = QStringLiteral("BitDepth");
const QString PixelFormatKey = QStringLiteral("PixelFormat");

fs::path systemPath(const QString &path)
{
    return fs::path(QFile::encodeName(path).toStdString());
}

NxError cannotWrite(const std::error_code &code)
{
    return NxError{
        QCoreApplication::translate("PictureStore", "The cache folder cannot be written: %1.")
            .arg(QString::fromLocal8Bit(code.message().c_str()))};
}

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

std::error_code writeAll(int descriptor, const QByteArray &bytes)
{
    int done = 0;
    while (done < bytes.size()) {
        const ssize_t count =
            ::write(descriptor, bytes.constData() + done, size_t(bytes.size() - done));
        if (count < 0 && errno != EINTR)
            return lastError();
        done += int(std::max<ssize_t>(count, 0));
    }
    return {};
}

/// A JPEG ends with this mark; a file that was cut or never came to the disk does not.
bool isWhole(QFile *file)
{
    static const QByteArray mark("\xff\xd9");
    return file->seek(file->size() - mark.size()) && file->read(mark.size()) == mark
           && file->seek(0);
}

/// Closes, too: what does not fit on a network's disk shows only then.
std::error_code writeFile(const fs::path &path, const QByteArray &bytes)
{
    constexpr mode_t rights = 0666; // Less what the user's mask takes.
    const int descriptor =
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, rights);
    if (descriptor < 0)
        return lastError();
    const std::error_code problem = writeAll(descriptor, bytes);
    const bool isClosed = ::close(descriptor) == 0;
    return problem || isClosed ? problem : lastError();
}

} // namespace

PictureStore::PictureStore(QString cacheFolder) : m_cacheFolder(std::move(cacheFolder)) {}

NxResult<void> PictureStore::write(const NxFingerprint &fingerprint, NxPictureKind kind,
                                   const QImage &picture, const PictureSource &source) const
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(Quality);
    writer.setText(BitDepthKey, QString::number(source.bitDepth));
    writer.setText(PixelFormatKey, source.pixelFormat);
    if (!writer.write(picture))
        return NxError{
            QCoreApplication::translate("PictureStore", "The picture cannot be compressed: %1.")
                .arg(writer.errorString())};

    const fs::path name = systemPath(path(fingerprint, kind));
    const fs::path part =
        name.string() + '.' + std::to_string(QCoreApplication::applicationPid()) + ".part";
    std::error_code problem;
    fs::create_directories(name.parent_path(), problem);
    if (!problem)
        problem = writeFile(part, bytes);
    if (!problem)
        fs::rename(part, name, problem);
    if (!problem)
        return {};
    std::error_code isNotThere;
    fs::remove(part, isNotThere);
    return cannotWrite(problem);
}

std::optional<PictureSource> PictureStore::find(const NxFingerprint &fingerprint,
                                                NxPictureKind kind) const
{
    QFile file(path(fingerprint, kind));
    if (!file.open(QIODevice::ReadOnly) || !isWhole(&file))
        return std::nullopt;
    QImageReader reader(&file, "jpeg");
    if (reader.size().isEmpty())
        return std::nullopt;
    return PictureSource{reader.text(BitDepthKey).toInt(), reader.text(PixelFormatKey)};
}

QString PictureStore::path(const NxFingerprint &fingerprint, NxPictureKind kind) const
{
    return m_cacheFolder + QLatin1Char('/') + NxPictureFile::name(fingerprint, kind);
}
