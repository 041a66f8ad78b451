// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxDataMessage.h>

#include <NxCore/NxMessageType.h>

NxDataMessage::NxDataMessage(bool createProxyNow, bool resolutionWasChanged)
    : NxMessage(nmtData),
      createProxy(createProxyNow),
      resolutionChanged(resolutionWasChanged)
{
}

NxDataMessage::~NxDataMessage() = default;
