// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>

#include <QPointer>

class INxFolderMedia;
class NxComboBox;
class NxMediaFolderComboBox;

class NxMediaFolderComboBoxPrivate
{
public:
    NxMediaFolderComboBoxPrivate(NxMediaFolderComboBox *view,
                                 NxFolderMediaManagerPresenter *folders);

    void layOut() const;
    /// Null without a presenter, and where that has no folders.
    [[nodiscard]] INxFolderMedia *rootFolder() const;
    /// `depth` is that of the folder's children.
    void appendBelow(const INxFolderMedia *folder, int depth) const;
    /// What the user's choice of an entry does.
    /// -1 for a folder that is not listed.
    [[nodiscard]] int entryOf(const INxFolderMedia *folder) const;
    void selectFolder(int entry) const;

    NxMediaFolderComboBox *const q_ptr; // Not owned.
    QPointer<NxFolderMediaManagerPresenter> presenter; // Not owned.
    NxComboBox *const comboBox; // A child of the view.

private:
    void append(INxFolderMedia *folder, int depth) const;
};
