// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxMessage.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <NxVBLModel/NxMediaTypes.h>

#include <QList>
#include <QString>
#include <QStringList>

class INxAbstractMediaItem;

/// Asks the panel to import what was exported from clips, into a folder named by its name.
class NXVBLMODEL_EXPORT NxClipExportImportMediaMessage : public NxMessage
{
public:
    NxClipExportImportMediaMessage();
    ~NxClipExportImportMediaMessage() override;

    NXVBLMODEL::NxMediaCategoryType categoryType = NXVBLMODEL::mctMedia;
    QString folderName; ///< A child of the category's first section; made when missing.
    int importKind = NXVBLMODEL::mitFiles; ///< NXVBLMODEL::NxMediaImportType.
    QStringList files;
    bool flag1 = false; ///< Passed on to the import unread.
    bool flag2 = false; ///< Passed on to the import unread.
    QList<INxAbstractMediaItem *> result; ///< Written: what was made. Not owned.
};
