// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxQueryMessage.h>

#include <NxCore/NxMessageType.h>

NxQueryMessage::NxQueryMessage(int code) : NxMessage(nmtQuery), queryCode(code) {}

NxQueryMessage::~NxQueryMessage() = default;
