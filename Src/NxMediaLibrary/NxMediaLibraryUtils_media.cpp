// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryUtils.h>

#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/INxMediaPart.h>
#include <NxVBLModel/INxSecondaryMedia.h>

#include <algorithm>

namespace {

const INxAbstractMediaItem *asItem(const INxAbstractMedia *media)
{
    return dynamic_cast<const INxAbstractMediaItem *>(media);
}

const INxMediaInfo *infoOf(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = asItem(media);
    return item ? item->mediaInfo() : nullptr;
}

bool reportsStream(const INxMediaInfo *info, NXVBLMODEL::NxStreamFlag stream)
{
    return info && (info->streamFlags() & stream) != 0;
}

bool hasPart(const INxAbstractMediaItem *item, NXVBLMODEL::NxMediaPartKind kind)
{
    const QList<INxMediaPart *> parts = item->parts();
    return std::any_of(parts.begin(), parts.end(),
                       [kind](const INxMediaPart *part) { return part && part->isPart(kind); });
}

bool isResourceVideo(const INxAbstractMediaItem *item)
{
    switch (item->mediaType()) {
    case NXVBLMODEL::mtVideo:
    case NXVBLMODEL::mtVideoAudio:
        return true;
    case NXVBLMODEL::mtElement:
        return hasPart(item, NXVBLMODEL::mpkVideo);
    default:
        return false;
    }
}

/// What an element says of itself goes before what its parts are.
bool isPhotoElement(const INxAbstractMediaItem *item)
{
    if (item->kindCode() == NXVBLMODEL::mkcStillImage
        || item->subKind() == NXVBLMODEL::mskPictureElement)
        return true;
    if (const auto *secondary = dynamic_cast<const INxSecondaryMedia *>(item))
        return secondary->secondaryKind() == NXVBLMODEL::skPhoto;
    return hasPart(item, NXVBLMODEL::mpkImage);
}

bool isResourcePhoto(const INxAbstractMediaItem *item)
{
    const NXVBLMODEL::NxMediaType type = item->mediaType();
    if (type == NXVBLMODEL::mtImage)
        return true;
    return type == NXVBLMODEL::mtElement && isPhotoElement(item);
}

} // namespace

bool NxMediaLibraryUtils::isVideo(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = asItem(media);
    if (!item)
        return false;
    if (item->isResource())
        return isResourceVideo(item);
    return isGif(item) || reportsStream(item->mediaInfo(), NXVBLMODEL::sfVideo);
}

bool NxMediaLibraryUtils::isPhoto(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = asItem(media);
    if (!item)
        return false;
    if (item->isResource())
        return isResourcePhoto(item);
    return reportsStream(item->mediaInfo(), NXVBLMODEL::sfImage);
}

bool NxMediaLibraryUtils::isAudio(const INxAbstractMedia *media)
{
    if (!media)
        return false;
    if (media->mediaType() == NXVBLMODEL::mtAudio)
        return true;
    const INxMediaInfo *info = infoOf(media);
    return info && info->kind() == NXVBLMODEL::mikAudio;
}

bool NxMediaLibraryUtils::isGif(const INxAbstractMedia *media)
{
    if (!media || media->mediaType() != NXVBLMODEL::mtElement)
        return false;
    const int subKind = media->subKind();
    return subKind == NXVBLMODEL::mskGif || subKind == NXVBLMODEL::mskStockGif;
}

bool NxMediaLibraryUtils::isSubtitle(const INxAbstractMedia *media)
{
    if (!media)
        return false;
    if (const INxMediaInfo *info = infoOf(media))
        return info->kind() == NXVBLMODEL::mikSubtitle;
    return media->mediaType() == NXVBLMODEL::mtSubtitle;
}

bool NxMediaLibraryUtils::isProjectTemplate(const INxAbstractMedia *media)
{
    return media && media->mediaType() == NXVBLMODEL::mtProjectTemplate;
}

bool NxMediaLibraryUtils::isResourceMediaImage(const INxAbstractMedia *media)
{
    return media && media->isResource() && isPhoto(media);
}

bool NxMediaLibraryUtils::isResourceMediaVideo(const INxAbstractMedia *media)
{
    return media && media->isResource() && isVideo(media);
}

bool NxMediaLibraryUtils::isSourceMediaVideo(const INxAbstractMedia *media)
{
    return media && media->isSourceMedia() && isVideo(media);
}

bool NxMediaLibraryUtils::isUsed(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = asItem(media);
    return item && item->usedCount() > 0;
}

bool NxMediaLibraryUtils::hasAudio(const INxAbstractMedia *media)
{
    return reportsStream(infoOf(media), NXVBLMODEL::sfAudio);
}

bool NxMediaLibraryUtils::hasVideo(const INxAbstractMedia *media)
{
    return reportsStream(infoOf(media), NXVBLMODEL::sfVideo);
}

bool NxMediaLibraryUtils::hasImage(const INxAbstractMedia *media)
{
    return reportsStream(infoOf(media), NXVBLMODEL::sfImage);
}
