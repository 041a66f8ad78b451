// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxMessage.h>

NxMessage::NxMessage(int type) : m_type(type) {}

NxMessage::~NxMessage() = default;
