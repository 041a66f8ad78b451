// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxProjectMemory.h>

#include <NxCore/NxLog.h>
#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineResource.h>
#include <NxVBLEngine/objects/NxEngineUndoStack.h>
#include <NxVBLEngine/objects/NxMediaIdIndex.h>
#include <NxVBLEngine/objects/NxSiblingPlaces.h>

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QTimer>

#include <algorithm>

using namespace NXVBLMODEL;

namespace {

constexpr size_t MediaPerBlock = 1024;

NxChange addOf(int category, QVector<qint64> ids)
{
    NxChange change;
    change.what = NxChangeKind::MediaAdd;
    change.category = category;
    change.ids = std::move(ids);
    return change;
}

using FoldersByParent = QHash<std::pair<int, int>, QVector<NxFolderRecord>>;

// The top of a tree that hangs on nothing, or any folder of a ring.
NxFolderRecord takeStray(FoldersByParent *folders)
{
    QSet<std::pair<int, int>> waiting;
    for (const QVector<NxFolderRecord> &siblings : qAsConst(*folders)) {
        for (const NxFolderRecord &record : siblings)
            waiting.insert({record.category, record.id});
    }
    auto chosen = folders->begin();
    for (auto candidate = folders->begin(); candidate != folders->end(); ++candidate) {
        if (!waiting.contains(candidate.key()))
            chosen = candidate;
    }
    const NxFolderRecord stray = chosen->takeFirst();
    if (chosen->isEmpty())
        folders->erase(chosen);
    return stray;
}

bool hasPath(const NxEngineMedia *media, const QString &path)
{
    return media->sourcePath() == path || media->canonicalPath() == path;
}

} // namespace

NxProjectMemory::NxProjectMemory(const QString &projectPath)
    : m_projectPath(projectPath)
    , m_projectFolder(projectPath.isEmpty() ? QString() : QFileInfo(projectPath).absolutePath())
    , m_mediaPool({MediaPerBlock, sizeof(NxEngineMedia)})
    , m_mediaById(std::make_unique<NxMediaIdIndex>())
    , m_undoStack(std::make_unique<NxEngineUndoStack>(this))
{
    for (int category = 0; category < MediaCategoryCount; ++category) {
        auto &made = m_categories[size_t(category)];
        made = std::make_unique<NxEngineCategory>(this, NxMediaCategoryType(category));
        for (const auto &resource : made->resources())
            m_resourcesById.insert(resource->id(), resource.get());
    }
}

NxProjectMemory::~NxProjectMemory()
{
    bury();
    const std::vector<NxEngineMedia *> media = m_mediaById->all();
    for (NxEngineMedia *one : media)
        std::destroy_at(one); // Their blocks go with the pool.
}

// Loading

void NxProjectMemory::load(NxProjectContents contents)
{
    m_counters = contents.counters;
    loadFolders(contents.folders);
    loadResources(contents.resources);
    loadMedia(std::move(contents.media));
    m_undoStack->load(std::move(contents.undoSteps), contents.undoDone);
}

void NxProjectMemory::loadFolders(const std::vector<NxFolderRecord> &folders)
{
    FoldersByParent byParent;
    for (const NxFolderRecord &record : folders) {
        if (record.alive)
            byParent[{record.category, record.parent}].append(record);
        else
            m_removedFolders.insert(record.id, record);
    }
    const auto insertBelow = [&byParent](NxEngineCategory *category, int parent) {
        QVector<int> waiting = {parent};
        while (!waiting.isEmpty()) {
            const auto records = byParent.take({category->categoryType(), waiting.takeLast()});
            for (const NxFolderRecord &record : records) {
                category->insertFolder(record);
                waiting.append(record.id);
            }
        }
    };
    for (const auto &category : m_categories) {
        for (NxEngineFolder *section : category->root()->children())
            insertBelow(category.get(), section->folderId());
    }
    // What is left hangs on nothing. It is shown in the first section rather than lost.
    while (!byParent.isEmpty()) {
        NxFolderRecord stray = takeStray(&byParent);
        NX_LOG_INFO("folder %d hung on the unknown folder %d", stray.id, stray.parent);
        stray.parent = fidRoot;
        NxEngineCategory *home = category(stray.category);
        if (home && !home->folder(stray.id)) {
            stray.place = NxSiblingPlaces::placeAtEnd(home->folder(fidRoot));
            home->insertFolder(stray);
            insertBelow(home, stray.id);
        }
    }
}

NxEngineFolder *NxProjectMemory::homeOf(const NxMediaRecord &record) const
{
    NxEngineCategory *owner = category(record.category);
    if (!owner)
        return nullptr;
    NxEngineFolder *folder = owner->folder(record.folder);
    if (folder && folder != owner->root())
        return folder;
    NX_LOG_INFO("media %lld stood in the unknown folder %d", record.id, record.folder);
    return owner->folder(fidRoot);
}

void NxProjectMemory::loadMedia(std::vector<NxMediaRecord> media)
{
    m_mediaById->reserve(media.size());
    m_mediaByPathHash.reserve(int(media.size()));
    for (const NxMediaRecord &record : media) {
        NxEngineMedia *made = createMedia(record);
        NxEngineFolder *home = record.alive ? homeOf(record) : nullptr;
        if (!home)
            continue;
        made->setFolderId(home->folderId());
        home->insertItem(made);
        indexPath(made);
        noteRelativePath(record);
        ++m_livingMedia;
    }
}

void NxProjectMemory::loadResources(const std::vector<NxResourceRecord> &resources)
{
    for (const NxResourceRecord &record : resources) {
        NxEngineResource *changed = resource(record.id);
        if (!changed)
            continue;
        changed->setUserName(record.name);
        changed->setFavouriteSince(record.favourite);
        NxEngineFolder *favourites = category(changed->category())->section(fkFavourites);
        if (favourites && changed->isFavourite())
            favourites->insertGuest(changed);
    }
}

void NxProjectMemory::noteRelativePath(const NxMediaRecord &record)
{
    if (record.relativePath.isEmpty() || m_projectFolder.isEmpty())
        return;
    const QString here = QDir::cleanPath(m_projectFolder + QLatin1Char('/') + record.relativePath);
    if (here != record.path)
        m_relativePaths.insert(record.id, record.relativePath);
}

QHash<qint64, QString> NxProjectMemory::takeRelativePaths()
{
    return std::exchange(m_relativePaths, {});
}

// Looking up

void NxProjectMemory::setWriter(Writer writer)
{
    m_writer = std::move(writer);
}

NxEngineCategory *NxProjectMemory::category(int category) const
{
    const bool known = category >= 0 && category < MediaCategoryCount;
    return known ? m_categories[size_t(category)].get() : nullptr;
}

NxEngineMedia *NxProjectMemory::media(qint64 id) const
{
    return m_mediaById->find(id);
}

NxEngineResource *NxProjectMemory::resource(qint64 id) const
{
    return m_resourcesById.value(id, nullptr);
}

NxEngineMedia *NxProjectMemory::mediaByPath(const QString &path, int category) const
{
    const uint hash = qHash(path);
    for (auto found = m_mediaByPathHash.constFind(hash);
         found != m_mediaByPathHash.constEnd() && found.key() == hash; ++found) {
        if ((*found)->category() == category && hasPath(*found, path))
            return *found;
    }
    return nullptr;
}

QVector<NxEngineMedia *> NxProjectMemory::allMediaByPath(const QString &path) const
{
    QVector<NxEngineMedia *> matching;
    const uint hash = qHash(path);
    for (auto found = m_mediaByPathHash.constFind(hash);
         found != m_mediaByPathHash.constEnd() && found.key() == hash; ++found) {
        if (hasPath(*found, path) && !matching.contains(*found))
            matching.append(*found);
    }
    return matching;
}

std::vector<NxEngineMedia *> NxProjectMemory::livingMedia() const
{
    std::vector<NxEngineMedia *> living;
    living.reserve(size_t(m_livingMedia));
    for (const auto &category : m_categories) {
        const QList<INxAbstractMedia *> items = category->root()->items(true, true);
        for (INxAbstractMedia *item : items) {
            if (!item->isResource())
                living.push_back(static_cast<NxEngineMedia *>(item));
        }
    }
    return living;
}

// Making

NxEngineMedia *NxProjectMemory::createMedia(const NxMediaRecord &record)
{
    void *room = m_mediaPool.allocate(sizeof(NxEngineMedia), alignof(NxEngineMedia));
    auto *made = new (room) NxEngineMedia(record);
    m_mediaById->insert(record.id, made);
    return made;
}

void NxProjectMemory::destroyMedia(NxEngineMedia *media)
{
    std::destroy_at(media);
    m_mediaPool.deallocate(media, sizeof(NxEngineMedia), alignof(NxEngineMedia));
}

void NxProjectMemory::indexPath(NxEngineMedia *media)
{
    m_mediaByPathHash.insert(qHash(media->sourcePath()), media);
    if (media->canonicalPath() != media->sourcePath())
        m_mediaByPathHash.insert(qHash(media->canonicalPath()), media);
}

void NxProjectMemory::unindexPath(NxEngineMedia *media)
{
    m_mediaByPathHash.remove(qHash(media->sourcePath()), media);
    if (media->canonicalPath() != media->sourcePath())
        m_mediaByPathHash.remove(qHash(media->canonicalPath()), media);
}

QString NxProjectMemory::relativePath(const QString &path) const
{
    if (m_projectFolder.isEmpty())
        return {};
    const QString prefix = m_projectFolder + QLatin1Char('/');
    if (path.startsWith(prefix))
        return path.mid(prefix.size());
    const QString relative = QDir(m_projectFolder).relativeFilePath(path);
    return QDir::isAbsolutePath(relative) ? QString() : relative; // Another drive.
}

NxMediaRecord NxProjectMemory::storedRecord(const NxEngineMedia *media) const
{
    NxMediaRecord record = media->record();
    record.relativePath = relativePath(record.path);
    return record;
}

QVector<NxEngineMedia *> NxProjectMemory::addNewMedia(
    NxEngineFolder *folder, const QVector<NxMediaSeed> &seeds)
{
    QVector<NxEngineMedia *> added;
    if (m_readOnly || seeds.isEmpty())
        return added;
    added.reserve(seeds.size());
    NxStoreEntry::NewMedia stored;
    QVector<qint64> ids;
    for (const NxMediaSeed &seed : seeds) {
        NxMediaRecord record;
        record.id = m_counters.nextMediaId++;
        record.category = folder->category()->categoryType();
        record.folder = folder->folderId();
        record.place = takePlace();
        record.name = seed.name.isEmpty() ? seed.path.section(QLatin1Char('/'), -1) : seed.name;
        record.path = seed.path;
        record.canonicalPath = seed.canonicalPath == seed.path ? QString() : seed.canonicalPath;
        record.relativePath = relativePath(seed.path);
        record.size = seed.size;
        record.created = seed.created;
        record.modified = seed.modified;
        record.importKind = seed.importKind;
        record.kindCode = seed.kindCode;
        added.append(createMedia(record));
        ids.append(record.id);
        stored.media.append(record);
    }
    const NxUndoRedoCommander scope = ownStep("addNewMedia");
    const NxChange change = addOf(folder->category()->categoryType(), ids);
    m_undoStack->record(change);
    enqueue(std::move(stored));
    apply(change);
    return added;
}

NxEngineFolder *NxProjectMemory::addNewFolder(NxEngineFolder *parent, const QString &name)
{
    if (m_readOnly)
        return nullptr;
    NxFolderRecord record;
    record.id = m_counters.nextFolderId++;
    record.category = parent->category()->categoryType();
    record.parent = parent->folderId();
    record.place = NxSiblingPlaces::placeAtEnd(parent);
    record.name = name;
    NxChange change;
    change.what = NxChangeKind::FolderAdd;
    change.category = record.category;
    change.ids = {record.id};
    const NxUndoRedoCommander scope = ownStep("addNewFolder");
    m_undoStack->record(change);
    enqueue(NxStoreEntry::NewFolder{record});
    record.alive = false; // Until the change brings it to life.
    m_removedFolders.insert(record.id, record);
    apply(change);
    return parent->category()->folder(record.id);
}

// Changing

NxUndoRedoCommander NxProjectMemory::ownStep(const char *function)
{
    return {m_undoStack.get(), QStringLiteral("NxProjectMemory::") + QLatin1String(function),
        QLatin1String(function)};
}

const std::array<NxProjectMemory::HandlerEntry, 13> NxProjectMemory::s_handlers = {{
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
    {NxChangeKind::MediaUsed, &NxProjectMemory::applyMediaUsed},
    {NxChangeKind::ResourceRename, &NxProjectMemory::applyResourceRename},
    {NxChangeKind::ResourceFavourite, &NxProjectMemory::applyResourceFavourite},
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
    observers.tell([to, newRow](Observer *observer) {
        observer->onBeforeAddFolderEvent(to, newRow, newRow);
    });
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
    Q_EMIT pathsChanged();
}

void NxProjectMemory::applyMediaRemove(const NxChange &change)
{
    for (const qint64 id : change.ids) {
        NxEngineMedia *removed = media(id);
        takeMedia(removed);
        unindexPath(removed);
        --m_livingMedia;
    }
    Q_EMIT pathsChanged();
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

void NxProjectMemory::announce(NxEngineMedia *media)
{
    if (!media->folder())
        return;
    media->folder()->category()->itemObservers.tell([media](INxMediaItemEventObserver *observer) {
        observer->onMediaStateChangedEvent(media);
    });
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
    relinked->setPaths(change.after.text, change.after.secondText);
    indexPath(relinked);
    enqueue(NxStoreEntry::Facts{{storedRecord(relinked)}});
    announce(relinked);
    Q_EMIT pathsChanged();
}

void NxProjectMemory::applyMediaUsed(const NxChange &change)
{
    NxEngineMedia *used = media(change.ids.first());
    used->setUsed(int(change.after.number));
    announce(used);
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

// What no undo concerns

void NxProjectMemory::setFileFacts(
    NxEngineMedia *media, qint64 size, qint64 created, qint64 modified)
{
    const NxMediaRecord before = media->record();
    if (before.size == size && before.created == created && before.modified == modified)
        return;
    media->setFileFacts(size, created, modified);
    if (!m_readOnly)
        enqueue(NxStoreEntry::Facts{{storedRecord(media)}});
    announce(media);
}

void NxProjectMemory::setMovedPath(NxEngineMedia *media, const QString &path)
{
    if (media->folder())
        unindexPath(media);
    media->setPaths(path, QString());
    if (media->folder())
        indexPath(media);
    if (!m_readOnly)
        enqueue(NxStoreEntry::Facts{{storedRecord(media)}});
    announce(media);
    Q_EMIT pathsChanged();
}

void NxProjectMemory::setPresence(NxEngineMedia *media, NxPresence presence)
{
    const bool wasUnavailable = media->isUnavailable();
    const NxPresence before = media->presence();
    media->setPresence(presence);
    if (media->isUnavailable() != wasUnavailable || (wasUnavailable && before != presence))
        announce(media);
}

// The store

void NxProjectMemory::enqueue(NxStoreEntry::Any entry)
{
    if (m_writer)
        m_batch.push_back(std::move(entry));
}

void NxProjectMemory::flush()
{
    if (!m_writer || m_batch.empty())
        return;
    m_batch.push_back(m_counters);
    m_writer(std::exchange(m_batch, {}));
}

// Forgetting

QVector<qint64> NxProjectMemory::removedAmong(const QVector<qint64> &mediaIds) const
{
    QVector<qint64> removed;
    for (const qint64 id : mediaIds) {
        const NxEngineMedia *known = media(id);
        if (known && !known->folder())
            removed.append(id);
    }
    return removed;
}

QVector<qint64> NxProjectMemory::removedFoldersAmong(const QVector<qint64> &folderIds) const
{
    QVector<qint64> removed;
    for (const qint64 id : folderIds) {
        if (m_removedFolders.contains(int(id)))
            removed.append(id);
    }
    return removed;
}

void NxProjectMemory::forget(const QVector<qint64> &deadMedia, const QVector<qint64> &deadFolders)
{
    for (const qint64 id : deadMedia) {
        m_deadMedia.push_back(media(id));
        m_mediaById->remove(id);
    }
    for (const qint64 id : deadFolders)
        m_removedFolders.remove(int(id));
    scheduleBurial();
}

void NxProjectMemory::scheduleBurial()
{
    if (m_burialScheduled)
        return;
    m_burialScheduled = true;
    QTimer::singleShot(0, this, &NxProjectMemory::bury);
}

void NxProjectMemory::bury()
{
    m_burialScheduled = false;
    for (NxEngineMedia *dead : std::exchange(m_deadMedia, {}))
        destroyMedia(dead);
    m_deadFolders.clear();
}
