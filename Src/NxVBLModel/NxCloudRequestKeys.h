// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

#include <QString>

namespace NXVBLMODEL {

/// What a request to the cloud resource service can carry.
enum NxCloudRequestParameter : int {
    crpCategoryType = 0,
    crpKeyword = 1,
    crpPageNumber = 2,
    crpPageSize = 3,
    crpSearchType = 4,
    crpMediaType = 5,
    crpClassificationId = 6,
    crpRatio = 7,
    crpSimilarResourceId = 8,
    crpFolderId = 9,
};

/// The request's key for a parameter, "request_categoryType" for the category; empty for a code
/// that is none.
[[nodiscard]] NXVBLMODEL_EXPORT QString toCloudResourceRequestParamaKey(int code);

/// The parameter's bit in the request's mask of what is set; 0 for a code that is none.
[[nodiscard]] NXVBLMODEL_EXPORT int toCloudResourceRequestParamaFlag(int code);

} // namespace NXVBLMODEL
