// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineFolderManager.h>

#include <NxCore/NxLog.h>
#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineItemManager.h>
#include <NxVBLEngine/objects/NxEngineMedia.h>
#include <NxVBLEngine/objects/NxEngineUndoStack.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxSiblingPlaces.h>

#include <algorithm>

namespace {

NxUndoRedoCommander step(NxProjectMemory *memory, const char *action)
{
    const QString name = QString::fromLatin1(action);
    return {memory->undoStack(), QStringLiteral("NxEngineFolderManager::") + name, name};
}

} // namespace

NxEngineFolderManager::NxEngineFolderManager(NxEngineCategory *category) : m_category(category) {}

NxEngineFolderManager::~NxEngineFolderManager() = default;

NxProjectMemory *NxEngineFolderManager::memory() const
{
    return m_category->memory();
}

NxEngineFolder *NxEngineFolderManager::own(INxFolderMedia *folder) const
{
    auto *mine = dynamic_cast<NxEngineFolder *>(folder);
    return mine && mine->category() == m_category ? mine : nullptr;
}

NxEngineFolder *NxEngineFolderManager::changeable(INxFolderMedia *folder) const
{
    NxEngineFolder *mine = own(folder);
    if (!mine || !mine->isUserFolder() || !mine->parentEngineFolder() || memory()->isReadOnly())
        return nullptr;
    return mine;
}

NxResult<QString> NxEngineFolderManager::checkedName(const QString &name,
                                                     const NxEngineFolder *parent,
                                                     const NxEngineFolder *renamed)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return NxError{QStringLiteral("A folder needs a name.")};
    if (trimmed.size() > MaximumNameLength) {
        return NxError{QStringLiteral("The name of a folder has at most %1 characters: %2...")
                           .arg(MaximumNameLength)
                           .arg(trimmed.left(MaximumNameLength / 8))};
    }
    const NxEngineFolder *namesake = parent->childNamed(trimmed);
    if (namesake && namesake != renamed)
        return NxError{QStringLiteral("There is a folder \"%1\" here already.").arg(trimmed)};
    return trimmed;
}

INxFolderMedia *NxEngineFolderManager::rootFolder()
{
    return m_category->root();
}

INxFolderMedia *NxEngineFolderManager::folder(int folderId)
{
    return m_category->folder(folderId);
}

bool NxEngineFolderManager::addFolder(INxFolderMedia *parent, const QString &name)
{
    NxEngineFolder *into = own(parent);
    if (!into || !into->canAddFolder() || memory()->isReadOnly()) {
        NX_LOG_INFO("no folder can be added here: %s", qUtf8Printable(name));
        return false;
    }
    const NxResult<QString> checked = checkedName(name, into);
    if (!checked) {
        NX_LOG_INFO("%s", qUtf8Printable(checked.error().message));
        return false;
    }
    const NxUndoRedoCommander scope = step(memory(), "addFolder");
    memory()->addNewFolder(into, *checked);
    return true;
}

bool NxEngineFolderManager::canRemoveFolder(INxFolderMedia *folder)
{
    return changeable(folder) != nullptr;
}

bool NxEngineFolderManager::removeFolder(INxFolderMedia *folder)
{
    NxEngineFolder *removed = changeable(folder);
    if (!removed) {
        NX_LOG_INFO("the folder cannot be removed");
        return false;
    }
    const NxUndoRedoCommander scope = step(memory(), "deleteFolder");
    removeTree(removed);
    return true;
}

void NxEngineFolderManager::removeTree(NxEngineFolder *folder)
{
    const std::vector<NxEngineFolder *> children = folder->children();
    for (auto child = children.rbegin(); child != children.rend(); ++child)
        removeTree(*child);

    NxChange media;
    media.what = NxChangeKind::MediaRemove;
    media.category = m_category->categoryType();
    for (NxEngineItem *item : folder->ownItems())
        media.ids.append(static_cast<NxEngineMedia *>(item)->id());
    if (!media.ids.isEmpty())
        memory()->perform(media);

    NxChange change;
    change.what = NxChangeKind::FolderRemove;
    change.category = m_category->categoryType();
    change.ids = {folder->folderId()};
    memory()->perform(change);
}

bool NxEngineFolderManager::renameFolder(INxFolderMedia *folder, const QString &name)
{
    NxEngineFolder *renamed = changeable(folder);
    if (!renamed)
        return false;
    const NxResult<QString> checked = checkedName(name, renamed->parentEngineFolder(), renamed);
    if (!checked) {
        NX_LOG_INFO("%s", qUtf8Printable(checked.error().message));
        return false;
    }
    if (*checked == renamed->name())
        return true;
    const NxUndoRedoCommander scope = step(memory(), "renameFolder");
    NxChange change;
    change.what = NxChangeKind::FolderRename;
    change.category = m_category->categoryType();
    change.ids = {renamed->folderId()};
    change.before.text = renamed->name();
    change.after.text = *checked;
    memory()->perform(change);
    return true;
}

bool NxEngineFolderManager::moveFolder(INxFolderMedia *folder, INxFolderMedia *newParent, int row)
{
    NxEngineFolder *moved = changeable(folder);
    NxEngineFolder *parent = own(newParent);
    if (!moved || !parent || !parent->canAddFolder() || parent == moved
        || moved->contains(parent, true)) {
        NX_LOG_INFO("the folder cannot be moved there");
        return false;
    }
    const NxResult<QString> checked = checkedName(moved->name(), parent, moved);
    if (!checked) {
        NX_LOG_INFO("%s", qUtf8Printable(checked.error().message));
        return false;
    }
    const bool sameParent = moved->parentEngineFolder() == parent;
    const int target =
        row < 0 || row > parent->childFolderCount() ? parent->childFolderCount() : row;
    if (sameParent && (target == moved->rowInParent() || target == moved->rowInParent() + 1))
        return true; // It stands there already.
    const NxUndoRedoCommander scope = step(memory(), "moveFolder");
    moveTo(moved, parent, placeForRow(parent, moved, target));
    return true;
}

qint64 NxEngineFolderManager::placeForRow(NxEngineFolder *parent, const NxEngineFolder *moved,
                                          int row)
{
    QVector<NxEngineFolder *> siblings;
    int spot = 0;
    for (int i = 0; i < parent->childFolderCount(); ++i) {
        NxEngineFolder *sibling = parent->children()[size_t(i)];
        if (sibling == moved)
            continue;
        siblings.append(sibling);
        spot += i < row ? 1 : 0;
    }
    if (!NxSiblingPlaces::hasGap(siblings, spot))
        spread(siblings);
    return NxSiblingPlaces::placeAt(siblings, spot);
}

void NxEngineFolderManager::spread(const QVector<NxEngineFolder *> &siblings)
{
    // From the last to the first, so that none passes another on its way.
    const qint64 last = siblings.last()->place();
    for (int i = siblings.size() - 1; i >= 0; --i) {
        NxEngineFolder *sibling = siblings.at(i);
        moveTo(sibling, sibling->parentEngineFolder(), last + (i + 1) * NxSiblingPlaces::Gap);
    }
}

void NxEngineFolderManager::moveTo(NxEngineFolder *folder, NxEngineFolder *parent, qint64 place)
{
    NxChange change;
    change.what = NxChangeKind::FolderMove;
    change.category = m_category->categoryType();
    change.ids = {folder->folderId()};
    change.before.folder = folder->parentEngineFolder()->folderId();
    change.before.place = folder->place();
    change.after.folder = parent->folderId();
    change.after.place = place;
    memory()->perform(change);
}

bool NxEngineFolderManager::registerObserver(INxMediaFolderEventObserver *observer)
{
    return m_category->folderObservers.add(observer);
}

void NxEngineFolderManager::unregisterObserver(INxMediaFolderEventObserver *observer)
{
    m_category->folderObservers.remove(observer);
}

INxMediaItemManager *NxEngineFolderManager::itemManager()
{
    return m_category->itemManager();
}
