// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

class QToolBar;
class QToolButton;

/// The button at the end of a tool bar that opens the menu of all tools for which there is no room.
class FoldedTools
{
public:
    /// Null for a bar whose style has none. Owned by the bar.
    [[nodiscard]] static QToolButton *button(const QToolBar *bar);
    /// Has the button be reached by Tab, wear the skin, and be told by this name.
    static void prepare(const QToolBar *bar, const QString &name);
};
