// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxWorkerProtocol/NxFootageFacts.h>

class FootageFile;

/// What a picture tells of itself.
namespace StillFacts {

/// Size, turn and format come from the header; a picture is decoded only where its kind has no
/// header that tells the size. The error is a sentence without the path.
[[nodiscard]] NxResult<NxFootageFacts> read(FootageFile *file);

} // namespace StillFacts
