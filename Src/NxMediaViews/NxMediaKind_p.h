// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaViews/NxGlyph_p.h>

#include <QString>

class INxAbstractMedia;

/// What a media is, as a view says it.
struct NxMediaKind
{
    NxGlyph glyph;
    const char *source; ///< The text before it is translated; empty for what has no name.

    /// In the user's language.
    [[nodiscard]] QString text() const;
};

[[nodiscard]] NxMediaKind nxMediaKind(const INxAbstractMedia &media);
