// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxProjectMemory.h>

#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineResource.h>
#include <NxVBLEngine/objects/NxEngineUndoStack.h>
#include <NxVBLEngine/objects/NxMediaIdIndex.h>
#include <NxVBLEngine/objects/NxSiblingPlaces.h>
#include <NxVBLEngine/objects/NxTimelineMemory.h>

#include <QDir>
#include <QFileInfo>
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

bool hasPath(const NxEngineMedia *media, const QString &path)
{
    return media->sourcePath() == path || media->canonicalPath() == path;
}

} // namespace

NxProjectMemory::NxProjectMemory(const QString &projectPath)
    : m_projectPath(projectPath),
      m_projectFolder(projectPath.isEmpty() ? QString() : QFileInfo(projectPath).absolutePath()),
      m_mediaPool({MediaPerBlock, sizeof(NxEngineMedia)}),
      m_mediaById(std::make_unique<NxMediaIdIndex>()),
      m_timelines(std::make_unique<NxTimelineMemory>(this)),
      m_undoStack(std::make_unique<NxEngineUndoStack>(this))
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

QVector<NxEngineMedia *> NxProjectMemory::addNewMedia(NxEngineFolder *folder,
                                                      const QVector<NxMediaSeed> &seeds)
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
    introduce(addOf(folder->category()->categoryType(), ids), std::move(stored));
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
    const NxStoreEntry::NewFolder stored{record};
    record.alive = false; // Until the change brings it to life.
    m_removedFolders.insert(record.id, record);
    const NxUndoRedoCommander scope = ownStep("addNewFolder");
    introduce(change, stored);
    return parent->category()->folder(record.id);
}

// What no undo concerns

void NxProjectMemory::setFileFacts(NxEngineMedia *media, qint64 size, qint64 created,
                                   qint64 modified)
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
}

void NxProjectMemory::setUses(qint64 mediaId, int uses)
{
    if (NxEngineMedia *used = media(mediaId)) {
        used->setUsed(uses);
        announce(used);
    } else if (NxEngineResource *known = resource(mediaId)) {
        known->setUsed(uses);
        announce(known);
    }
}

void NxProjectMemory::setPresence(NxEngineMedia *media, NxPresence presence)
{
    if (media->presence() == presence)
        return;
    const bool wasUnavailable = media->isUnavailable();
    const QString reason = wasUnavailable ? media->unavailableReason() : QString();
    media->setPresence(presence);
    if (media->isUnavailable() != wasUnavailable
        || (wasUnavailable && media->unavailableReason() != reason))
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

QVector<qint64> NxProjectMemory::removedAmong(NxObjectKind kind, const QVector<qint64> &ids) const
{
    switch (kind) {
    case NxObjectKind::Folder:
        return removedFolders(ids);
    case NxObjectKind::Media:
        return removedMedia(ids);
    case NxObjectKind::Timeline:
        return m_timelines->removedTimelines(ids);
    case NxObjectKind::Clip:
        return m_timelines->removedClips(ids);
    case NxObjectKind::Resource:
        break;
    }
    return {};
}

QVector<qint64> NxProjectMemory::removedMedia(const QVector<qint64> &ids) const
{
    QVector<qint64> removed;
    for (const qint64 id : ids) {
        const NxEngineMedia *known = media(id);
        if (known && !known->folder())
            removed.append(id);
    }
    return removed;
}

QVector<qint64> NxProjectMemory::removedFolders(const QVector<qint64> &ids) const
{
    QVector<qint64> removed;
    for (const qint64 id : ids) {
        if (m_removedFolders.contains(int(id)))
            removed.append(id);
    }
    return removed;
}

void NxProjectMemory::forget(const NxStoreEntry::StepDrop &dead)
{
    for (const qint64 id : dead.deadMedia) {
        m_deadMedia.push_back(media(id));
        m_mediaById->remove(id);
    }
    for (const qint64 id : dead.deadFolders)
        m_removedFolders.remove(int(id));
    m_timelines->forget(dead.deadTimelines, dead.deadClips);
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
    m_timelines->bury();
}
