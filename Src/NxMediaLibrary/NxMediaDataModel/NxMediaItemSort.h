// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <QList>

class INxAbstractMedia;

/// Orders lists of media for a view. GUI thread only; no state, no ownership.
///
/// Every DoSortBy function drops null entries and media without a type, puts folders first and
/// everything else after them, whatever the direction. Folders keep their order but when sorted by
/// name. Media that are equal in what is compared keep their order in both directions. A media
/// that is no media item counts as one of which nothing is known. Every fact is read once a media,
/// and no fact costs a look at the disk.
class NXMEDIALIBRARY_EXPORT NxMediaItemSort
{
public:
    using Order = NXMEDIALIBRARY::NxMediaItemViewSortOrder;

    /// Fills out, which may be the very list that is sorted. Without a key, or with one that is
    /// unknown, out is an exact copy, null entries included. Every order but 0 is descending.
    static void Sort(const QList<INxAbstractMedia *> &items,
                     const NXMEDIALIBRARY::NxMediaItemViewSort &sort,
                     QList<INxAbstractMedia *> &out);

    /// In the natural order of names, folders included; see NxNaturalOrder.
    static void DoSortByName(QList<INxAbstractMedia *> &items, Order order);
    /// Milliseconds, as items are grouped by.
    static void DoSortByDuration(QList<INxAbstractMedia *> &items, Order order);
    /// Unknown dates are before all others here and in the other sorts by date.
    static void DoSortByDateCreated(QList<INxAbstractMedia *> &items, Order order);
    /// How often timelines use the item.
    static void DoSortByUsed(QList<INxAbstractMedia *> &items, Order order);
    /// Frames a second; unknown ones count 0.
    static void DoSortByFrameRate(QList<INxAbstractMedia *> &items, Order order);
    /// Frames.
    static void DoSortByInPoint(QList<INxAbstractMedia *> &items, Order order);
    /// Frames.
    static void DoSortByOutPoint(QList<INxAbstractMedia *> &items, Order order);
    /// Ascending begins with the favourites.
    static void DoSortByFavourite(QList<INxAbstractMedia *> &items, Order order);
    static void DoSortByFavouriteTime(QList<INxAbstractMedia *> &items, Order order);
    static void DoSortByDownloadTime(QList<INxAbstractMedia *> &items, Order order);
    /// Width, then height; what has no picture is before all others.
    static void DoSortByResolution(QList<INxAbstractMedia *> &items, Order order);
    /// The text about the sound, in natural order.
    static void DoSortByAudioInfo(QList<INxAbstractMedia *> &items, Order order);
    /// Video, photo, audio, anything else, subtitle.
    static void DoSortByType(QList<INxAbstractMedia *> &items, Order order);
    /// Ascending begins with what the service flags as new, then goes from what was changed last
    /// to what was changed long ago or nobody knows when.
    static void DoSortByNew(QList<INxAbstractMedia *> &items, Order order);
    /// The category's text, in natural order.
    static void DoSortByCategory(QList<INxAbstractMedia *> &items, Order order);
    /// The service's own order.
    static void DoSortByListorder(QList<INxAbstractMedia *> &items, Order order);
    static void DoSortBySale(QList<INxAbstractMedia *> &items, Order order);
};
