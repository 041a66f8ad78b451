// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaTypes.h>
#include <NxVBLModel/NxVBLModelExport.h>

class INxMediaManager;

/// The media of one open project, by category. Owned by the project.
class NXVBLMODEL_EXPORT INxMediaLibrary
{
public:
    virtual ~INxMediaLibrary();

    /// The manager of a category, owned by the library; null for a category it does not have.
    [[nodiscard]] virtual INxMediaManager *mediaManager(
        NXVBLMODEL::NxMediaCategoryType category) = 0;
};
