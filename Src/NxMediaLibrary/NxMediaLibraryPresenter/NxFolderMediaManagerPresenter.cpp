// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>

#include <NxCore/NxUndoRedoCommander.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxFolderMediaManagerPresenterPrivate.h>
#include <NxVBLModel/INxFolderMediaManager.h>

#include <algorithm>

NxFolderMediaManagerPresenter::NxFolderMediaManagerPresenter(INxFolderMediaManager *manager,
                                                             QObject *parent)
    : NxFolderMediaManagerPresenter(*new NxFolderMediaManagerPresenterPrivate(manager), parent)
{
}

NxFolderMediaManagerPresenter::NxFolderMediaManagerPresenter(
    NxFolderMediaManagerPresenterPrivate &dd, QObject *parent)
    : NxBaseMediaPresenter(dd, parent)
{
}

NxFolderMediaManagerPresenter::~NxFolderMediaManagerPresenter() = default;

NxFolderMediaManagerPresenterPrivate *NxFolderMediaManagerPresenter::d_func() const
{
    return static_cast<NxFolderMediaManagerPresenterPrivate *>(NxBaseMediaPresenter::d_func());
}

INxFolderMediaManager *NxFolderMediaManagerPresenter::folderManager() const
{
    return d_func()->manager();
}

INxFolderMedia *NxFolderMediaManagerPresenter::currentFolder() const
{
    return d_func()->currentFolder;
}

void NxFolderMediaManagerPresenter::setCurrentFolder(INxFolderMedia *folder)
{
    if (d_func()->currentFolder == folder)
        return;
    d_func()->currentFolder = folder;
    Q_EMIT sigCurrentFolderChanged();
}

INxFolderMedia *NxFolderMediaManagerPresenter::addFolder(INxFolderMedia *parent,
                                                         const QString &name)
{
    INxFolderMediaManager *manager = folderManager();
    if (!manager || !parent)
        return nullptr;
    const QList<INxFolderMedia *> before = parent->childFolders();
    const NxUndoRedoCommander step(d_func()->undoStack(),
                                   QStringLiteral("NxFolderMediaManagerPresenter::addFolder"),
                                   QStringLiteral("addFolder"));
    if (!manager->addFolder(parent, name))
        return nullptr;
    const QList<INxFolderMedia *> after = parent->childFolders();
    const auto added = std::find_if(after.begin(), after.end(), [&before](INxFolderMedia *child) {
        return !before.contains(child);
    });
    return added == after.end() ? nullptr : *added;
}

bool NxFolderMediaManagerPresenter::renameFolder(INxFolderMedia *folder, const QString &name)
{
    INxFolderMediaManager *manager = folderManager();
    if (!manager || !folder || name.trimmed().isEmpty())
        return false;
    const NxUndoRedoCommander step(d_func()->undoStack(),
                                   QStringLiteral("NxFolderMediaManagerPresenter::renameFolder"),
                                   QStringLiteral("renameFolder"));
    return manager->renameFolder(folder, name);
}

bool NxFolderMediaManagerPresenter::moveFolder(INxFolderMedia *folder, INxFolderMedia *newParent,
                                               int row)
{
    INxFolderMediaManager *manager = folderManager();
    if (!manager || !folder || !newParent)
        return false;
    const NxUndoRedoCommander step(d_func()->undoStack(),
                                   QStringLiteral("NxFolderMediaManagerPresenter::moveFolder"),
                                   QStringLiteral("moveFolder"));
    return manager->moveFolder(folder, newParent, row);
}

void NxFolderMediaManagerPresenter::removeFolder(INxFolderMedia *folder)
{
    d_func()->removeFolder(folder);
}
