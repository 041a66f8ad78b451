// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryPresenter/NxBaseMediaPresenter.h>

class INxFolderMedia;
class INxFolderMediaManager;
class NxFolderMediaManagerPresenterPrivate;

/// The folder tree of one category: its current folder, and what the user does to folders.
///
/// Each operation that changes the project is one undo step. When the current folder is removed,
/// by whomever, its parent becomes the current one.
class NXMEDIALIBRARY_EXPORT NxFolderMediaManagerPresenter : public NxBaseMediaPresenter
{
    Q_OBJECT
public:
    /// The manager is not owned; it may be null, and may die first.
    NxFolderMediaManagerPresenter(INxFolderMediaManager *manager, QObject *parent);
    ~NxFolderMediaManagerPresenter() override;

    /// Null once it died.
    [[nodiscard]] INxFolderMediaManager *folderManager() const;

    /// Null at first, and once it died.
    [[nodiscard]] INxFolderMedia *currentFolder() const;
    void setCurrentFolder(INxFolderMedia *folder);

    /// Makes a folder at the end of `parent`. Null when it was refused; the log tells why.
    INxFolderMedia *addFolder(INxFolderMedia *parent, const QString &name);
    /// False when it was refused. An empty name is refused without a word.
    bool renameFolder(INxFolderMedia *folder, const QString &name);
    /// Moves a folder before the child at `row` of its new parent; a row out of range is the end.
    bool moveFolder(INxFolderMedia *folder, INxFolderMedia *newParent, int row);
    /// Asks the user, and removes the folder with all that it holds.
    void removeFolder(INxFolderMedia *folder);

Q_SIGNALS:
    void sigCurrentFolderChanged();

protected:
    NxFolderMediaManagerPresenter(NxFolderMediaManagerPresenterPrivate &dd, QObject *parent);

private:
    friend class NxFolderMediaManagerPresenterPrivate;
    [[nodiscard]] NxFolderMediaManagerPresenterPrivate *d_func() const;
};
