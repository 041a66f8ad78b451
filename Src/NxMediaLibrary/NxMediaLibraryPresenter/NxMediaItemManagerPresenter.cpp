// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>

#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxMediaItemManagerPresenterPrivate.h>
#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/INxMediaItemStrategy.h>

#include <algorithm>
#include <iterator>

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

struct SortAlias
{
    NxMediaItemViewSortBy key;
    const char *text;
};

constexpr SortAlias SortAliases[] = {
    {sbNone, "None"},
    {sbName, "Name"},
    {sbDuration, "Duration"},
    {sbDateCreated, "DateCreated"},
    {sbUsed, "Used"},
    {sbFrameRate, "FrameRate"},
    {sbInPoint, "InPoint"},
    {sbOutPoint, "OutPoint"},
    {sbFavourite, "Favourite"},
    {sbFavouriteTime, "FavouriteTime"},
    {sbDownloadTime, "DownloadTime"},
    {sbResolution, "Resolution"},
    {sbAudioInfo, "AudioInfo"},
    {sbType, "Type"},
    {sbNew, "New"},
    {sbCategory, "Category"},
    {sbCount, "Count"},
};

} // namespace

NxMediaItemManagerPresenter::NxMediaItemManagerPresenter(INxMediaItemManager *manager,
                                                         QObject *parent)
    : NxMediaItemManagerPresenter(*new NxMediaItemManagerPresenterPrivate(manager), parent)
{
}

NxMediaItemManagerPresenter::NxMediaItemManagerPresenter(NxMediaItemManagerPresenterPrivate &dd,
                                                         QObject *parent)
    : NxBaseMediaPresenter(dd, parent)
{
}

NxMediaItemManagerPresenter::~NxMediaItemManagerPresenter() = default;

NxMediaItemManagerPresenterPrivate *NxMediaItemManagerPresenter::d_func() const
{
    return static_cast<NxMediaItemManagerPresenterPrivate *>(NxBaseMediaPresenter::d_func());
}

INxMediaItemManager *NxMediaItemManagerPresenter::itemManager() const
{
    return d_func()->manager();
}

NxMediaCategoryType NxMediaItemManagerPresenter::categoryType() const
{
    return d_func()->category();
}

void NxMediaItemManagerPresenter::loadViewState()
{
    NxMediaItemManagerPresenterPrivate *const own = d_func();
    const NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    const NxMediaCategoryType category = categoryType();
    own->viewMode = setting->GetViewType(category);
    own->sort = {setting->GetSortBy(category), setting->GetSortByOrder(category)};
    own->group = {setting->GetGroupBy(category), setting->GetGroupByOrder(category), nullptr};
    own->setTypeOf(&own->filter, setting->GetFilterType(category));
}

// The shown folder

INxFolderMedia *NxMediaItemManagerPresenter::folder() const
{
    return d_func()->rootFolder;
}

INxFolderMedia *NxMediaItemManagerPresenter::getCategoryTreeSelectedFolder() const
{
    return d_func()->treeSelectedFolder;
}

void NxMediaItemManagerPresenter::setFolder(INxFolderMedia *folder)
{
    NxMediaItemManagerPresenterPrivate *const own = d_func();
    const QPointer<NxMediaItemManagerPresenter> alive(this);
    const QPointer<INxFolderMedia> wanted(folder);
    const bool leavesStockFolder = categoryType() == mctVCGStock && own->rootFolder && folder
                                   && folder != own->rootFolder && !folder->isSearchFolder();
    if (leavesStockFolder)
        own->changeFolderFilter(own->rootFolder, folder);
    if (!alive || !wanted)
        return;
    if (folder->isSearchFolder()) {
        own->rootFolder = folder;
        own->rootChanged();
        own->searchFolderEntered();
    } else if (folder->isCategoryTreeFolder()) {
        own->rootFolder = folder;
        own->treeSelectedFolder = folder;
        own->rootChanged();
        own->treeFolderEntered();
    } else if (own->rootFolder != folder) {
        own->rootFolder = folder;
        own->rootChanged();
        own->treeSelectedFolder = wanted;
        own->reload();
    } else {
        return;
    }
    Q_EMIT sigRootFolderChanged();
}

void NxMediaItemManagerPresenter::gotoFolder(INxFolderMedia *folder)
{
    Q_EMIT sigGotoFolder(folder);
}

// How it is shown

NxMediaItemViewMode NxMediaItemManagerPresenter::viewMode() const
{
    return d_func()->viewMode;
}

void NxMediaItemManagerPresenter::setViewMode(const NxMediaItemViewMode &mode)
{
    if (d_func()->viewMode == mode)
        return;
    const NxMediaItemViewMode wanted = mode;
    for (int category = mctMedia; category < MediaCategoryCount; ++category)
        NxMediaLibrarySetting::instance()->SetViewType(NxMediaCategoryType(category), wanted);
    d_func()->viewMode = wanted;
    Q_EMIT sigViewModeChanged();
}

NxMediaItemViewSort NxMediaItemManagerPresenter::getSortBy() const
{
    return d_func()->sort;
}

void NxMediaItemManagerPresenter::setSortBy(const NxMediaItemViewSort &sort)
{
    NxMediaItemManagerPresenterPrivate *const own = d_func();
    const NxMediaItemViewSort wanted = sort;
    if (wanted != own->sort) {
        NxMediaLibrarySetting::instance()->SetSortBy(categoryType(), wanted.sortBy);
        NxMediaLibrarySetting::instance()->SetSortByOrder(categoryType(), wanted.order);
        own->sort = wanted;
    }
    if (wanted.sortBy == sbNone)
        return;
    const QVector<NxMediaRef> selected = own->watched(own->selectedItems);
    const QPointer<NxMediaItemManagerPresenter> alive(this);
    Q_EMIT sigSortByChanged();
    if (alive)
        selectItems(own->living(selected));
}

QString NxMediaItemManagerPresenter::getMediaItemSortByAlias(const NxMediaItemViewSort &sort) const
{
    const auto *alias =
        std::find_if(std::begin(SortAliases), std::end(SortAliases),
                     [&sort](const SortAlias &it) { return it.key == sort.sortBy; });
    return alias == std::end(SortAliases) ? QString() : QString::fromLatin1(alias->text);
}

QString NxMediaItemManagerPresenter::getMediaItemSortOrderAlias(
    const NxMediaItemViewSort &sort) const
{
    return sort.order == soASC ? QStringLiteral("asc") : QStringLiteral("desc");
}

NxMediaItemViewGroup NxMediaItemManagerPresenter::getGroupBy() const
{
    return d_func()->group;
}

void NxMediaItemManagerPresenter::setGroupBy(const NxMediaItemViewGroup &group)
{
    NxMediaItemViewGroup &held = d_func()->group;
    if (held.groupBy == group.groupBy && held.order == group.order)
        return;
    NxMediaLibrarySetting::instance()->SetGroupBy(categoryType(), group.groupBy);
    NxMediaLibrarySetting::instance()->SetGroupByOrder(categoryType(), group.order);
    held = group;
    Q_EMIT sigGroupByChanged();
}

// The selection

QList<INxAbstractMedia *> NxMediaItemManagerPresenter::selectedItems() const
{
    return d_func()->selectedItems;
}

void NxMediaItemManagerPresenter::setSelectedItems(const QList<INxAbstractMedia *> &items)
{
    if (d_func()->selectedItems == items)
        return;
    d_func()->selectedItems = items;
    Q_EMIT sigSelectItemsChanged();
}

bool NxMediaItemManagerPresenter::multiSelected() const
{
    return d_func()->selectedItems.size() > 1;
}

void NxMediaItemManagerPresenter::selectAll()
{
    Q_EMIT sigSelectAll();
}

void NxMediaItemManagerPresenter::clearSelection()
{
    Q_EMIT sigClearSelection();
}

void NxMediaItemManagerPresenter::selectItems(const QList<INxAbstractMedia *> &items)
{
    Q_EMIT sigSelectItems(items);
}

// Media come and go

QList<INxAbstractMediaItem *> NxMediaItemManagerPresenter::importMeidas(
    const NxMediaImportParam &param)
{
    QList<INxAbstractMediaItem *> medias;
    const QPointer<NxMediaItemManagerPresenter> alive(this);
    Q_EMIT sigImportMedia(param, medias, true);
    if (alive && !medias.isEmpty())
        setSortBy(getSortBy());
    return medias;
}

INxAbstractMediaItem *NxMediaItemManagerPresenter::addCustomMediaItem(
    const NxMediaAddCustomParam &param)
{
    INxAbstractMediaItem *made = nullptr;
    Q_EMIT sigAddCustomMediaItem(param, made);
    return made;
}

bool NxMediaItemManagerPresenter::addMediaItems(const QList<INxAbstractMedia *> &items)
{
    return itemManager() && itemManager()->addMediaItems(items);
}

bool NxMediaItemManagerPresenter::addMediaItems(INxFolderMedia *folder,
                                                const QList<INxAbstractMedia *> &items)
{
    return itemManager() && itemManager()->addMediaItems(folder, items);
}

bool NxMediaItemManagerPresenter::renameMediaItem(INxAbstractMedia *item, const QString &name)
{
    if (!itemManager() || !itemManager()->renameMediaItem(item, name))
        return false;
    setSortBy(getSortBy());
    return true;
}

bool NxMediaItemManagerPresenter::removeMediaItems(INxFolderMedia *folder,
                                                   const QList<INxAbstractMedia *> &items)
{
    return d_func()->removeMediaItems(folder, items);
}

void NxMediaItemManagerPresenter::redownloadMedia(const QList<INxAbstractMedia *> &items)
{
    Q_EMIT sigRedownloadMedia(items);
}

void NxMediaItemManagerPresenter::resetResourceLoader()
{
    if (itemManager())
        itemManager()->resetResourceLoader(folder());
}

void NxMediaItemManagerPresenter::setMediaItemStrategy(
    std::shared_ptr<INxMediaItemStrategy> strategy)
{
    std::shared_ptr<INxMediaItemStrategy> &held = d_func()->strategy;
    if (held)
        held->detach();
    held = std::move(strategy);
    if (held)
        held->attach(this);
}
