// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// The looks that the user can choose from.
enum class NxSkin : int {
    Dark, ///< At first.
    Light,
};
