// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NxFootageRecipe.h"

#include <NxCore/NxResult.h>

/// Makes files by their recipes. Every function may be called on any thread.
namespace NxFootageMaker {

/// Makes one file in a folder, which must be there. The error tells what a program complained of.
[[nodiscard]] NxResult<void> make(const NxFootageRecipe &recipe, const QString &folder);
/// Makes all of them, as many at once as there are processors.
[[nodiscard]] NxResult<void> makeAll(const std::vector<NxFootageRecipe> &recipes,
                                     const QString &folder);

} // namespace NxFootageMaker
