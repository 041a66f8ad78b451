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

/// Asks the panel to import files into a folder, named by id and perhaps a subfolder.
class NXVBLMODEL_EXPORT NxMediaLibraryImportMediaMessage : public NxMessage
{
public:
    NxMediaLibraryImportMediaMessage();
    ~NxMediaLibraryImportMediaMessage() override;

    NXVBLMODEL::NxMediaCategoryType categoryType = NXVBLMODEL::mctMedia;
    int folderId = NXVBLMODEL::fidRoot;
    QString subFolderName; ///< Empty: the folder itself.
    int importKind = NXVBLMODEL::mitFiles; ///< NXVBLMODEL::NxMediaImportType.
    QStringList files;
    bool flag1 = false; ///< Passed on to the import unread.
    bool flag2 = false; ///< Passed on to the import unread.
    QList<INxAbstractMediaItem *> result; ///< Written: what was made. Not owned.
};
