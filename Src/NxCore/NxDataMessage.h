// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxMessage.h>

/// Tells the panel that the user changed the proxy settings.
class NXCORE_EXPORT NxDataMessage : public NxMessage
{
public:
    NxDataMessage(bool createProxyNow, bool resolutionWasChanged);
    ~NxDataMessage() override;

    const bool createProxy; ///< Make proxies of all media now.
    const bool resolutionChanged; ///< Proxies made from now on have another size.
};
