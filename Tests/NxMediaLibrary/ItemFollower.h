// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <QTest>

#include "ItemStand.h"

/// Rows, and behind each header what the group lists.
inline QString fullText(const NMediaItemData &data)
{
    QStringList texts;
    for (INxAbstractMedia *media : data.getItems()) {
        texts.append(rowText(media));
        if (const auto *group = dynamic_cast<INxGroupMedia *>(media))
            texts.append(QStringLiteral("{%1 of %2}")
                             .arg(group->itemCount())
                             .arg(rowsText(group->members())));
    }
    return texts.join(QLatin1Char(' '));
}

/// A record that shows a stand's folder by name. Whether changes are told is the global data
/// "areChangesTold" of the test.
struct ItemFollower
{
    explicit ItemFollower(int sectionKind, const char *words,
                          const NXMEDIALIBRARY::NxMediaItemViewGroup &group = {})
        : stand(sectionKind)
    {
        if (*words)
            stand.list(words);
        QFETCH_GLOBAL(bool, areChangesTold);
        data.setChangesTold(areChangesTold);
        data.setSortEnable(true);
        data.load(stand.folder);
        data.setSortBy({NXMEDIALIBRARY::sbName, NXMEDIALIBRARY::soASC});
        data.setGroupBy(group);
    }
    /// As the engine adds: the record hears of it first.
    void add(const char *word, int place = 1000, ScriptedItemFolder *into = nullptr)
    {
        addItem(stand.make(QLatin1String(word)), place, into);
    }
    void addItem(ScriptedItem *item, int place = 1000, ScriptedItemFolder *into = nullptr)
    {
        ScriptedItemFolder *home = into ? into : stand.folder;
        data.append(item, home);
        home->media.insert(qMin(place, home->media.size()), item);
        data.appended(item);
    }
    void remove(const char *name)
    {
        ScriptedItem *item = stand.item(name);
        data.remove(item);
        stand.folder->media.removeAll(item);
    }
    QString text() const { return rowsText(data.getItems()); }
    /// What a record shows that begins now.
    QString freshText() const
    {
        NMediaItemData fresh(NXVBLMODEL::mctMedia);
        fresh.setSortEnable(data.isSortEnable());
        fresh.load(stand.folder);
        fresh.setSortBy(data.getSortBy());
        fresh.setGroupBy(data.getGroupBy());
        fresh.setFilter(data.getFilter());
        return fullText(fresh);
    }

    ItemStand stand;
    NMediaItemData data{NXVBLMODEL::mctMedia};
};
