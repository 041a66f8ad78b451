// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxRational.h>

class INxAbstractMedia;
class INxAbstractMediaItem;

/// The rough kinds that items are grouped and sorted by, in the order in which they are shown.
enum class NxMediaTypeClass { Video, Photo, Audio, Other, Subtitle };
constexpr int MediaTypeClassCount = 5;

/// What the sort and the group engine read of an item in the same way. Null is accepted
/// everywhere.
namespace NxMediaItemFacts {

/// Null for what is no media item, such as a folder.
[[nodiscard]] const INxAbstractMediaItem *itemOf(const INxAbstractMedia *media);
[[nodiscard]] NxMediaTypeClass typeClass(const INxAbstractMedia *media);
/// Of the media information, or of the item when there is none.
[[nodiscard]] NxRational frameRate(const INxAbstractMediaItem *item);
/// Milliseconds; 0 for what has no length and for what is no media item.
[[nodiscard]] qint64 durationMsec(const INxAbstractMedia *media);

} // namespace NxMediaItemFacts
