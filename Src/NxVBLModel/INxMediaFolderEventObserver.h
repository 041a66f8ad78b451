// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

class INxFolderMedia;

/// What happens to the folders of a category. GUI thread. Every function has an empty default.
class NXVBLMODEL_EXPORT INxMediaFolderEventObserver
{
public:
    virtual ~INxMediaFolderEventObserver();

    /// Rows `first` to `last` of `parent` are about to come.
    virtual void onBeforeAddFolderEvent(INxFolderMedia *parent, const int &first, const int &last);
    virtual void onAfterAddFolderEvent();
    /// Rows `first` to `last` of `parent` are about to go; their folders still live.
    virtual void onBeforeRemoveFolderEvent(INxFolderMedia *parent, const int &first,
                                           const int &last);
    virtual void onAfterRemoveFolderEvent();
    virtual void onBeforeMoveFolderEvent();
    virtual void onAfterMoveFolderEvent();
    /// Name or another shown state changed.
    virtual void onFolderStateChangedEvent(INxFolderMedia *folder);
};
