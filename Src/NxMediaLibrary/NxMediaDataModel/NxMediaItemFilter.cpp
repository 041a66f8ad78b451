// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemFilter.h>

#include "NxKeywordMatcher_p.h"
#include "NxMediaAhead_p.h"

#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <iterator>

namespace {

using Test = bool (*)(const INxAbstractMedia *);

bool isAnything(const INxAbstractMedia *)
{
    return true;
}

/// What holds both moving and still pictures is a photo.
bool isVideoAlone(const INxAbstractMedia *media)
{
    return NxMediaLibraryUtils::isVideo(media) && !NxMediaLibraryUtils::isPhoto(media);
}

template<NXVBLMODEL::NxMediaType Type>
bool hasType(const INxAbstractMedia *media)
{
    return media->mediaType() == Type;
}

template<NXVBLMODEL::NxLicenceState State>
bool hasState(const INxAbstractMedia *media)
{
    return media->state() == State;
}

bool isFree(const INxAbstractMedia *media)
{
    const int state = media->state();
    return state == NXVBLMODEL::lsNone || state == NXVBLMODEL::lsFree;
}

bool isPaid(const INxAbstractMedia *media)
{
    return media->state() != NXVBLMODEL::lsFree;
}

/// By NxMediaTypeFilter.
constexpr Test TypeTests[] = {
    &isAnything,
    &isVideoAlone,
    &NxMediaLibraryUtils::isPhoto,
    &hasType<NXVBLMODEL::mtAudio>,
    &hasType<NXVBLMODEL::mtSubtitle>,
    &hasState<NXVBLMODEL::lsPremium>,
    &hasState<NXVBLMODEL::lsStandard>,
    &isFree,
    &isPaid,
};

/// False for the rows that the model itself makes.
bool isReal(const INxAbstractMedia *media)
{
    if (!media)
        return false;
    const NXVBLMODEL::NxMediaType type = media->mediaType();
    return type != NXVBLMODEL::mtGroup && type != NXVBLMODEL::mtImportTile
           && type != NXVBLMODEL::mtViewMoreTile;
}

} // namespace

void NxMediaItemFilter::SetFilterParam(const NXMEDIALIBRARY::NxMediaItemViewFilter &filter)
{
    m_filter = &filter;
}

void NxMediaItemFilter::Filter(const QList<INxAbstractMedia *> &items,
                               QList<INxAbstractMedia *> &out) const
{
    const QList<INxAbstractMedia *> input = items; // `out` may be the same list.
    const NXMEDIALIBRARY::NxMediaItemViewFilter filter =
        m_filter ? *m_filter : NXMEDIALIBRARY::NxMediaItemViewFilter();
    const NxKeywordMatcher keyword(filter.keyword);
    for (int i = 0; i < input.size(); ++i) {
        nxFetchMediaAhead(input, i);
        INxAbstractMedia *media = input.at(i);
        if (isReal(media) && accepts(media, filter, keyword))
            out.append(media);
    }
}

void NxMediaItemFilter::Filter(const INxFolderMedia *folder, QList<INxAbstractMedia *> &out) const
{
    if (folder)
        Filter(folder->items(true, true), out);
}

void NxMediaItemFilter::Filter(const INxGroupMedia *group, QList<INxAbstractMedia *> &out) const
{
    if (group)
        Filter(group->members(), out);
}

bool NxMediaItemFilter::accepts(const INxAbstractMedia *media,
                                const NXMEDIALIBRARY::NxMediaItemViewFilter &filter,
                                const NxKeywordMatcher &keyword) const
{
    return passesType(media, filter.type) && (keyword.isEmpty() || keyword.isIn(media->name()));
}

bool NxMediaItemFilter::passesType(const INxAbstractMedia *media, int typeFilter)
{
    if (typeFilter < 0 || typeFilter >= int(std::size(TypeTests)))
        return true;
    return media->mediaType() == NXVBLMODEL::mtProjectTemplate || TypeTests[typeFilter](media);
}
