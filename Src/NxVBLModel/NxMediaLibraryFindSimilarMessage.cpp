// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxMediaLibraryFindSimilarMessage.h>

#include <NxCore/NxMessageType.h>

NxMediaLibraryFindSimilarMessage::NxMediaLibraryFindSimilarMessage() : NxMessage(nmtFindSimilar) {}

NxMediaLibraryFindSimilarMessage::~NxMediaLibraryFindSimilarMessage() = default;
