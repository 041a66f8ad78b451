// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxCloudRequestKeys.h>

#include <array>

namespace NXVBLMODEL {

namespace {

// By NxCloudRequestParameter.
constexpr std::array<const char *, 10> Keys = {
    "request_categoryType",     "request_keyword",    "request_pageNumber",
    "request_pageSize",         "request_searchType", "request_mediaType",
    "request_classificationId", "request_ratio",      "request_similarResourceId",
    "request_folderId",
};

bool isParameter(int code)
{
    return code >= 0 && code < int(Keys.size());
}

} // namespace

QString toCloudResourceRequestParamaKey(int code)
{
    return isParameter(code) ? QString::fromLatin1(Keys[size_t(code)]) : QString();
}

int toCloudResourceRequestParamaFlag(int code)
{
    return isParameter(code) ? 1 << code : 0;
}

} // namespace NXVBLMODEL
