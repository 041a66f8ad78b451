// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxWorkerProtocol/NxFootageFacts.h>

class Container;
class FootageFile;

/// Reads what files tell of themselves. Errors are sentences without the path.
namespace FactsReader {

/// Films, sound and GIFs. The streams are analysed only where the header lacks size, rate,
/// duration or sound format.
[[nodiscard]] NxResult<NxFootageFacts> ofStream(Container *container);
/// Pictures; nothing of them is decoded.
[[nodiscard]] NxResult<NxFootageFacts> ofStill(FootageFile *file);
/// Subtitles.
[[nodiscard]] NxResult<NxFootageFacts> ofText(FootageFile *file);

} // namespace FactsReader
