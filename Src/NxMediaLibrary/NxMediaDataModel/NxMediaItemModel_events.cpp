// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What happens to the media library, and how the rows follow it.

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>

#include <NxCore/NxLog.h>
#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/NxObserverConnector.h>

#include <QTimer>

#include <algorithm>

#include "NxResetScope_p.h"

using namespace NXMEDIALIBRARY;

namespace {

using ItemConnector = NxObserverConnectorT<INxMediaItemManager, INxMediaItemEventObserver>;

bool isLightDownload(int kind)
{
    return kind == NXVBLMODEL::dkIcon || kind == NXVBLMODEL::dkPreview;
}

bool isContentDownload(int kind)
{
    return kind >= NXVBLMODEL::dkFirstContent && kind <= NXVBLMODEL::dkLastContent;
}

} // namespace

void NxMediaItemModel::subscribeMediaItemManager(INxMediaItemManager *manager)
{
    auto connector = std::make_unique<ItemConnector>(manager, this);
    if (connector->isConnected())
        m_connectors.push_back(std::move(connector));
}

void NxMediaItemModel::unSubscribeMediaItemManager()
{
    m_connectors.clear();
    m_data->setChangesTold(false);
}

bool NxMediaItemModel::checkFolder(INxFolderMedia *folder) const
{
    const INxFolderMedia *shown = this->folder();
    return folder == shown || (shown && folder && shown->contains(folder, true));
}

// Changes may come while another is under way; views are told of one reset around them all.
void NxMediaItemModel::beginChange()
{
    const bool isFollowing = std::any_of(
        m_connectors.begin(), m_connectors.end(),
        [](const std::unique_ptr<NxObserverConnector> &one) { return one->isConnected(); });
    m_data->setChangesTold(isFollowing);
    m_hasChangedSince = true;
    if (m_openResets++ == 0)
        beginResetModel();
}

void NxMediaItemModel::endChange()
{
    if (--m_openResets > 0)
        return;
    endResetModel();
    m_idle->start();
}

bool NxMediaItemModel::isOpen(const OpenChange &change) const
{
    return std::find(m_openChanges.begin(), m_openChanges.end(), change) != m_openChanges.end();
}

void NxMediaItemModel::openChange(const OpenChange &change)
{
    m_openChanges.push_back(change);
    beginChange();
}

void NxMediaItemModel::closeChange(const OpenChange &change)
{
    m_openChanges.erase(std::find(m_openChanges.begin(), m_openChanges.end(), change));
    endChange();
}

void NxMediaItemModel::onBeforeAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item)
{
    if (!checkFolder(folder))
        return;
    if (isOpen({folder, item, false})) {
        NX_LOG_INFO("the media is being added already");
        return;
    }
    openChange({folder, item, false});
    m_data->append(item, folder);
}

void NxMediaItemModel::onAfterAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item)
{
    const bool concerns = checkFolder(folder);
    if (!isOpen({folder, item, false})) {
        if (!concerns || !m_data->lacks(item))
            return;
        NX_LOG_INFO("the media was not announced"); // The folder was not shown yet.
        openChange({folder, item, false});
    }
    if (concerns) {
        m_data->appended(item);
        Q_EMIT sigAfterAddItem(folder, item);
    }
    closeChange({folder, item, false});
}

void NxMediaItemModel::onBeforeRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item)
{
    if (!item || !checkFolder(folder))
        return;
    takeOut(item);
    m_leaving = item;
    m_hasChangedSince = false;
}

void NxMediaItemModel::takeOut(INxAbstractMedia *item)
{
    const QList<int> standing = rows(item);
    if (standing.isEmpty()) {
        m_data->remove(item);
        return;
    }
    const NxResetScope scope(this);
    for (const int row : standing) {
        Q_EMIT sigRemoveItem(QModelIndex(), row, row);
        m_data->remove(item);
    }
}

// Rows that were made while the folder still listed the media show it again.
void NxMediaItemModel::onAfterRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item)
{
    if (item && item == m_leaving && m_hasChangedSince && checkFolder(folder))
        takeOut(item);
    m_leaving = nullptr;
}

void NxMediaItemModel::onAfterMoveItemEvent(INxFolderMedia *from, INxFolderMedia *to,
                                            INxAbstractMedia *item)
{
    Q_UNUSED(item)
    if (checkFolder(from) || checkFolder(to))
        m_data->listingChanged();
}

void NxMediaItemModel::onBeforeClearItemsEvent(INxFolderMedia *folder)
{
    if (folder != this->folder() || isOpen({folder, nullptr, true}))
        return;
    openChange({folder, nullptr, true});
    m_data->clear();
}

void NxMediaItemModel::onAfterClearItemsEvent(INxFolderMedia *folder)
{
    if (!isOpen({folder, nullptr, true}))
        return;
    if (folder == this->folder() && rowCount() > 0)
        m_data->updateMediaItems(); // Made while the folder was not empty yet.
    closeChange({folder, nullptr, true});
}

void NxMediaItemModel::onRenameItemEvent(INxFolderMedia *folder, INxAbstractMedia *item)
{
    Q_UNUSED(folder)
    mediaDataChanged(item);
}

void NxMediaItemModel::onMediaStateChangedEvent(INxAbstractMedia *item)
{
    mediaDataChanged(item);
}

void NxMediaItemModel::mediaDataChanged(INxAbstractMedia *item)
{
    if (!item)
        return;
    m_data->mediaChanged(item);
    const QList<int> standing = rows(item);
    for (const int row : standing) {
        const QModelIndex changed = index(row, 0);
        if (changed.isValid())
            Q_EMIT dataChanged(changed, changed);
    }
}

void NxMediaItemModel::onDownloadProgressEvent(INxAbstractMedia *item, int kind, qint64 done,
                                               qint64 total)
{
    Q_UNUSED(done)
    Q_UNUSED(total)
    if (isContentDownload(kind))
        mediaDataChanged(item);
}

void NxMediaItemModel::onDownloadFinishedEvent(INxAbstractMedia *item, int kind, bool failed)
{
    if (isLightDownload(kind) && !failed)
        mediaDataChanged(item);
    if (!isContentDownload(kind))
        return;
    mediaDataChanged(item);
    if (failed)
        Q_EMIT sigDownloadFailed(item);
    else
        Q_EMIT sigDownloadFinished(item);
}

void NxMediaItemModel::onFetchMoreStateChangedEvent(INxFolderMedia *folder,
                                                    INxFolderMedia::FolderFetchMoreState state)
{
    if (folder == this->folder())
        Q_EMIT sigFetchMoreStateChanged(state);
    else
        NX_LOG_INFO("fetchMore folder is changed");
}

void NxMediaItemModel::onAllMediaChangedFinishEvent(INxFolderMedia *folder)
{
    INxFolderMedia *shown = this->folder();
    if (shown && !checkFolder(folder))
        return;
    if (INxFolderMedia *changed = shown ? shown : folder)
        reloadChanged(changed);
}

bool NxMediaItemModel::keepsServiceOrder(const INxFolderMedia *folder)
{
    const INxFolderMedia *owner = folder ? folder->owner() : nullptr;
    return owner && owner->holdsMediaType(NXVBLMODEL::fkOnline)
           && !folder->isKind(NXVBLMODEL::fkCustom)
           && !folder->holdsMediaType(NXVBLMODEL::fkRecent);
}

void NxMediaItemModel::reloadChanged(INxFolderMedia *folder)
{
    if (folder->isSearchResult()) {
        if (m_data->getFilter().searchMode != esmSimilar)
            return;
        const NxResetScope scope(this);
        m_data->reLoadMediaInSimilarSearch(folder);
        return;
    }
    if (!folder->isLoaded())
        return;
    const bool before = isSortEnable();
    const bool sorts = !keepsServiceOrder(folder);
    setSortEnable(sorts);
    load(folder);
    setSortEnable(sorts && before);
}

void NxMediaItemModel::onVCGDownloadLimit()
{
    Q_EMIT siVCGDownloadLimit();
}
