// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxProjectMemory.h>

#include <NxCore/NxLog.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineResource.h>
#include <NxVBLEngine/objects/NxEngineUndoStack.h>
#include <NxVBLEngine/objects/NxMediaIdIndex.h>
#include <NxVBLEngine/objects/NxSiblingPlaces.h>
#include <NxVBLEngine/objects/NxTimelineMemory.h>

#include <QDir>
#include <QSet>

#include <utility>

using namespace NXVBLMODEL;

namespace {

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

} // namespace

void NxProjectMemory::load(NxProjectContents contents)
{
    m_counters = contents.counters;
    loadFolders(contents.folders);
    loadResources(contents.resources);
    loadMedia(std::move(contents.media));
    loadFootage(&contents);
    m_timelines->load(std::move(contents.timelines), std::move(contents.clips));
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
