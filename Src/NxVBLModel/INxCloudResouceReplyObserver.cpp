// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxCloudResouceReplyObserver.h>

INxCloudResouceReplyObserver::~INxCloudResouceReplyObserver() = default;

void INxCloudResouceReplyObserver::onResourceLoadReply(const ResourceLoadReplyInfo *) {}

void INxCloudResouceReplyObserver::onFetchMoreStateReply(INxFolderMedia *, NXVBLMODEL::VCGMediaType,
                                                         INxFolderMedia::FolderFetchMoreState)
{
}
