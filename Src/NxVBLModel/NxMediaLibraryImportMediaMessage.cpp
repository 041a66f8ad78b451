// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxMediaLibraryImportMediaMessage.h>

#include <NxCore/NxMessageType.h>

NxMediaLibraryImportMediaMessage::NxMediaLibraryImportMediaMessage() : NxMessage(nmtImportMedia) {}

NxMediaLibraryImportMediaMessage::~NxMediaLibraryImportMediaMessage() = default;
