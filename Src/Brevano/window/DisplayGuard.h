// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

class Console;

/// While the application object is made: a display that is named but cannot be reached ends the
/// program with a line that says so, where Qt would abort it. One object at a time.
class DisplayGuard
{
public:
    /// The console is not owned.
    explicit DisplayGuard(Console *console);
    ~DisplayGuard();

private:
    Q_DISABLE_COPY_MOVE(DisplayGuard)
};
