// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>
#include <NxWidgets/NxWidgetView.h>

#include <memory>

class INxFolderMedia;
class NxFolderMediaManagerPresenter;
class NxMediaFolderComboBoxPrivate;

/// The folders of a panel that has no room for a tree: a drop-down list, sub-folders indented.
///
/// The entry that the user picks becomes the presenter's current folder; what is picked by program
/// does not. The list is that of the moment at which it was loaded: the host loads it again after
/// folders came, went or were renamed. An entry whose folder died meanwhile does nothing. Online
/// folders are left out, with all that is below them. GUI thread only; nothing here touches a disk.
class NXMEDIALIBRARY_EXPORT NxMediaFolderComboBox : public NxWidgetView
{
    Q_OBJECT
public:
    /// Lists what is below the root of the presenter's folders. The presenter is not owned and may
    /// die first; null, or one without folders, gives an empty list.
    NxMediaFolderComboBox(NxFolderMediaManagerPresenter *presenter, NxUIView *parent);
    ~NxMediaFolderComboBox() override;

    /// Appends all that is below a folder, each folder right before its own sub-folders. What is
    /// listed already stays. Null adds nothing.
    void load(INxFolderMedia *folder);
    void clear();
    /// Makes the first folder of the list the current one; the list goes on showing what it shows.
    void setDefaultFolder();
    /// The list shows this folder, which becomes no one's current one; what is not listed changes
    /// nothing.
    void showFolder(const INxFolderMedia *folder);

private:
    [[nodiscard]] NxMediaFolderComboBoxPrivate *d_func() const { return d_ptr.get(); }

    const std::unique_ptr<NxMediaFolderComboBoxPrivate> d_ptr;
};
