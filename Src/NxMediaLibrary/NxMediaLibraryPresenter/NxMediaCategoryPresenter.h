// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryPresenter/NxBaseMediaPresenter.h>

class INxFolderMedia;
class INxMediaManager;
class NxFolderMediaManagerPresenter;
class NxMediaCategoryPresenterPrivate;
class NxMediaItemManagerPresenter;

/// One category of the panel: its folder tree and its item list, and which folder the list shows.
///
/// The list follows the tree's current folder except while a search folder is shown. Leaving the
/// search goes back to the folder that is current in the tree.
class NXMEDIALIBRARY_EXPORT NxMediaCategoryPresenter : public NxBaseMediaPresenter
{
    Q_OBJECT
public:
    /// The manager is not owned; it may be null, and must outlive the presenter.
    NxMediaCategoryPresenter(INxMediaManager *manager, QObject *parent);
    ~NxMediaCategoryPresenter() override;

    [[nodiscard]] INxMediaManager *mediaManager() const;
    /// Made at the first request; a child of this one.
    [[nodiscard]] NxFolderMediaManagerPresenter *folderManagerPresenter();
    /// Made at the first request, showing the category as the user left it; a child of this one.
    [[nodiscard]] NxMediaItemManagerPresenter *mediaItemManagerPresenter();

public Q_SLOTS:
    /// The list shows the tree's current folder.
    void slotCurrentFolderChanged();
    /// Goes to a folder in tree and list, also out of a search.
    void slotOnGotoFolder(INxFolderMedia *folder);
    /// Shows the search folder where the current folder's searches have one.
    void slotOnFilterKeywordChanged();
    /// Shows the search folder.
    void slotFilterSimilarSearchChanged();
    /// Shows the tree's current folder again.
    void slotOnExitSearchFolder();

protected:
    NxMediaCategoryPresenter(NxMediaCategoryPresenterPrivate &dd, QObject *parent);

private:
    friend class NxMediaCategoryPresenterPrivate;
    [[nodiscard]] NxMediaCategoryPresenterPrivate *d_func() const;
};
