// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

#include <QString>

class INxAbstractMediaItem;
class INxFolderMedia;

/// Notes what the user did with cloud resources. Owned by the engine.
class NXVBLMODEL_EXPORT INxCloudResourceUserActionCollector
{
public:
    virtual ~INxCloudResourceUserActionCollector();

    /// The installed engine's collector; null when it has none.
    [[nodiscard]] static INxCloudResourceUserActionCollector *getInstance();

    /// Names from the section down to the folder.
    [[nodiscard]] virtual QString catalogNamePath(INxFolderMedia *folder) = 0;
    /// Ids from the section down to the folder.
    [[nodiscard]] virtual QString catalogIdPath(INxFolderMedia *folder) = 0;
    [[nodiscard]] virtual QString catalogType(INxFolderMedia *folder) = 0;
    /// Takes note of a finished download.
    virtual void collectDownload(INxAbstractMediaItem *item) = 0;
};
