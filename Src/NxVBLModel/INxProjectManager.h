// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

class INxProject;

/// Knows the project that is open. One project is current at a time.
class NXVBLMODEL_EXPORT INxProjectManager
{
public:
    virtual ~INxProjectManager();

    /// Never null; answers for whichever engine is installed.
    [[nodiscard]] static INxProjectManager *getInstance();

    /// Null when no project is open, or no engine is installed.
    [[nodiscard]] virtual INxProject *currentProject() = 0;
};
