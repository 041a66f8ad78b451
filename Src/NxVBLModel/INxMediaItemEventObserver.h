// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/NxVBLModelExport.h>

/// What happens to the items of a category. GUI thread. Every function has an empty default.
///
/// An observer may unregister itself, or another one, while it is told of something.
class NXVBLMODEL_EXPORT INxMediaItemEventObserver
{
public:
    virtual ~INxMediaItemEventObserver();

    /// The folder does not list the item yet.
    virtual void onBeforeAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item);
    virtual void onAfterAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item);
    /// The folder still lists the item.
    virtual void onBeforeRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item);
    /// The item still lives, but may die with the event loop's next turn.
    virtual void onAfterRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item);
    virtual void onBeforeMoveItemEvent(INxFolderMedia *from, INxFolderMedia *to,
                                       INxAbstractMedia *item);
    virtual void onAfterMoveItemEvent(INxFolderMedia *from, INxFolderMedia *to,
                                      INxAbstractMedia *item);
    virtual void onRenameFolderEvent(INxFolderMedia *folder);
    /// Follows a remove event for each item that the folders inside held.
    virtual void onBeforeClearItemsEvent(INxFolderMedia *folder);
    virtual void onAfterClearItemsEvent(INxFolderMedia *folder);
    virtual void onRenameItemEvent(INxFolderMedia *folder, INxAbstractMedia *item);
    /// Facts, favourite, missing or any other shown state of the item changed.
    virtual void onMediaStateChangedEvent(INxAbstractMedia *item);
    /// `kind` is a NXVBLMODEL::NxDownloadKind; `done` and `total` are bytes.
    virtual void onDownloadProgressEvent(INxAbstractMedia *item, int kind, qint64 done,
                                         qint64 total);
    virtual void onDownloadFinishedEvent(INxAbstractMedia *item, int kind, bool failed);
    virtual void onFetchMoreStateChangedEvent(INxFolderMedia *folder,
                                              INxFolderMedia::FolderFetchMoreState state);
    /// A batch of changes to the folder's media is over.
    virtual void onAllMediaChangedFinishEvent(INxFolderMedia *folder);
    /// The stock provider's daily download limit is reached.
    virtual void onVCGDownloadLimit();
};
