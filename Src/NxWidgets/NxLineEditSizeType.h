// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// Height of a line edit, in pixels.
enum class NxLineEditSizeType : int {
    lestItem = 20, ///< Below a cover, in a row of a list.
    lestFolder = 32, ///< In a row of the folder tree.
};
