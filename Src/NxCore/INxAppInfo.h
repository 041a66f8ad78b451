// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QString>

/// Where the application keeps things. A host may install its own answers.
class NXCORE_EXPORT INxAppInfo
{
public:
    enum PathKind : int {
        pkUserData = 12, ///< The user's data of this application; made when missing.
        pkResources = 19, ///< Files that came with the libraries, read-only.
    };

    virtual ~INxAppInfo();

    /// The answers in force; never null. GUI thread only.
    static INxAppInfo *getInstance();
    /// Puts other answers in force; null brings back the built-in ones. Not owned.
    static void setInstance(INxAppInfo *info);

    /// The absolute path of a folder by its kind, with "/" and without one at the end. Empty, with
    /// an error line in the log, for an unknown kind and for resources that are not installed.
    [[nodiscard]] virtual QString getDirectory(int pathKind) = 0;
};
