// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxMediaItemFacts_p.h"

#include <NxCore/NxConvertUtility.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxMediaInfo.h>

const INxAbstractMediaItem *NxMediaItemFacts::itemOf(const INxAbstractMedia *media)
{
    return dynamic_cast<const INxAbstractMediaItem *>(media);
}

NxMediaTypeClass NxMediaItemFacts::typeClass(const INxAbstractMedia *media)
{
    if (!media)
        return NxMediaTypeClass::Other;
    if (NxMediaLibraryUtils::isVideo(media))
        return NxMediaTypeClass::Video;
    if (NxMediaLibraryUtils::isPhoto(media))
        return NxMediaTypeClass::Photo;
    if (media->mediaType() == NXVBLMODEL::mtAudio)
        return NxMediaTypeClass::Audio;
    return media->mediaType() == NXVBLMODEL::mtSubtitle ? NxMediaTypeClass::Subtitle
                                                        : NxMediaTypeClass::Other;
}

NxRational NxMediaItemFacts::frameRate(const INxAbstractMediaItem *item)
{
    if (!item)
        return {};
    const INxMediaInfo *info = item->mediaInfo();
    return info ? info->frameRate() : item->frameRate();
}

qint64 NxMediaItemFacts::durationMsec(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = itemOf(media);
    if (!item || !item->hasDuration())
        return 0;
    const INxMediaInfo *info = item->mediaInfo();
    const qint64 frames = info ? info->frameCount() : item->frameCount();
    return NxConvertUtility::frame2Msec(frames, frameRate(item).toDouble());
}
