// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>

#include "PresenterStand.h"

/// A library presenter over scripted categories, which a test asks for first.
struct LibraryStand : PresenterStand
{
    LibraryStand() { log.follow(&presenter, QStringLiteral("library")); }

    /// The presenters of a category, followed from now on as "items" and "folders".
    NxMediaCategoryPresenter *follow(NXVBLMODEL::NxMediaCategoryType category)
    {
        NxMediaCategoryPresenter *followed = presenter.getMediaCategoryPresenter(category);
        log.follow(followed->mediaItemManagerPresenter(), QStringLiteral("items"));
        log.follow(followed->folderManagerPresenter(), QStringLiteral("folders"));
        log.take();
        return followed;
    }

    NxMediaLibraryPresenter presenter{&library, nullptr};
};
