// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxTimelineAddMediaMessage.h>

#include <NxCore/NxMessageType.h>

NxTimelineAddMediaMessage::NxTimelineAddMediaMessage() : NxMessage(nmtTimelineAddMedia) {}

NxTimelineAddMediaMessage::~NxTimelineAddMediaMessage() = default;
