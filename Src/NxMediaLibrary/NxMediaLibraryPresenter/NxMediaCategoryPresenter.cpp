// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>

#include <NxCore/NxLog.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxMediaCategoryPresenterPrivate.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxMediaManager.h>

#include <algorithm>
#include <array>

using namespace NXMEDIALIBRARY;

namespace {

bool isSearchable(const INxFolderMedia *folder)
{
    return folder->isSupportKeywordSearch() || folder->isSupportOnlineSearch()
           || folder->isSupportSimilarSearch();
}

/// Folders whose service lists everything of a choice, with a keyword or without.
constexpr std::array<int, 3> ChoiceFolders = {
    NXVBLMODEL::fkStockImageChoice, NXVBLMODEL::fkStockAudioChoice, NXVBLMODEL::fkStockVideoChoice};

bool wantsSearchFolder(const INxFolderMedia *current, const NxMediaItemViewFilter &filter)
{
    if (std::find(ChoiceFolders.begin(), ChoiceFolders.end(), current->kind())
        != ChoiceFolders.end())
        return true;
    const bool isStockSearch =
        filter.searchMode == esmStockKeyword || filter.searchMode == esmStockClassify;
    return current->kind() == NXVBLMODEL::fkStockHome && isStockSearch && !filter.keyword.isEmpty();
}

} // namespace

NxMediaCategoryPresenter::NxMediaCategoryPresenter(INxMediaManager *manager, QObject *parent)
    : NxMediaCategoryPresenter(*new NxMediaCategoryPresenterPrivate(manager), parent)
{
}

NxMediaCategoryPresenter::NxMediaCategoryPresenter(NxMediaCategoryPresenterPrivate &dd,
                                                   QObject *parent)
    : NxBaseMediaPresenter(dd, parent)
{
}

NxMediaCategoryPresenter::~NxMediaCategoryPresenter() = default;

NxMediaCategoryPresenterPrivate *NxMediaCategoryPresenter::d_func() const
{
    return static_cast<NxMediaCategoryPresenterPrivate *>(NxBaseMediaPresenter::d_func());
}

INxMediaManager *NxMediaCategoryPresenter::mediaManager() const
{
    return d_func()->manager;
}

NxFolderMediaManagerPresenter *NxMediaCategoryPresenter::folderManagerPresenter()
{
    NxFolderMediaManagerPresenter *&presenter = d_func()->folderPresenter;
    if (presenter)
        return presenter;
    INxMediaManager *manager = mediaManager();
    presenter =
        new NxFolderMediaManagerPresenter(manager ? manager->folderManager() : nullptr, this);
    connect(presenter, &NxFolderMediaManagerPresenter::sigCurrentFolderChanged, this,
            &NxMediaCategoryPresenter::slotCurrentFolderChanged);
    return presenter;
}

NxMediaItemManagerPresenter *NxMediaCategoryPresenter::mediaItemManagerPresenter()
{
    using Items = NxMediaItemManagerPresenter;
    using Category = NxMediaCategoryPresenter;
    Items *&presenter = d_func()->itemPresenter;
    if (presenter)
        return presenter;
    INxMediaManager *manager = mediaManager();
    presenter = new Items(manager ? manager->itemManager() : nullptr, this);
    presenter->loadViewState();
    connect(presenter, &Items::sigFilterSimilarSearchChanged, this,
            &Category::slotFilterSimilarSearchChanged);
    connect(presenter, &Items::sigFilterKeywordChanged, this,
            &Category::slotOnFilterKeywordChanged);
    connect(presenter, &Items::sigExitSearchrFolder, this, &Category::slotOnExitSearchFolder);
    connect(presenter, &Items::sigGotoFolder, this, &Category::slotOnGotoFolder);
    return presenter;
}

void NxMediaCategoryPresenter::slotCurrentFolderChanged()
{
    INxFolderMedia *current = folderManagerPresenter()->currentFolder();
    if (!current) {
        NX_LOG_INFO("current folder is nullptr");
        return;
    }
    mediaItemManagerPresenter()->setFolder(current);
}

void NxMediaCategoryPresenter::slotOnGotoFolder(INxFolderMedia *folder)
{
    if (!folder) {
        NX_LOG_ERROR("folder is nullptr");
        return;
    }
    if (folder != folderManagerPresenter()->currentFolder()) {
        folderManagerPresenter()->setCurrentFolder(folder);
        return;
    }
    const INxFolderMedia *shown = mediaItemManagerPresenter()->folder();
    if (shown && shown->isSearchFolder())
        slotOnExitSearchFolder();
}

void NxMediaCategoryPresenter::slotFilterSimilarSearchChanged()
{
    INxFolderMedia *search = d_func()->enabledSearchFolder();
    if (!search) {
        NX_LOG_ERROR("search folder is nullptr");
        return;
    }
    mediaItemManagerPresenter()->setFolder(search);
}

void NxMediaCategoryPresenter::slotOnFilterKeywordChanged()
{
    const INxFolderMedia *current = folderManagerPresenter()->currentFolder();
    if (!current || !isSearchable(current))
        return;
    if (!wantsSearchFolder(current, mediaItemManagerPresenter()->getFilter())) {
        slotOnExitSearchFolder();
        return;
    }
    INxFolderMedia *search = d_func()->enabledSearchFolder();
    if (!search) {
        NX_LOG_ERROR("search folder is nullptr");
        return;
    }
    mediaItemManagerPresenter()->setFolder(search);
}

void NxMediaCategoryPresenter::slotOnExitSearchFolder()
{
    INxFolderMedia *current = folderManagerPresenter()->currentFolder();
    if (!current) {
        NX_LOG_ERROR("current folder is nullptr");
        return;
    }
    mediaItemManagerPresenter()->setFolder(current);
}
