// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <QList>

class INxAbstractMedia;
class INxFolderMedia;
class INxGroupMedia;

/// Narrows media to those that a view shows.
///
/// A filter reads its settings anew at each run, so whoever changes them need not tell it. It owns
/// neither settings nor media, touches no disk, and keeps the order of what it is given. Copies
/// read the same settings. GUI thread only.
class NXMEDIALIBRARY_EXPORT INxMediaItemFilter
{
public:
    INxMediaItemFilter() = default;
    virtual ~INxMediaItemFilter();
    INxMediaItemFilter(const INxMediaItemFilter &) = default;
    INxMediaItemFilter &operator=(const INxMediaItemFilter &) = default;

    /// Remembers the address of the settings: they must outlive the filter.
    virtual void SetFilterParam(const NXMEDIALIBRARY::NxMediaItemViewFilter &filter) = 0;

    /// Appends what passes to `out`, which is never cleared and may be `items` itself.
    virtual void Filter(const QList<INxAbstractMedia *> &items,
                        QList<INxAbstractMedia *> &out) const = 0;
    /// The same for all media of a folder and of the folders below; nothing for null.
    virtual void Filter(const INxFolderMedia *folder, QList<INxAbstractMedia *> &out) const = 0;
    /// The same for the members of a group; nothing for null.
    virtual void Filter(const INxGroupMedia *group, QList<INxAbstractMedia *> &out) const = 0;
};
