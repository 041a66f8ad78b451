// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NxFootageRecipe.h"

#include <vector>

/// The files that tests and benchmarks read, of every kind that cameras and editors write.
namespace NxFootageRecipes {

/// All of them; each has a name of its own. The same in every call.
[[nodiscard]] const std::vector<NxFootageRecipe> &all();
/// The one of that file name; there must be one.
[[nodiscard]] const NxFootageRecipe &named(const QString &name);
/// Identifies everything that goes into the files, as hexadecimal digits: other recipes or other
/// numbered pictures are another one.
[[nodiscard]] QString version(const std::vector<NxFootageRecipe> &recipes);

// The parts of all().
[[nodiscard]] std::vector<NxFootageRecipe> films();
[[nodiscard]] std::vector<NxFootageRecipe> sounds();
[[nodiscard]] std::vector<NxFootageRecipe> stills();
[[nodiscard]] std::vector<NxFootageRecipe> texts();

} // namespace NxFootageRecipes
