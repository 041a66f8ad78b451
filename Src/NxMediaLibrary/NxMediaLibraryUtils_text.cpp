// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryUtils.h>

#include <NxCore/INxAppInfo.h>
#include <NxCore/NxConvertUtility.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/NxStreamInfo.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr NxRational FilmRate{24000, 1001};
/// Film from video is counted by this rate, as timelines show it.
constexpr double ShownFilmRate = 23.97;
/// The frames of a second are shown in two digits, up to 60 of them.
constexpr double HighestRate = 60.0;
constexpr double LowestRate = 1.0;

bool hasLength(NXVBLMODEL::NxMediaType type)
{
    switch (type) {
    case NXVBLMODEL::mtVideo:
    case NXVBLMODEL::mtAudio:
    case NXVBLMODEL::mtVideoAudio:
    case NXVBLMODEL::mtSubtitle:
    case NXVBLMODEL::mtProjectTemplate:
        return true;
    default:
        return false;
    }
}

double shownRate(NxRational rate)
{
    if (rate.num <= 0 || rate.den <= 0)
        return 0.0;
    if (rate == FilmRate)
        return ShownFilmRate;
    return std::min(rate.toDouble(), HighestRate);
}

/// Null for an item whose stream details must not be read, or are not known.
const INxMediaInfo *readableInfo(const INxAbstractMediaItem *item)
{
    return item && !item->isUnavailable() ? item->mediaInfo() : nullptr;
}

/// The names of the resources' files stand here as they do on Windows.
QString resourcePath(QString file)
{
    const QString folder = INxAppInfo::getInstance()->getDirectory(INxAppInfo::pkResources);
    if (folder.isEmpty())
        return {};
    file.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return QDir::fromNativeSeparators(folder) + file;
}

} // namespace

QString NxMediaLibraryUtils::getDuration(const INxAbstractMediaItem *item)
{
    if (!item || !hasLength(item->mediaType()))
        return {};
    const INxMediaInfo *info = item->mediaInfo();
    const qint64 frames = info ? info->frameCount() : item->frameCount();
    const double rate = shownRate(info ? info->frameRate() : item->frameRate());
    if (frames < 0 || rate < LowestRate)
        return {};
    return NxConvertUtility::frame2String(frames, rate);
}

QString NxMediaLibraryUtils::getCreatDate(const INxAbstractMediaItem *item)
{
    const QFileInfo file(item ? item->filePath() : QString());
    if (!file.exists())
        return {};
    const QDateTime born = file.birthTime();
    const QDateTime shown = born.isValid() ? born : file.lastModified();
    return shown.toLocalTime().toString(QStringLiteral("yyyy/MM/dd hh:mm:ss"));
}

QSize NxMediaLibraryUtils::getResolution(const INxAbstractMediaItem *item)
{
    const INxMediaInfo *info = readableInfo(item);
    if (!info)
        return {};
    if (isVideo(item)) {
        const NxVideoStreamInfo *stream = info->videoStream();
        return stream ? stream->frameSize : QSize();
    }
    const NxImageInfo *image = isPhoto(item) ? info->imageInfo() : nullptr;
    return image ? image->size : QSize();
}

int NxMediaLibraryUtils::getAudioSampleRate(const INxAbstractMediaItem *item)
{
    const INxMediaInfo *info = readableInfo(item);
    const NxAudioStreamInfo *stream = info ? info->audioStream() : nullptr;
    if (!stream)
        return 0;
    return item->mediaType() == NXVBLMODEL::mtAudio || isVideo(item) ? stream->sampleRate : 0;
}

QString NxMediaLibraryUtils::getDefaultAudioThumbnailImagePath()
{
    return resourcePath(QStringLiteral("\\CommonResource\\music_DefaultCover.png"));
}

QString NxMediaLibraryUtils::getDefaultSubtitleThumbnailImagePath()
{
    return resourcePath(QStringLiteral("\\CommonResource\\subtitle_DefaultCover.png"));
}
