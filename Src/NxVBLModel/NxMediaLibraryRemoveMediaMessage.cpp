// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxMediaLibraryRemoveMediaMessage.h>

#include <NxCore/NxMessageType.h>

NxMediaLibraryRemoveMediaMessage::NxMediaLibraryRemoveMediaMessage() : NxMessage(nmtRemoveMedia) {}

NxMediaLibraryRemoveMediaMessage::~NxMediaLibraryRemoveMediaMessage() = default;
