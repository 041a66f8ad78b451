// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <QList>
#include <QString>

class INxAbstractMedia;

/// Distributes media over the groups of a view. GUI thread only; no state.
///
/// Groups are made with INxGroupMedia::createGroup(), and the caller gives them back with
/// INxGroupMedia::releaseGroup(). Members stand in the order of the input; null entries are left
/// out. What a function is given to fill is replaced, not appended to, and nothing that stood in
/// it is released.
///
/// A group's key does not depend on the language; getGroupTitle() makes its title anew.
class NXMEDIALIBRARY_EXPORT NxMediaItemGroup
{
public:
    using Order = NXMEDIALIBRARY::NxMediaItemViewSortOrder;

    /// Fills out with the groups as they are shown; with none when the key is none or unknown.
    /// Every order but 0 is descending.
    static void Group(const QList<INxAbstractMedia *> &items,
                      const NXMEDIALIBRARY::NxMediaItemViewGroup &group,
                      QList<INxAbstractMedia *> &out);

    /// Video, photo, audio, other, subtitle: always all five, empty ones included.
    static void DoGroupByType(const QList<INxAbstractMedia *> &items, Order order,
                              QList<INxAbstractMedia *> &out);
    /// One group a local day, the oldest first; without a date last, in both directions.
    static void DoGroupByDateCreated(const QList<INxAbstractMedia *> &items, Order order,
                                     QList<INxAbstractMedia *> &out);
    /// Below 1, 5, 30 and 60 minutes and all else: always all five, empty ones included. What has
    /// no length counts 0.
    static void DoGroupByDuration(const QList<INxAbstractMedia *> &items, Order order,
                                  QList<INxAbstractMedia *> &out);
    /// One group a camera, in the natural order of names; without a camera last, in both
    /// directions.
    static void DoGroupByCameraName(const QList<INxAbstractMedia *> &items, Order order,
                                    QList<INxAbstractMedia *> &out);
    /// As by camera.
    static void DoGroupByCategory(const QList<INxAbstractMedia *> &items, Order order,
                                  QList<INxAbstractMedia *> &out);

    /// Takes over groups that were made from further media by the same choice: the members of each
    /// go to the group of the same key, or the group itself to its place among the others. New
    /// groups that are not needed are released, empty ones included.
    static void MergeOrAddGroup(QList<INxAbstractMedia *> &groups,
                                const QList<INxAbstractMedia *> &newGroups,
                                const NXMEDIALIBRARY::NxMediaItemViewGroup &group);

    /// The title in the user's language of a group title in English. A text that is no such title
    /// is answered as it is.
    [[nodiscard]] static QString getGroupByTranslateText(const QString &text);
    /// The title in the user's language of a group with that key.
    [[nodiscard]] static QString getGroupTitle(const QString &key);
};
