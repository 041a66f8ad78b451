// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxProjectMemory.h>

#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineResource.h>
#include <NxVBLEngine/objects/NxEngineUndoStack.h>
#include <NxVBLEngine/objects/NxTimelineMemory.h>

using namespace NXVBLMODEL;

NxUndoRedoCommander NxProjectMemory::ownStep(const char *function)
{
    return {m_undoStack.get(), QStringLiteral("NxProjectMemory::") + QLatin1String(function),
            QLatin1String(function)};
}

const std::array<NxProjectMemory::HandlerEntry, 18> NxProjectMemory::s_handlers = {{
    {NxChangeKind::FolderAdd, &NxProjectMemory::applyFolderAdd},
    {NxChangeKind::FolderRemove, &NxProjectMemory::applyFolderRemove},
    {NxChangeKind::FolderRename, &NxProjectMemory::applyFolderRename},
    {NxChangeKind::FolderMove, &NxProjectMemory::applyFolderMove},
    {NxChangeKind::MediaAdd, &NxProjectMemory::applyMediaAdd},
    {NxChangeKind::MediaRemove, &NxProjectMemory::applyMediaRemove},
    {NxChangeKind::MediaRename, &NxProjectMemory::applyMediaRename},
    {NxChangeKind::MediaMove, &NxProjectMemory::applyMediaMove},
    {NxChangeKind::MediaFavourite, &NxProjectMemory::applyMediaFavourite},
    {NxChangeKind::MediaRelink, &NxProjectMemory::applyMediaRelink},
    {NxChangeKind::ResourceRename, &NxProjectMemory::applyResourceRename},
    {NxChangeKind::ResourceFavourite, &NxProjectMemory::applyResourceFavourite},
    {NxChangeKind::TimelineAdd, &NxProjectMemory::applyToTimelines},
    {NxChangeKind::TimelineRemove, &NxProjectMemory::applyToTimelines},
    {NxChangeKind::TimelineRename, &NxProjectMemory::applyToTimelines},
    {NxChangeKind::ClipAdd, &NxProjectMemory::applyToTimelines},
    {NxChangeKind::ClipRemove, &NxProjectMemory::applyToTimelines},
    {NxChangeKind::ClipMove, &NxProjectMemory::applyToTimelines},
}};

void NxProjectMemory::perform(const NxChange &change)
{
    if (m_readOnly)
        return;
    const NxUndoRedoCommander scope = ownStep("perform");
    m_undoStack->record(
        change); // First: it drops undone steps while what they hold is theirs alone.
    replay(change);
}

void NxProjectMemory::introduce(const NxChange &change, NxStoreEntry::Any rows)
{
    const NxUndoRedoCommander scope = ownStep("introduce");
    m_undoStack->record(change);
    enqueue(std::move(rows));
    apply(change);
}

void NxProjectMemory::replay(const NxChange &change)
{
    enqueue(NxStoreEntry::Apply{change});
    apply(change);
}

void NxProjectMemory::apply(const NxChange &change)
{
    for (const HandlerEntry &entry : s_handlers) {
        if (entry.what == change.what)
            (this->*entry.apply)(change);
    }
    Q_EMIT applied(change);
}

void NxProjectMemory::applyFolderAdd(const NxChange &change)
{
    NxEngineCategory *owner = category(change.category);
    for (const qint64 id : change.ids) {
        NxFolderRecord record = m_removedFolders.take(int(id));
        record.alive = true;
        NxEngineFolder *parent = owner->folder(record.parent);
        const int row = parent->rowForPlace(record.place);
        owner->folderObservers.tell([parent, row](INxMediaFolderEventObserver *observer) {
            observer->onBeforeAddFolderEvent(parent, row, row);
        });
        owner->insertFolder(record);
        owner->folderObservers.tell(
            [](INxMediaFolderEventObserver *observer) { observer->onAfterAddFolderEvent(); });
    }
}

void NxProjectMemory::applyFolderRemove(const NxChange &change)
{
    NxEngineCategory *owner = category(change.category);
    for (const qint64 id : change.ids) {
        NxEngineFolder *folder = owner->folder(int(id));
        NxEngineFolder *parent = folder->parentEngineFolder();
        NxFolderRecord record = folder->record();
        record.alive = false;
        const int row = folder->rowInParent();
        owner->folderObservers.tell([parent, row](INxMediaFolderEventObserver *observer) {
            observer->onBeforeRemoveFolderEvent(parent, row, row);
        });
        m_deadFolders.push_back(owner->takeFolder(folder));
        m_removedFolders.insert(record.id, record);
        owner->folderObservers.tell(
            [](INxMediaFolderEventObserver *observer) { observer->onAfterRemoveFolderEvent(); });
    }
    scheduleBurial();
}

void NxProjectMemory::applyFolderRename(const NxChange &change)
{
    NxEngineCategory *owner = category(change.category);
    NxEngineFolder *folder = owner->folder(int(change.ids.first()));
    folder->setName(change.after.text);
    owner->folderObservers.tell([folder](INxMediaFolderEventObserver *observer) {
        observer->onFolderStateChangedEvent(folder);
    });
    owner->itemObservers.tell(
        [folder](INxMediaItemEventObserver *observer) { observer->onRenameFolderEvent(folder); });
}

void NxProjectMemory::applyFolderMove(const NxChange &change)
{
    NxEngineCategory *owner = category(change.category);
    NxEngineFolder *folder = owner->folder(int(change.ids.first()));
    NxEngineFolder *from = folder->parentEngineFolder();
    NxEngineFolder *to = owner->folder(change.after.folder);
    auto &observers = owner->folderObservers;
    using Observer = INxMediaFolderEventObserver;

    // Views follow a move as a removal and an addition; the move's own events frame the two.
    observers.tell([](Observer *observer) { observer->onBeforeMoveFolderEvent(); });
    const int oldRow = folder->rowInParent();
    observers.tell([from, oldRow](Observer *observer) {
        observer->onBeforeRemoveFolderEvent(from, oldRow, oldRow);
    });
    from->takeChild(folder);
    observers.tell([](Observer *observer) { observer->onAfterRemoveFolderEvent(); });
    folder->setPlace(change.after.place);
    const int newRow = to->rowForPlace(change.after.place);
    observers.tell(
        [to, newRow](Observer *observer) { observer->onBeforeAddFolderEvent(to, newRow, newRow); });
    to->insertChild(folder);
    observers.tell([](Observer *observer) { observer->onAfterAddFolderEvent(); });
    observers.tell([](Observer *observer) { observer->onAfterMoveFolderEvent(); });

    owner->itemObservers.tell([from](INxMediaItemEventObserver *observer) {
        observer->onAllMediaChangedFinishEvent(from);
    });
    if (from == to)
        return;
    owner->itemObservers.tell(
        [to](INxMediaItemEventObserver *observer) { observer->onAllMediaChangedFinishEvent(to); });
}

void NxProjectMemory::insertMedia(NxEngineMedia *media, NxEngineFolder *folder)
{
    auto &observers = folder->category()->itemObservers;
    observers.tell([folder, media](INxMediaItemEventObserver *observer) {
        observer->onBeforeAddItemEvent(folder, media);
    });
    folder->insertItem(media);
    media->setFolderId(folder->folderId());
    observers.tell([folder, media](INxMediaItemEventObserver *observer) {
        observer->onAfterAddItemEvent(folder, media);
    });
}

void NxProjectMemory::takeMedia(NxEngineMedia *media)
{
    NxEngineFolder *folder = media->folder();
    auto &observers = folder->category()->itemObservers;
    observers.tell([folder, media](INxMediaItemEventObserver *observer) {
        observer->onBeforeRemoveItemEvent(folder, media);
    });
    folder->takeItem(media);
    observers.tell([folder, media](INxMediaItemEventObserver *observer) {
        observer->onAfterRemoveItemEvent(folder, media);
    });
}

void NxProjectMemory::applyMediaAdd(const NxChange &change)
{
    NxEngineCategory *owner = category(change.category);
    for (const qint64 id : change.ids) {
        NxEngineMedia *added = media(id);
        insertMedia(added, owner->folder(added->folderId()));
        indexPath(added);
        ++m_livingMedia;
    }
}

void NxProjectMemory::applyMediaRemove(const NxChange &change)
{
    for (const qint64 id : change.ids) {
        NxEngineMedia *removed = media(id);
        takeMedia(removed);
        unindexPath(removed);
        --m_livingMedia;
    }
}

void NxProjectMemory::applyMediaRename(const NxChange &change)
{
    NxEngineMedia *renamed = media(change.ids.first());
    renamed->setName(change.after.text);
    NxEngineFolder *folder = renamed->folder();
    folder->category()->itemObservers.tell([folder, renamed](INxMediaItemEventObserver *observer) {
        observer->onRenameItemEvent(folder, renamed);
    });
}

void NxProjectMemory::applyMediaMove(const NxChange &change)
{
    NxEngineMedia *moved = media(change.ids.first());
    NxEngineFolder *from = moved->folder();
    NxEngineFolder *to = from->category()->folder(change.after.folder);
    auto &observers = from->category()->itemObservers;
    observers.tell([from, to, moved](INxMediaItemEventObserver *observer) {
        observer->onBeforeMoveItemEvent(from, to, moved);
    });
    takeMedia(moved);
    moved->setPlace(change.after.place);
    insertMedia(moved, to);
    observers.tell([from, to, moved](INxMediaItemEventObserver *observer) {
        observer->onAfterMoveItemEvent(from, to, moved);
    });
}

void NxProjectMemory::announce(NxEngineItem *item)
{
    if (!item->folder())
        return;
    item->folder()->category()->itemObservers.tell(
        [item](INxMediaItemEventObserver *observer) { observer->onMediaStateChangedEvent(item); });
}

void NxProjectMemory::applyMediaFavourite(const NxChange &change)
{
    NxEngineMedia *marked = media(change.ids.first());
    marked->setFavouriteSince(change.after.number);
    announce(marked);
}

void NxProjectMemory::applyMediaRelink(const NxChange &change)
{
    NxEngineMedia *relinked = media(change.ids.first());
    unindexPath(relinked);
    setFootageAside(relinked);
    relinked->setPaths(change.after.text, change.after.secondText);
    indexPath(relinked);
    enqueue(NxStoreEntry::Facts{{storedRecord(relinked)}});
    announce(relinked);
    takeFootageBack(relinked);
}

void NxProjectMemory::applyResourceRename(const NxChange &change)
{
    NxEngineResource *renamed = resource(change.ids.first());
    renamed->setUserName(change.after.text);
    NxEngineFolder *folder = renamed->folder();
    folder->category()->itemObservers.tell([folder, renamed](INxMediaItemEventObserver *observer) {
        observer->onRenameItemEvent(folder, renamed);
    });
}

void NxProjectMemory::applyResourceFavourite(const NxChange &change)
{
    NxEngineResource *marked = resource(change.ids.first());
    NxEngineCategory *owner = category(marked->category());
    NxEngineFolder *favourites = owner->section(fkFavourites);
    auto &observers = owner->itemObservers;
    const bool becomes = change.after.number != NxNoTime;

    if (favourites && becomes) {
        observers.tell([favourites, marked](INxMediaItemEventObserver *observer) {
            observer->onBeforeAddItemEvent(favourites, marked);
        });
        marked->setFavouriteSince(change.after.number);
        favourites->insertGuest(marked);
        observers.tell([favourites, marked](INxMediaItemEventObserver *observer) {
            observer->onAfterAddItemEvent(favourites, marked);
        });
    } else if (favourites) {
        observers.tell([favourites, marked](INxMediaItemEventObserver *observer) {
            observer->onBeforeRemoveItemEvent(favourites, marked);
        });
        marked->setFavouriteSince(change.after.number);
        favourites->takeGuest(marked);
        observers.tell([favourites, marked](INxMediaItemEventObserver *observer) {
            observer->onAfterRemoveItemEvent(favourites, marked);
        });
    }
    observers.tell([marked](INxMediaItemEventObserver *observer) {
        observer->onMediaStateChangedEvent(marked);
    });
}

void NxProjectMemory::applyToTimelines(const NxChange &change)
{
    m_timelines->apply(change);
}
