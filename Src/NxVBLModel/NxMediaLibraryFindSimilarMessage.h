// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxMessage.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <NxVBLModel/NxMediaTypes.h>

#include <QString>

/// Asks the panel to search for resources that look like one.
class NXVBLMODEL_EXPORT NxMediaLibraryFindSimilarMessage : public NxMessage
{
public:
    NxMediaLibraryFindSimilarMessage();
    ~NxMediaLibraryFindSimilarMessage() override;

    NXVBLMODEL::NxMediaCategoryType categoryType = NXVBLMODEL::mctNone;
    qint64 resourceId = 0;
    QString keyword; ///< Path of the picture to compare with.
};
