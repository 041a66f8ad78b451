// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>

#include <NxCore/NxConfig.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxMediaItemManagerPresenterPrivate.h>
#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>
#include <NxVBLModel/INxMediaItemManager.h>

#include <QUuid>

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

/// Types that a service filters by.
bool isServiceType(int type)
{
    return type == mtfVideo || type == mtfPhoto || type == mtfServiceVideo
           || type == mtfServicePhoto;
}

QString newSearchId()
{
    return QUuid::createUuid().toString();
}

} // namespace

NxMediaItemViewFilter NxMediaItemManagerPresenter::getFilter() const
{
    return d_func()->filter;
}

void NxMediaItemManagerPresenter::setFilter(const NxMediaItemViewFilter &filter)
{
    NxMediaItemManagerPresenterPrivate *const own = d_func();
    if (filter == own->filter)
        return;
    own->filter = filter;
    const bool isKeywordSearch = own->filter.searchMode == esmKeyword;
    if (own->filter.reload && isServiceType(own->filter.type))
        own->reload();
    if (isKeywordSearch)
        Q_EMIT sigFilterKeywordChanged();
    else
        Q_EMIT sigFilterChanged();
}

void NxMediaItemManagerPresenter::setFilterType(const NxMediaTypeFilter &type)
{
    if (getFilter().type == type)
        return;
    NxMediaLibrarySetting::instance()->SetFilterType(categoryType(), type);
    NxMediaItemViewFilter changed = getFilter();
    d_func()->setTypeOf(&changed, type);
    const QPointer<NxMediaItemManagerPresenter> alive(this);
    setFilter(changed);
    if (alive)
        Q_EMIT sigFilterTypeChanged();
}

void NxMediaItemManagerPresenter::setFilterKeyword(const QString &keyword, ESearchMode_e mode)
{
    NxMediaItemViewFilter changed = getFilter();
    if (changed.keyword == keyword)
        return;
    const INxFolderMedia *root = itemManager() ? itemManager()->currentRoot() : nullptr;
    changed.keyword = keyword;
    changed.searchMode = mode;
    changed.searchId = keyword.isEmpty() ? QString() : newSearchId();
    changed.folderKindFlag = root && root->isSearchFolder();
    setFilter(changed);
}

void NxMediaItemManagerPresenter::setFilterSimilarResource(long long id,
                                                           NxMediaCategoryType category,
                                                           const QString &keyword, bool showBar,
                                                           bool listView)
{
    NxMediaItemViewFilter changed = getFilter();
    if (changed.similarResourceId == id && changed.similarCategory == category)
        return;
    changed.keyword.clear();
    changed.similarResourceId = id;
    changed.similarCategory = category;
    changed.showBar = showBar;
    changed.listView = listView;
    if (changed.searchMode != esmSimilar) {
        changed.searchMode = esmSimilar;
        changed.searchId = newSearchId();
    }
    if (!NxConfig::Instance()->getFindSimilarUsed())
        NxConfig::Instance()->setFindSimilarUsed(true);
    const QPointer<NxMediaItemManagerPresenter> alive(this);
    setFilter(changed);
    if (alive)
        Q_EMIT sigFilterSimilarSearchChanged();
    if (alive && showBar)
        Q_EMIT sigSetSimilarSearchBar(keyword, category);
}

void NxMediaItemManagerPresenter::clearSimilarSearch()
{
    NxMediaItemViewFilter changed = getFilter();
    if (changed.searchMode != esmSimilar)
        return;
    changed.searchMode = esmNone;
    changed.similarResourceId = 0;
    changed.similarCategory = 0;
    changed.showBar = false;
    changed.listView = false;
    changed.searchId.clear();
    setFilter(changed);
}

void NxMediaItemManagerPresenter::exitSearchFolder()
{
    Q_EMIT sigExitSearchrFolder();
}
