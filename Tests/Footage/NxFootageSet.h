// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NxFootageRecipe.h"

#include <NxCore/NxResult.h>

#include <vector>

/// The files of all recipes, made once in a build tree and shared by whoever needs them. They are
/// there to be read: whoever changes one copies it first.
namespace NxFootageSet {

/// Makes the files unless they are there, and answers their folder, which lies in `place`.
/// Processes that need them at the same time wait for the one that makes them; a folder is whole
/// or it is not there. Folders of other recipes are removed.
[[nodiscard]] NxResult<QString> make(const QString &place,
                                     const std::vector<NxFootageRecipe> &recipes);

/// The folder of this build tree's files; makes them when they are missing, and ends the program
/// with a message when that fails.
[[nodiscard]] QString folder();
/// The path of a recipe's file in it.
[[nodiscard]] QString path(const NxFootageRecipe &recipe);

} // namespace NxFootageSet
