// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxFolderMedia.h>

/// What a resource service answers to a search or to the request for a page.
struct ResourceLoadReplyInfo
{
    INxFolderMedia *folder = nullptr; ///< Where the result is listed. Not owned.
    QList<INxAbstractMedia *> items; ///< Not owned.
    QList<INxAbstractMedia *> sameSeries; ///< Of a similar search: what belongs to one series.
    int pageNo = 0;
    QString algorithm;
    QString keyword;
    QString sessionId;
    int searchType = 0;
    INxFolderMedia::FolderFetchMoreState state = INxFolderMedia::FetchMoreNone;
};
