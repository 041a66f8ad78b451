// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

class NxMessage;

/// The editor around the panel, as far as the panel talks to it. Implemented by the host and
/// registered with NxPresenter::registerScene().
class NXCORE_EXPORT INxScene
{
public:
    virtual ~INxScene();

    /// Called synchronously on the GUI thread. Answers whether the message was dealt with; the
    /// message dies when the call returns.
    virtual bool onMessage(NxMessage *message) = 0;
};
