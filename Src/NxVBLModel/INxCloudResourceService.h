// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

#include <QList>
#include <QVariantMap>

class INxAbstractMediaItem;
class INxCloudResouceReplyObserver;
class INxFolderMedia;

/// The service that searches and delivers online resources. Owned by the engine.
class NXVBLMODEL_EXPORT INxCloudResourceService
{
public:
    virtual ~INxCloudResourceService();

    /// The installed engine's service; null when it has none.
    [[nodiscard]] static INxCloudResourceService *getInstance();

    /// Sends a request with keys of toCloudResourceRequestParamaKey(); answers its id, 0 when it
    /// cannot be sent. The observer is told on the GUI thread unless cancelled before.
    virtual quint64 request(const QVariantMap &parameters,
                            INxCloudResouceReplyObserver *observer) = 0;
    virtual void cancel(quint64 request) = 0;
    virtual void removeDownloadRecords(INxFolderMedia *folder,
                                       const QList<INxAbstractMediaItem *> &items) = 0;
};
