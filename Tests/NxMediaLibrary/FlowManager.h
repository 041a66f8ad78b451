// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxMediaItemEventObserver.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/NxObserverList.h>

#include <QHash>
#include <QSet>
#include <QStringList>

#include <functional>

#include "ScriptedItemFolder.h"
#include "UtilsMedia.h"

/// A media with an identity, made from a file.
template<typename Base>
struct FlowItemOf final : UtilsItemOf<Base>
{
    explicit FlowItemOf(const QString &called, int mediaType = NXVBLMODEL::mtVideoAudio)
        : UtilsItemOf<Base>(mediaType)
    {
        this->shownName = called;
        this->file = QStringLiteral("/footage/") + called;
        this->info = &facts;
    }
    QString mediaId() const override { return QLatin1String("id-") + this->shownName; }
    QString sourcePath() const override { return this->file; }
    bool hasDuration() const override { return lasts; }

    UtilsInfo facts{NXVBLMODEL::mikVideo};
    bool lasts = true;
};

using FlowItem = FlowItemOf<INxAbstractMediaItem>;
using FlowStockItem = FlowItemOf<INxVCGMediaItem>;

inline QString namesOf(const QList<INxAbstractMedia *> &medias)
{
    QStringList names;
    for (const INxAbstractMedia *media : medias)
        names.append(media ? media->name() : QStringLiteral("null"));
    return names.join(QLatin1Char(' '));
}

/// Notes down what is asked of it, and tells its observers as an engine does.
struct FlowManager final : INxMediaItemManager
{
    explicit FlowManager(QStringList *notes) : journal(notes) {}

    NXVBLMODEL::NxMediaCategoryType categoryType() const override { return NXVBLMODEL::mctMedia; }
    bool registerObserver(INxMediaItemEventObserver *observer) override
    {
        return observers.add(observer);
    }
    void unregisterObserver(INxMediaItemEventObserver *observer) override
    {
        observers.remove(observer);
    }
    bool removeMediaItems(INxFolderMedia *folder, const QList<INxAbstractMedia *> &items) override
    {
        journal->append(
            QStringLiteral("%1 is emptied of %2")
                .arg(folder ? folder->name() : QStringLiteral("nothing"), namesOf(items)));
        for (INxAbstractMedia *item : items)
            take(item);
        return !items.isEmpty();
    }
    bool relinkMedia(INxAbstractMedia *item, const QString &path) override
    {
        const bool isRefused = refused.contains(path);
        journal->append(QStringLiteral("%1 %2 %3")
                            .arg(item->name(),
                                 isRefused ? QStringLiteral("keeps off") : QStringLiteral("takes"),
                                 path));
        if (!isRefused)
            static_cast<FlowItem *>(item)->file = path;
        return !isRefused;
    }
    qint64 readDuration(const QString &path) const override
    {
        if (whileReading)
            whileReading();
        return lengths.value(path, -1);
    }

    /// Takes a media out of its folder, whoever wants it.
    void take(INxAbstractMedia *item)
    {
        auto *folder = static_cast<ScriptedItemFolder *>(item->parentFolder());
        observers.tell([&](auto *observer) { observer->onBeforeRemoveItemEvent(folder, item); });
        if (folder)
            folder->media.removeAll(item);
        observers.tell([&](auto *observer) { observer->onAfterRemoveItemEvent(folder, item); });
    }

    QStringList *const journal; // Not owned.
    NxObserverList<INxMediaItemEventObserver> observers;
    QSet<QString> refused; ///< Files that no media is given.
    QHash<QString, qint64> lengths; ///< Of files that can be read.
    std::function<void()> whileReading;
};
