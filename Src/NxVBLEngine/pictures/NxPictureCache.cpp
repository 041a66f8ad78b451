// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/pictures/NxPictureCache.h>

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace {

constexpr qint64 HalfWrittenAge = 3'600; // s
constexpr qint64 NotedAge = 86'400; // s

struct Picture
{
    QString path;
    qint64 bytes = 0;
    QDateTime used;
};

/// "ab/<32 digits>-1-<size>-cover-1.jpg"
bool isPicture(const QString &name)
{
    static const QRegularExpression form(
        QStringLiteral("^[0-9a-f]{32}-[0-9]+-[0-9]+-(cover|strip)-[0-9]+\\.jpg$"));
    return form.match(name).hasMatch();
}

/// The same with the number of the process that writes it.
bool isHalfWritten(const QString &name)
{
    static const QRegularExpression form(
        QStringLiteral("^[0-9a-f]{32}-[0-9]+-[0-9]+-(cover|strip)-[0-9]+\\.jpg\\.[0-9]+\\.part$"));
    return form.match(name).hasMatch();
}

bool isOurFolder(const QString &name)
{
    static const QRegularExpression form(QStringLiteral("^[0-9a-f]{2}$"));
    return form.match(name).hasMatch();
}

std::vector<Picture> picturesIn(const QString &folder)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    std::vector<Picture> pictures;
    QDirIterator files(folder, QDir::Files | QDir::NoSymLinks);
    while (files.hasNext()) {
        files.next();
        const QFileInfo file = files.fileInfo();
        if (isPicture(file.fileName()))
            pictures.push_back({file.filePath(), file.size(), file.lastModified()});
        else if (isHalfWritten(file.fileName()) && file.lastModified().secsTo(now) > HalfWrittenAge)
            QFile::remove(file.filePath());
    }
    return pictures;
}

} // namespace

qint64 NxPictureCache::trim(const QString &folder, qint64 limit)
{
    std::vector<Picture> pictures;
    const QFileInfoList folders =
        QDir(folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QFileInfo &each : folders) {
        if (!isOurFolder(each.fileName()))
            continue;
        const std::vector<Picture> found = picturesIn(each.filePath());
        pictures.insert(pictures.end(), found.begin(), found.end());
    }
    qint64 bytes = 0;
    for (const Picture &picture : pictures)
        bytes += picture.bytes;
    if (bytes <= limit)
        return bytes;
    std::sort(pictures.begin(), pictures.end(),
              [](const Picture &a, const Picture &b) { return a.used < b.used; });
    const qint64 enough = limit / 10 * 9;
    for (const Picture &picture : pictures) {
        if (bytes <= enough)
            break;
        if (QFile::remove(picture.path))
            bytes -= picture.bytes;
    }
    return bytes;
}

void NxPictureCache::noteUse(const QString &path)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QFileInfo picture(path);
    // A time to come is a clock gone wrong: the picture would be the last one to go.
    const bool isOld = std::abs(picture.lastModified().secsTo(now)) > NotedAge;
    QFile file(path);
    // Opening for both keeps the contents; a folder that cannot be written needs no order of use.
    if (isOld && !picture.isSymLink() && file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        file.setFileTime(now, QFileDevice::FileModificationTime);
}
