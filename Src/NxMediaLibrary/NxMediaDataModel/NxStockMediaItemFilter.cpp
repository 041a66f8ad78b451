// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxStockMediaItemFilter.h>

#include "NxKeywordMatcher_p.h"

#include <NxVBLModel/INxStockMediaItem.h>

namespace {

/// px; 0 where every width will do.
int leastWidth(int resolution)
{
    switch (resolution) {
    case NXMEDIALIBRARY::nsrFullHd:
        return 1920;
    case NXMEDIALIBRARY::nsrUltraHd:
        return 3840;
    default:
        return 0;
    }
}

bool isWideEnough(const INxStockMediaItem *item, int resolution)
{
    const NXVBLMODEL::NxMediaType type = item->mediaType();
    if (type != NXVBLMODEL::mtVideo && type != NXVBLMODEL::mtVideoAudio)
        return true;
    const QSize size = item->frameSize();
    return !size.isValid() || size.width() >= leastWidth(resolution);
}

QString textOf(const INxAbstractMedia *media, const INxStockMediaItem *stock)
{
    if (!stock)
        return media->name();
    const QString title = stock->title();
    return title.isEmpty() ? stock->tags() : title;
}

} // namespace

bool NxStockMediaItemFilter::accepts(const INxAbstractMedia *media,
                                     const NXMEDIALIBRARY::NxMediaItemViewFilter &filter,
                                     const NxKeywordMatcher &keyword) const
{
    if (media->subKind() == NXVBLMODEL::mskStockClassification)
        return false;
    if (!passesType(media, filter.type))
        return false;
    const auto *stock = dynamic_cast<const INxStockMediaItem *>(media);
    if (stock && !isWideEnough(stock, filter.resolution))
        return false;
    return keyword.isEmpty() || keyword.isIn(textOf(media, stock));
}
