// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxTimelineAddMediaResponseMessage.h>

#include <NxCore/NxMessageType.h>

NxTimelineAddMediaResponseMessage::NxTimelineAddMediaResponseMessage()
    : NxMessage(nmtTimelineAddMediaResponse)
{
}

NxTimelineAddMediaResponseMessage::~NxTimelineAddMediaResponseMessage() = default;
