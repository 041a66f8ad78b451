// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

#include <QList>
#include <QString>

class INxAbstractMediaItem;

/// Makes smaller copies of heavy media to edit with. Owned by the engine.
class NXVBLMODEL_EXPORT INxMediaProxyService
{
public:
    virtual ~INxMediaProxyService();

    /// Height of proxies in px.
    virtual void setResolution(int resolution) = 0;
    virtual void createProxyFile(const QList<INxAbstractMediaItem *> &items) = 0;
    virtual void stopCreateProxyFile(const QList<INxAbstractMediaItem *> &items) = 0;
    /// True when `directory` has room for the items' proxies; both sizes in MB (1024 x 1024 B).
    virtual bool checkFreeSpace(const QString &directory,
                                const QList<INxAbstractMediaItem *> &items, double &neededMB,
                                double &remainMB) = 0;
};

/// The installed engine's service; null when it has none.
[[nodiscard]] NXVBLMODEL_EXPORT INxMediaProxyService *getMediaProxyService();
