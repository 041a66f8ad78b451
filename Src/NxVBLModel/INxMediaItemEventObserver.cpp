// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxMediaItemEventObserver.h>

INxMediaItemEventObserver::~INxMediaItemEventObserver() = default;

void INxMediaItemEventObserver::onBeforeAddItemEvent(INxFolderMedia *, INxAbstractMedia *) {}

void INxMediaItemEventObserver::onAfterAddItemEvent(INxFolderMedia *, INxAbstractMedia *) {}

void INxMediaItemEventObserver::onBeforeRemoveItemEvent(INxFolderMedia *, INxAbstractMedia *) {}

void INxMediaItemEventObserver::onAfterRemoveItemEvent(INxFolderMedia *, INxAbstractMedia *) {}

void INxMediaItemEventObserver::onBeforeMoveItemEvent(INxFolderMedia *, INxFolderMedia *,
                                                      INxAbstractMedia *)
{
}

void INxMediaItemEventObserver::onAfterMoveItemEvent(INxFolderMedia *, INxFolderMedia *,
                                                     INxAbstractMedia *)
{
}

void INxMediaItemEventObserver::onRenameFolderEvent(INxFolderMedia *) {}

void INxMediaItemEventObserver::onBeforeClearItemsEvent(INxFolderMedia *) {}

void INxMediaItemEventObserver::onAfterClearItemsEvent(INxFolderMedia *) {}

void INxMediaItemEventObserver::onRenameItemEvent(INxFolderMedia *, INxAbstractMedia *) {}

void INxMediaItemEventObserver::onMediaStateChangedEvent(INxAbstractMedia *) {}

void INxMediaItemEventObserver::onDownloadProgressEvent(INxAbstractMedia *, int, qint64, qint64) {}

void INxMediaItemEventObserver::onDownloadFinishedEvent(INxAbstractMedia *, int, bool) {}

void INxMediaItemEventObserver::onFetchMoreStateChangedEvent(INxFolderMedia *,
                                                             INxFolderMedia::FolderFetchMoreState)
{
}

void INxMediaItemEventObserver::onAllMediaChangedFinishEvent(INxFolderMedia *) {}

void INxMediaItemEventObserver::onVCGDownloadLimit() {}
