// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxAddCustomMediaItemMessage.h>

#include <NxCore/NxMessageType.h>

NxAddCustomMediaItemMessage::NxAddCustomMediaItemMessage() : NxMessage(nmtAddCustomMediaItem) {}

NxAddCustomMediaItemMessage::~NxAddCustomMediaItemMessage() = default;
