// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QIcon>

/// The pictures on tools, drawn when they are shown: in the colours of the skin of then, and crisp
/// on every screen. GUI thread only.
class ToolIcons
{
public:
    enum class Id { Import, List, Small, Middle, Large, Sort, Group, Filter, Search, Clear, More };

    [[nodiscard]] static QIcon icon(Id id);
};
