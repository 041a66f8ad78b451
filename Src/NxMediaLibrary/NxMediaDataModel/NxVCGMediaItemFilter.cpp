// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxVCGMediaItemFilter.h>

#include "NxKeywordMatcher_p.h"

#include <NxVBLModel/INxVCGClassifyMediaItem.h>

namespace {

/// The NxMediaTypeFilter that shows what the provider calls so.
int typeFilterOf(NXVBLMODEL::VCGMediaType mediaType)
{
    switch (mediaType) {
    case NXVBLMODEL::vmtImage:
        return NXMEDIALIBRARY::mtfPhoto;
    case NXVBLMODEL::vmtAudio:
        return NXMEDIALIBRARY::mtfAudio;
    case NXVBLMODEL::vmtVideo:
        return NXMEDIALIBRARY::mtfVideo;
    default:
        return NXMEDIALIBRARY::mtfAll;
    }
}

const INxVCGClassifyMediaItem *asClassification(const INxAbstractMedia *media)
{
    if (media->subKind() != NXVBLMODEL::mskStockClassification)
        return nullptr;
    return dynamic_cast<const INxVCGClassifyMediaItem *>(media);
}

} // namespace

bool NxVCGMediaItemFilter::accepts(const INxAbstractMedia *media,
                                   const NXMEDIALIBRARY::NxMediaItemViewFilter &filter,
                                   const NxKeywordMatcher &keyword) const
{
    if (const INxVCGClassifyMediaItem *entry = asClassification(media))
        return filter.classifyId == 0 || entry->classifyId() == filter.classifyId;
    return passesType(media, typeFilterOf(filter.mediaType))
           && (keyword.isEmpty() || keyword.isIn(media->name()));
}
