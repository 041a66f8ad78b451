// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxMediaCategoryPresenterPrivate.h>

#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaManager.h>

NxMediaCategoryPresenterPrivate::NxMediaCategoryPresenterPrivate(INxMediaManager *mediaManager)
    : manager(mediaManager)
{
}

NxMediaCategoryPresenterPrivate::~NxMediaCategoryPresenterPrivate() = default;

INxFolderMedia *NxMediaCategoryPresenterPrivate::enabledSearchFolder() const
{
    INxFolderMediaManager *folders = manager ? manager->folderManager() : nullptr;
    INxFolderMedia *search = folders ? folders->searchFolder() : nullptr;
    if (search)
        search->setSearchEnabled(true);
    return search;
}
