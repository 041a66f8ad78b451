// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxTimelineAudioSynMessage.h>

#include <NxCore/NxMessageType.h>

NxTimelineAudioSynMessage::NxTimelineAudioSynMessage() : NxMessage(nmtTimelineAudioSync) {}

NxTimelineAudioSynMessage::~NxTimelineAudioSynMessage() = default;
