// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxMessage.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <NxVBLModel/NxMediaTypes.h>

#include <QString>

/// Asks the panel to remove a media.
class NXVBLMODEL_EXPORT NxMediaLibraryRemoveMediaMessage : public NxMessage
{
public:
    NxMediaLibraryRemoveMediaMessage();
    ~NxMediaLibraryRemoveMediaMessage() override;

    NXVBLMODEL::NxMediaCategoryType categoryType = NXVBLMODEL::mctMedia;
    int folderId = NXVBLMODEL::fidRoot;
    QString mediaId; ///< INxAbstractMedia::mediaId().
};
