// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxLifeToken.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QList>
#include <QString>

class INxAbstractMedia;
class INxFolderMedia;
class INxMediaFolderEventObserver;
class INxMediaItemManager;

/// The folders of one category.
///
/// Names are trimmed, not empty, at most 255 characters, and different among siblings; whatever
/// breaks that is refused with a log line. Changes are undoable and announced to the observers.
class NXVBLMODEL_EXPORT INxFolderMediaManager
{
public:
    virtual ~INxFolderMediaManager();

    /// The hidden parent of the sections; never a section.
    [[nodiscard]] virtual INxFolderMedia *rootFolder() = 0;
    /// Null when the id is unknown.
    [[nodiscard]] virtual INxFolderMedia *folder(int folderId) = 0;
    /// Where search results are listed; may be null.
    [[nodiscard]] virtual INxFolderMedia *searchFolder();

    /// False when refused. Find the new folder among the children of `parent`.
    virtual bool addFolder(INxFolderMedia *parent, const QString &name);
    [[nodiscard]] virtual bool canRemoveFolder(INxFolderMedia *folder);
    /// Removes the folder with all that it holds.
    virtual bool removeFolder(INxFolderMedia *folder);
    virtual bool renameFolder(INxFolderMedia *folder, const QString &name);
    /// Moves a folder before the child that stands at `row` of its new parent; a row out of range
    /// is the end. Refused into itself or below itself.
    virtual bool moveFolder(INxFolderMedia *folder, INxFolderMedia *newParent, int row);

    /// Every media of the category, in the order of the folders.
    [[nodiscard]] virtual QList<INxAbstractMedia *> allMedia();

    /// False when the observer is null or registered already.
    virtual bool registerObserver(INxMediaFolderEventObserver *observer);
    virtual void unregisterObserver(INxMediaFolderEventObserver *observer);
    [[nodiscard]] virtual INxMediaItemManager *itemManager();

    /// Expires when the manager dies; what NxObserverConnectorT watches.
    [[nodiscard]] std::weak_ptr<void> lifeToken() const { return m_life.watch(); }

private:
    NxLifeToken m_life;
};
