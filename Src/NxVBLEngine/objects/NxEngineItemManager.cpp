// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineItemManager.h>

#include <NxCore/NxLog.h>
#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineMedia.h>
#include <NxVBLEngine/objects/NxEngineResource.h>
#include <NxVBLEngine/objects/NxEngineUndoStack.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>

#include <QDateTime>
#include <QDir>
#include <QSet>

#include <utility>

using namespace NXVBLMODEL;

namespace {

NxUndoRedoCommander step(NxProjectMemory *memory, const char *action)
{
    const QString name = QString::fromLatin1(action);
    return {memory->undoStack(), QStringLiteral("NxEngineItemManager::") + name, name};
}

NxChange changeOf(NxChangeKind what, int category, qint64 id)
{
    NxChange change;
    change.what = what;
    change.category = category;
    change.ids = {id};
    return change;
}

} // namespace

NxEngineItemManager::NxEngineItemManager(NxEngineCategory *category) : m_category(category) {}

NxEngineItemManager::~NxEngineItemManager() = default;

NxProjectMemory *NxEngineItemManager::memory() const
{
    return m_category->memory();
}

NxEngineItem *NxEngineItemManager::own(INxAbstractMedia *item) const
{
    auto *mine = dynamic_cast<NxEngineItem *>(item);
    return mine && mine->folder() && mine->folder()->category() == m_category ? mine : nullptr;
}

NxEngineMedia *NxEngineItemManager::ownMedia(INxAbstractMedia *item) const
{
    return dynamic_cast<NxEngineMedia *>(own(item));
}

NxEngineFolder *NxEngineItemManager::ownFolder(INxFolderMedia *folder) const
{
    auto *mine = dynamic_cast<NxEngineFolder *>(folder);
    return mine && mine->category() == m_category ? mine : nullptr;
}

NxMediaCategoryType NxEngineItemManager::categoryType() const
{
    return m_category->categoryType();
}

bool NxEngineItemManager::registerObserver(INxMediaItemEventObserver *observer)
{
    return m_category->itemObservers.add(observer);
}

void NxEngineItemManager::unregisterObserver(INxMediaItemEventObserver *observer)
{
    m_category->itemObservers.remove(observer);
}

bool NxEngineItemManager::addMediaItems(const QList<INxAbstractMedia *> &items)
{
    for (NxEngineFolder *section : m_category->root()->children()) {
        if (section->canAddMedia())
            return addMediaItems(section, items);
    }
    NX_LOG_INFO("category %d takes no media", m_category->categoryType());
    return false;
}

bool NxEngineItemManager::addMediaItems(INxFolderMedia *folder,
                                        const QList<INxAbstractMedia *> &items)
{
    NxEngineFolder *into = ownFolder(folder);
    if (!into || !into->canAddMedia() || memory()->isReadOnly()) {
        NX_LOG_INFO("no media can be added here");
        return false;
    }
    const NxUndoRedoCommander scope = step(memory(), "addMediaItems");
    bool allTaken = !items.isEmpty();
    QVector<NxMediaSeed> copies; // Of neighbours, which become media together.
    for (INxAbstractMedia *item : items) {
        NxEngineMedia *known = knownMedia(item);
        if (!known) {
            allTaken = appendCopy(&copies, item) && allTaken;
            continue;
        }
        memory()->addNewMedia(into, std::exchange(copies, {}));
        allTaken = addKnown(into, known) && allTaken;
    }
    memory()->addNewMedia(into, copies);
    return allTaken;
}

NxEngineMedia *NxEngineItemManager::knownMedia(INxAbstractMedia *item) const
{
    auto *media = dynamic_cast<NxEngineMedia *>(item);
    const bool isRemoved = media && !media->folder();
    return isRemoved ? media : ownMedia(item);
}

bool NxEngineItemManager::addKnown(NxEngineFolder *folder, NxEngineMedia *media)
{
    if (media->folder())
        return media->folder() == folder || moveOne(folder, media);
    return media->category() == m_category->categoryType() && revive(folder, media);
}

bool NxEngineItemManager::revive(NxEngineFolder *folder, NxEngineMedia *media)
{
    // It comes back where it stood, and goes where it is wanted: both can be taken back.
    if (!memory()->undoStack()->keeps(NxObjectKind::Media, media->id())) {
        // A new change would forget the undone step that keeps it.
        NX_LOG_INFO("%s cannot come back: its addition was undone", qUtf8Printable(media->name()));
        return false;
    }
    if (!m_category->folder(media->folderId())) {
        NX_LOG_INFO("%s cannot come back: its folder is gone", qUtf8Printable(media->name()));
        return false;
    }
    memory()->perform(changeOf(NxChangeKind::MediaAdd, m_category->categoryType(), media->id()));
    return moveOne(folder, media);
}

bool NxEngineItemManager::appendCopy(QVector<NxMediaSeed> *copies, INxAbstractMedia *item)
{
    auto *source = dynamic_cast<INxAbstractMediaItem *>(item);
    if (!source || source->filePath().isEmpty())
        return false;
    NxMediaSeed seed;
    seed.path = QDir::cleanPath(source->filePath());
    seed.name = source->name();
    seed.size = source->sourceSize();
    seed.kindCode = source->isResource() ? mkcStockCopy : mkcNone;
    copies->append(seed);
    return true;
}

bool NxEngineItemManager::removeMediaItems(INxFolderMedia *folder,
                                           const QList<INxAbstractMedia *> &items)
{
    if (memory()->isReadOnly())
        return false;
    NxChange change;
    change.what = NxChangeKind::MediaRemove;
    change.category = m_category->categoryType();
    QSet<qint64> taken;
    for (INxAbstractMedia *item : items) {
        NxEngineMedia *media = ownMedia(item);
        const bool isHere = media && (!folder || folder->containsMedia(media, true));
        if (!isHere || taken.contains(media->id()))
            continue;
        taken.insert(media->id());
        change.ids.append(media->id());
    }
    if (change.ids.isEmpty())
        return false;
    const NxUndoRedoCommander scope = step(memory(), "deleteMediaItems");
    memory()->perform(change);
    return true;
}

bool NxEngineItemManager::moveMediaItems(INxFolderMedia *from, INxFolderMedia *to,
                                         const QList<INxAbstractMedia *> &items)
{
    NxEngineFolder *into = ownFolder(to);
    if (!into || !into->canAddMedia() || memory()->isReadOnly()) {
        NX_LOG_INFO("no media can be moved there");
        return false;
    }
    const NxUndoRedoCommander scope = step(memory(), "moveMediaItems");
    bool movedAny = false;
    for (INxAbstractMedia *item : items) {
        NxEngineMedia *media = ownMedia(item);
        const bool isHere = media && (!from || from->containsMedia(media, true));
        if (isHere && media->folder() != into)
            movedAny = moveOne(into, media) || movedAny;
    }
    return movedAny;
}

bool NxEngineItemManager::moveOne(NxEngineFolder *to, NxEngineMedia *media)
{
    NxChange change = changeOf(NxChangeKind::MediaMove, m_category->categoryType(), media->id());
    change.before.folder = media->folderId();
    change.before.place = media->place();
    change.after.folder = to->folderId();
    change.after.place = memory()->takePlace();
    memory()->perform(change);
    return true;
}

bool NxEngineItemManager::renameMediaItem(INxAbstractMedia *item, const QString &name)
{
    NxEngineItem *renamed = own(item);
    const QString trimmed = name.trimmed();
    if (!renamed || trimmed.isEmpty() || trimmed.size() > MaximumNameLength
        || memory()->isReadOnly()) {
        NX_LOG_INFO("the media cannot be renamed to \"%s\"", qUtf8Printable(name));
        return false;
    }
    if (trimmed == renamed->name())
        return true;
    const NxUndoRedoCommander scope = step(memory(), "renameMediaItem");
    auto *media = dynamic_cast<NxEngineMedia *>(renamed);
    auto *resource = dynamic_cast<NxEngineResource *>(renamed);
    NxChange change =
        media ? changeOf(NxChangeKind::MediaRename, m_category->categoryType(), media->id())
              : changeOf(NxChangeKind::ResourceRename, m_category->categoryType(), resource->id());
    change.before.text = media ? media->name() : resource->userName();
    change.after.text = trimmed;
    memory()->perform(change);
    return true;
}

bool NxEngineItemManager::setFavourite(INxAbstractMedia *item, bool favourite)
{
    NxEngineItem *marked = own(item);
    if (!marked || memory()->isReadOnly())
        return false;
    if (marked->isFavourite() == favourite)
        return true;
    const NxUndoRedoCommander scope = step(memory(), "setFavourite");
    auto *media = dynamic_cast<NxEngineMedia *>(marked);
    auto *resource = dynamic_cast<NxEngineResource *>(marked);
    NxChange change =
        media
            ? changeOf(NxChangeKind::MediaFavourite, m_category->categoryType(), media->id())
            : changeOf(NxChangeKind::ResourceFavourite, m_category->categoryType(), resource->id());
    change.before.number = media ? media->favouriteSince() : resource->favouriteSince();
    change.after.number = favourite ? QDateTime::currentMSecsSinceEpoch() : NxNoTime;
    memory()->perform(change);
    return true;
}

bool NxEngineItemManager::relinkMedia(INxAbstractMedia *item, const QString &path)
{
    NxEngineMedia *media = ownMedia(item);
    const QString cleaned = QDir::cleanPath(path);
    if (!media || path.isEmpty() || memory()->isReadOnly())
        return false;
    if (cleaned == media->sourcePath())
        return true;
    const NxUndoRedoCommander scope = step(memory(), "relinkMedia");
    NxChange change = changeOf(NxChangeKind::MediaRelink, m_category->categoryType(), media->id());
    change.before.text = media->sourcePath();
    change.before.secondText = media->record().canonicalPath;
    change.after.text = cleaned;
    memory()->perform(change);
    return true;
}

qint64 NxEngineItemManager::readDuration(const QString &path) const
{
    // A copy: the project may close, and take the reader along, while the file is read.
    const NxProjectMemory::LengthReader read = memory()->lengthReader();
    return read ? read(path) : INxMediaItemManager::readDuration(path);
}

void NxEngineItemManager::refresh(INxFolderMedia *folder)
{
    m_currentRoot = folder; // No folder of a project comes from a service.
}

void NxEngineItemManager::resetResourceLoader(INxFolderMedia *folder)
{
    m_currentRoot = folder;
}

INxMediaManager *NxEngineItemManager::mediaManager() const
{
    return m_category;
}
