// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// With which code brevano-worker ends when it ends itself.
enum class NxWorkerExit : int {
    Done = 0, ///< Its pipe was closed.
    WrongUsage = 2,
    PipeBroken = 3, ///< What came over the pipe was no message.
    TooMuchMemory = 70,
    EditorGone = 71,
};
