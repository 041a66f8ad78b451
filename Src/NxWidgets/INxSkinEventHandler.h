// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NxWidgetsExport.h>

class INxSkinEvent;

/// Hears of a new skin, to take its pictures and colours. NxSkinStyle::Attach() makes it heard;
/// it must be detached before it dies.
class NXWIDGETS_EXPORT INxSkinEventHandler
{
public:
    virtual ~INxSkinEventHandler();

    /// GUI thread. The event, never null, lives until this returns.
    virtual void OnSkinChangedEvent(INxSkinEvent *event) = 0;
};
