// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxMediaItemEventObserver.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/NxObserverList.h>

#include <QStringList>

#include <functional>
#include <utility>

#include "ScriptedItemFolder.h"
#include "ScriptedMedia.h"

/// Changes scripted folders and items, and tells its observers of each change as an engine does.
struct ScriptedItemManager final : INxMediaItemManager
{
    bool registerObserver(INxMediaItemEventObserver *observer) override
    {
        return observers.add(observer);
    }
    void unregisterObserver(INxMediaItemEventObserver *observer) override
    {
        observers.remove(observer);
    }
    NXVBLMODEL::NxMediaCategoryType categoryType() const override { return category; }
    INxFolderMedia *currentRoot() const override { return root; }
    INxMediaManager *mediaManager() const override { return owner; }

    bool addMediaItems(const QList<INxAbstractMedia *> &added) override
    {
        note(QStringLiteral("add %1").arg(namesOf(added)));
        return !refuses;
    }
    bool addMediaItems(INxFolderMedia *folder, const QList<INxAbstractMedia *> &added) override
    {
        note(QStringLiteral("add %1 to %2").arg(namesOf(added), nameOf(folder)));
        auto *into = static_cast<ScriptedItemFolder *>(folder);
        for (INxAbstractMedia *item : added) {
            if (!refuses)
                insert(into, into->media.size(), static_cast<ScriptedItem *>(item));
        }
        return !refuses;
    }
    bool removeMediaItems(INxFolderMedia *folder, const QList<INxAbstractMedia *> &gone) override
    {
        note(QStringLiteral("remove %1 from %2").arg(namesOf(gone), nameOf(folder)));
        for (INxAbstractMedia *item : gone) {
            if (!refuses)
                take(static_cast<ScriptedItem *>(item));
        }
        return !refuses;
    }
    bool renameMediaItem(INxAbstractMedia *item, const QString &name) override
    {
        note(QStringLiteral("rename %1 to %2").arg(nameOf(item), name));
        if (!refuses)
            rename(static_cast<ScriptedItem *>(item), name);
        return !refuses;
    }
    void refresh(INxFolderMedia *folder) override
    {
        note(QStringLiteral("refresh %1").arg(nameOf(folder)));
    }
    void resetResourceLoader(INxFolderMedia *folder) override
    {
        note(QStringLiteral("reset loader of %1").arg(nameOf(folder)));
    }

    /// Lists the item in the folder, which becomes its home, before the one that has that place.
    void insert(ScriptedItemFolder *folder, int place, ScriptedItem *item)
    {
        observers.tell([&](auto *observer) { observer->onBeforeAddItemEvent(folder, item); });
        passTime();
        folder->media.insert(place, item);
        item->home = folder;
        observers.tell([&](auto *observer) { observer->onAfterAddItemEvent(folder, item); });
    }
    /// Takes the item out of its home.
    void take(ScriptedItem *item)
    {
        auto *folder = static_cast<ScriptedItemFolder *>(item->home);
        observers.tell([&](auto *observer) { observer->onBeforeRemoveItemEvent(folder, item); });
        folder->media.removeAll(item);
        item->home = nullptr;
        observers.tell([&](auto *observer) { observer->onAfterRemoveItemEvent(folder, item); });
    }
    void move(ScriptedItem *item, ScriptedItemFolder *to, int place)
    {
        INxFolderMedia *from = item->home;
        observers.tell([&](auto *observer) { observer->onBeforeMoveItemEvent(from, to, item); });
        take(item);
        insert(to, qMin(place, to->media.size()), item);
        observers.tell([&](auto *observer) { observer->onAfterMoveItemEvent(from, to, item); });
    }
    /// A move that nobody hears of as a removal and an addition.
    void moveQuietly(ScriptedItem *item, ScriptedItemFolder *to, int place)
    {
        auto *from = static_cast<ScriptedItemFolder *>(item->home);
        observers.tell([&](auto *observer) { observer->onBeforeMoveItemEvent(from, to, item); });
        from->media.removeAll(item);
        to->media.insert(qMin(place, to->media.size()), item);
        item->home = to;
        observers.tell([&](auto *observer) { observer->onAfterMoveItemEvent(from, to, item); });
    }
    /// Lists the item in a folder that is not its home; `change` happens just before.
    void insertGuest(ScriptedItemFolder *folder, int place, ScriptedItem *item,
                     const std::function<void()> &change)
    {
        observers.tell([&](auto *observer) { observer->onBeforeAddItemEvent(folder, item); });
        change();
        folder->media.insert(place, item);
        observers.tell([&](auto *observer) { observer->onAfterAddItemEvent(folder, item); });
        announce(item);
    }
    void takeGuest(ScriptedItemFolder *folder, ScriptedItem *item,
                   const std::function<void()> &change)
    {
        observers.tell([&](auto *observer) { observer->onBeforeRemoveItemEvent(folder, item); });
        change();
        folder->media.removeAll(item);
        observers.tell([&](auto *observer) { observer->onAfterRemoveItemEvent(folder, item); });
        announce(item);
    }
    void rename(ScriptedItem *item, const QString &name)
    {
        item->title = name;
        observers.tell([&](auto *observer) { observer->onRenameItemEvent(item->home, item); });
    }
    void announce(ScriptedItem *item)
    {
        observers.tell([&](auto *observer) { observer->onMediaStateChangedEvent(item); });
    }
    /// Empties the folder itself; the items of the folders below are taken out before.
    void clear(ScriptedItemFolder *folder, const std::function<void()> &change)
    {
        observers.tell([&](auto *observer) { observer->onBeforeClearItemsEvent(folder); });
        passTime();
        change();
        observers.tell([&](auto *observer) { observer->onAfterClearItemsEvent(folder); });
    }

    void passTime()
    {
        if (meanwhile)
            std::exchange(meanwhile, nullptr)();
    }

    void note(const QString &call) const
    {
        if (calls)
            calls->append(call);
    }
    static QString nameOf(const INxAbstractMedia *media)
    {
        return media ? media->name() : QStringLiteral("null");
    }
    static QString namesOf(const QList<INxAbstractMedia *> &medias)
    {
        QStringList names;
        for (const INxAbstractMedia *media : medias)
            names.append(nameOf(media));
        return names.join(QLatin1Char(' '));
    }

    NxObserverList<INxMediaItemEventObserver> observers;
    NXVBLMODEL::NxMediaCategoryType category = NXVBLMODEL::mctMedia;
    INxFolderMedia *root = nullptr; ///< What is listed at the moment. Not owned.
    INxMediaManager *owner = nullptr; // Not owned.
    bool refuses = false; ///< Whether what is asked for is refused.
    QStringList *calls = nullptr; ///< Where it is written down what is asked for. Not owned.
    /// What happens next between a "before" and its "after"; once.
    std::function<void()> meanwhile;
};
