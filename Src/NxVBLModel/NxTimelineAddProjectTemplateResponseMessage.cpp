// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxTimelineAddProjectTemplateResponseMessage.h>

#include <NxCore/NxMessageType.h>

NxTimelineAddProjectTemplateResponseMessage::NxTimelineAddProjectTemplateResponseMessage()
    : NxMessage(nmtTimelineAddProjectTemplateResponse)
{
}

NxTimelineAddProjectTemplateResponseMessage::~NxTimelineAddProjectTemplateResponseMessage() =
    default;
