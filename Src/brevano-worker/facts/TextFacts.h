// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxWorkerProtocol/NxFootageFacts.h>

class FootageFile;

/// What a file of subtitles or lyrics tells of itself.
namespace TextFacts {

/// Encoding, and length up to the end of the last subtitle. The error is a sentence without the
/// path.
[[nodiscard]] NxResult<NxFootageFacts> read(const FootageFile &file);

} // namespace TextFacts
