// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QString>

#include <functional>

class QUrl;

/// What the user's desktop does for us.
class NXCORE_EXPORT NxDesktopService
{
public:
    using Opener = std::function<bool(const QUrl &url)>;

    /// Opens an address with the user's browser or other fitting program. False, with an error
    /// line in the log, when the address is empty, is none, names no scheme, or cannot be opened.
    static bool openURL(const QString &address);

    /// Opens addresses in another way from now on; an empty function brings back the desktop.
    static void setOpener(Opener opener);
};
