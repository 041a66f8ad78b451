// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/NxVBLModelExport.h>

struct ResourceLoadReplyInfo;

/// Told of what a cloud resource service answers. GUI thread.
class NXVBLMODEL_EXPORT INxCloudResouceReplyObserver
{
public:
    virtual ~INxCloudResouceReplyObserver();

    /// The reply lives for the call.
    virtual void onResourceLoadReply(const ResourceLoadReplyInfo *reply);
    virtual void onFetchMoreStateReply(INxFolderMedia *folder, NXVBLMODEL::VCGMediaType mediaType,
                                       INxFolderMedia::FolderFetchMoreState state);
};
