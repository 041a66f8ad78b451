// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// The small signs of the views.
enum class NxGlyph : int {
    Film,
    Sound,
    Picture,
    Motion, ///< A picture that moves.
    Text,
    Folder,
    Template,
    Element, ///< Effects, transitions and what else is laid over media.
    Plus,
    Used,
    Proxy,
    Standard, ///< Licences.
    Premium,
    Missing,
};
