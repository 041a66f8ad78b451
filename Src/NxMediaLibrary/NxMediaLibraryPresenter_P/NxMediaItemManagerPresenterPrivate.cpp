// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxMediaItemManagerPresenterPrivate.h>

#include <NxCore/INxUndoStack.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/INxMediaItemStrategy.h>

#include <QSet>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace NXMEDIALIBRARY;

namespace {

/// What a stock folder shows first after one in which the user saw this type.
constexpr std::pair<int, int> FreshTypes[] = {
    {mtfVideo, mtfAudio}, {mtfPhoto, mtfVideo}, {mtfAudio, mtfPhoto}};

int freshType(int type)
{
    for (const auto &[before, fresh] : FreshTypes) {
        if (type == before)
            return fresh;
    }
    return mtfAll;
}

struct StockType
{
    int type;
    NXVBLMODEL::VCGMediaType stock;
};

constexpr StockType StockTypes[] = {{mtfVideo, NXVBLMODEL::vmtVideo},
                                    {mtfPhoto, NXVBLMODEL::vmtImage},
                                    {mtfAudio, NXVBLMODEL::vmtAudio}};

} // namespace

NxMediaItemManagerPresenterPrivate::NxMediaItemManagerPresenterPrivate(INxMediaItemManager *manager)
    : itemManager(manager),
      connector(
          std::make_unique<NxObserverConnectorT<INxMediaItemManager, INxMediaItemEventObserver>>(
              manager, this)),
      m_managerLife(manager ? manager->lifeToken() : std::weak_ptr<void>())
{
}

NxMediaItemManagerPresenterPrivate::~NxMediaItemManagerPresenterPrivate()
{
    QObject::disconnect(m_replayEnd);
    if (strategy)
        strategy->detach();
}

NxMediaItemManagerPresenter *NxMediaItemManagerPresenterPrivate::q() const
{
    return static_cast<NxMediaItemManagerPresenter *>(q_ptr);
}

INxMediaItemManager *NxMediaItemManagerPresenterPrivate::manager() const
{
    return m_managerLife.expired() ? nullptr : itemManager;
}

NXVBLMODEL::NxMediaCategoryType NxMediaItemManagerPresenterPrivate::category() const
{
    return manager() ? manager()->categoryType() : NXVBLMODEL::mctNone;
}

// The shown folder

void NxMediaItemManagerPresenterPrivate::refreshListing()
{
    if (manager() && rootFolder)
        manager()->refresh(rootFolder);
}

void NxMediaItemManagerPresenterPrivate::reload()
{
    refreshListing();
}

void NxMediaItemManagerPresenterPrivate::searchFolderEntered()
{
    refreshListing();
}

void NxMediaItemManagerPresenterPrivate::treeFolderEntered()
{
    refreshListing();
}

void NxMediaItemManagerPresenterPrivate::rootChanged()
{
    refreshListing();
}

void NxMediaItemManagerPresenterPrivate::changeFolderFilter(INxFolderMedia *from,
                                                            INxFolderMedia *to)
{
    folderFilters.insert(from, {from, filter});
    const auto known = folderFilters.constFind(to);
    if (known != folderFilters.constEnd() && known->folder) {
        const NxMediaItemViewFilter remembered = known->filter;
        q()->setFilter(remembered);
        return;
    }
    NxMediaItemViewFilter fresh;
    fresh.type = freshType(filter.type);
    fresh.mediaType = filter.mediaType;
    q()->setFilter(fresh);
}

void NxMediaItemManagerPresenterPrivate::setTypeOf(NxMediaItemViewFilter *filter,
                                                   NxMediaTypeFilter type)
{
    const auto *stock = std::find_if(std::begin(StockTypes), std::end(StockTypes),
                                     [type](const StockType &it) { return it.type == type; });
    filter->type = type;
    filter->mediaType = stock == std::end(StockTypes) ? NXVBLMODEL::vmtNone : stock->stock;
}

// The selection

void NxMediaItemManagerPresenterPrivate::deselectIf(
    const std::function<bool(INxAbstractMedia *)> &deselects)
{
    const auto kept = std::remove_if(selectedItems.begin(), selectedItems.end(), deselects);
    if (kept == selectedItems.end())
        return;
    selectedItems.erase(kept, selectedItems.end());
    Q_EMIT q()->sigSelectItemsChanged();
}

void NxMediaItemManagerPresenterPrivate::deselect(const QList<INxAbstractMedia *> &medias)
{
    const QSet<INxAbstractMedia *> gone(medias.begin(), medias.end());
    deselectIf([&gone](INxAbstractMedia *selected) { return gone.contains(selected); });
}

bool NxMediaItemManagerPresenterPrivate::isShown(INxFolderMedia *folder) const
{
    return rootFolder && (rootFolder == folder || rootFolder->contains(folder, true));
}

bool NxMediaItemManagerPresenterPrivate::isGuestElsewhere(INxFolderMedia *folder,
                                                          const INxAbstractMedia *item) const
{
    const bool isGuest = item && item->parentFolder() != folder;
    return isGuest && rootFolder && !isShown(folder);
}

void NxMediaItemManagerPresenterPrivate::onBeforeRemoveItemEvent(INxFolderMedia *folder,
                                                                 INxAbstractMedia *item)
{
    if (!isGuestElsewhere(folder, item))
        deselectIf([item](INxAbstractMedia *selected) { return selected == item; });
}

void NxMediaItemManagerPresenterPrivate::onBeforeClearItemsEvent(INxFolderMedia *folder)
{
    if (!folder)
        return;
    const bool showsGuests = isShown(folder);
    deselectIf([folder, showsGuests](INxAbstractMedia *selected) {
        return selected
               && (selected->parentFolder() == folder
                   || (showsGuests && folder->containsMedia(selected, false)));
    });
}

void NxMediaItemManagerPresenterPrivate::onAfterAddItemEvent(INxFolderMedia *folder,
                                                             INxAbstractMedia *item)
{
    if (!isGuestElsewhere(folder, item) && watchesReplay())
        m_cameBack.append(item);
}

void NxMediaItemManagerPresenterPrivate::onRenameItemEvent(INxFolderMedia *, INxAbstractMedia *)
{
    if (watchesReplay())
        m_isRenamed = true;
}

bool NxMediaItemManagerPresenterPrivate::watchesReplay()
{
    INxUndoStack *stack = undoStack();
    if (!stack || !stack->isReplaying())
        return false;
    if (!m_replayEnd)
        m_replayEnd = QObject::connect(stack, &INxUndoStack::changed, q(), [this] { endReplay(); });
    return true;
}

void NxMediaItemManagerPresenterPrivate::endReplay()
{
    QObject::disconnect(m_replayEnd);
    const QPointer<NxMediaItemManagerPresenter> alive(q());
    if (std::exchange(m_isRenamed, false))
        q()->setSortBy(sort); // As after a rename: the other name has another place.
    if (alive)
        selectWhatCameBack();
}

void NxMediaItemManagerPresenterPrivate::selectWhatCameBack()
{
    const QPointer<NxMediaItemManagerPresenter> alive(q());
    QList<INxAbstractMedia *> shown;
    QSet<INxAbstractMedia *> known; // What came home and into its favourites is told twice.
    const QList<INxAbstractMedia *> cameBack = living(std::exchange(m_cameBack, {}));
    for (INxAbstractMedia *media : cameBack) {
        const bool isShownHere = rootFolder && rootFolder->containsMedia(media, true);
        if (!isShownHere || known.contains(media))
            continue;
        known.insert(media);
        shown.append(media);
    }
    if (shown.isEmpty())
        return;
    q()->setSelectedItems(shown);
    if (alive)
        q()->selectItems(shown);
}

QVector<NxMediaRef> NxMediaItemManagerPresenterPrivate::watched(
    const QList<INxAbstractMedia *> &medias)
{
    return {medias.begin(), medias.end()};
}

QList<INxAbstractMedia *> NxMediaItemManagerPresenterPrivate::living(
    const QVector<NxMediaRef> &medias)
{
    QList<INxAbstractMedia *> alive;
    alive.reserve(medias.size());
    for (const NxMediaRef &media : medias) {
        if (!media.isNull())
            alive.append(media.get());
    }
    return alive;
}
