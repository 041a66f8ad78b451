// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxBaseMediaPresenterPrivate.h>

class INxFolderMedia;
class INxMediaManager;
class NxFolderMediaManagerPresenter;
class NxMediaItemManagerPresenter;

class NXMEDIALIBRARY_TEST_EXPORT NxMediaCategoryPresenterPrivate
    : public NxBaseMediaPresenterPrivate
{
public:
    explicit NxMediaCategoryPresenterPrivate(INxMediaManager *mediaManager);
    ~NxMediaCategoryPresenterPrivate() override;

    /// The folder that lists what a search finds, switched on; null when there is none.
    [[nodiscard]] INxFolderMedia *enabledSearchFolder() const;

    INxMediaManager *manager = nullptr; // Not owned.
    NxFolderMediaManagerPresenter *folderPresenter = nullptr; // A child of the presenter.
    NxMediaItemManagerPresenter *itemPresenter = nullptr; // A child of the presenter.
};
