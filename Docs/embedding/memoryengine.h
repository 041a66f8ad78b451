// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/INxMediaItemEventObserver.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/INxMediaLibrary.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/NxObserverList.h>

/// A media that is a path and no more. Belongs to its maker until a folder lists it.
struct MemoryMedia final : INxAbstractMediaItem
{
    explicit MemoryMedia(const QString &file) : path(file) {}
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideoAudio; }
    QString name() const override { return path.section(QLatin1Char('/'), -1); }
    QString mediaId() const override { return path; }
    QString sourcePath() const override { return path; }
    INxFolderMedia *parentFolder() const override { return folder; }
    const QString path;
    INxFolderMedia *folder = nullptr;
};

/// Owns the media that it lists and, as QObject children, the folders in it.
struct MemoryFolder final : INxFolderMedia
{
    MemoryFolder(int no, const QString &text, QObject *in) : id(no), title(text) { setParent(in); }
    ~MemoryFolder() override { qDeleteAll(media); }
    int folderId() const override { return id; }
    QString name() const override { return title; }
    INxFolderMedia *parentFolder() const override { return static_cast<MemoryFolder *>(parent()); }
    QList<INxFolderMedia *> childFolders() const override
    {
        return findChildren<INxFolderMedia *>(QString(), Qt::FindDirectChildrenOnly);
    }
    QList<INxAbstractMedia *> items(bool recursive, bool mediaOnly) const override
    {
        QList<INxAbstractMedia *> listed = media;
        for (INxFolderMedia *child : childFolders()) {
            if (!mediaOnly)
                listed.append(child);
            if (recursive)
                listed.append(child->items(true, mediaOnly));
        }
        return listed;
    }
    const int id;
    const QString title;
    QList<INxAbstractMedia *> media;
};

/// Tells its observers of each media that comes or goes, before and after.
struct MemoryItems final : INxMediaItemManager
{
    using Observer = INxMediaItemEventObserver;
    bool registerObserver(Observer *observer) override { return observers.add(observer); }
    void unregisterObserver(Observer *observer) override { observers.remove(observer); }
    using INxMediaItemManager::addMediaItems;
    bool addMediaItems(INxFolderMedia *folder, const QList<INxAbstractMedia *> &items) override
    {
        for (INxAbstractMedia *item : items) {
            observers.tell([=](Observer *o) { o->onBeforeAddItemEvent(folder, item); });
            static_cast<MemoryFolder *>(folder)->media.append(item);
            static_cast<MemoryMedia *>(item)->folder = folder;
            observers.tell([=](Observer *o) { o->onAfterAddItemEvent(folder, item); });
        }
        return true;
    }
    bool removeMediaItems(INxFolderMedia *folder, const QList<INxAbstractMedia *> &items) override
    {
        for (INxAbstractMedia *item : items) {
            observers.tell([=](Observer *o) { o->onBeforeRemoveItemEvent(folder, item); });
            static_cast<MemoryFolder *>(folder)->media.removeOne(item);
            observers.tell([=](Observer *o) { o->onAfterRemoveItemEvent(folder, item); });
            delete item;
        }
        return true;
    }
    NxObserverList<Observer> observers;
};

/// All the rest: an engine with one project, whose library has one category.
struct MemoryEngine final : INxMediaEngine,
                            INxProject,
                            INxMediaLibrary,
                            INxMediaManager,
                            INxFolderMediaManager
{
    using Category = NXVBLMODEL::NxMediaCategoryType;
    INxProject *currentProject() override { return this; }
    INxMediaLibrary *mediaLibrary() override { return this; }
    INxMediaManager *mediaManager(Category c) override { return c ? nullptr : this; }
    Category categoryType() const override { return NXVBLMODEL::mctMedia; }
    INxFolderMediaManager *folderManager() override { return this; }
    INxMediaItemManager *itemManager() override { return &items; }
    INxFolderMedia *rootFolder() override { return &root; }
    INxFolderMedia *folder(int id) override { return id == section.id ? &section : nullptr; }
    MemoryItems items;
    MemoryFolder root{NXVBLMODEL::fidHiddenRoot, QString(), nullptr};
    MemoryFolder section{NXVBLMODEL::fidRoot, QStringLiteral("Media"), &root};
};
