// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>

#include <QString>

#include <chrono>
#include <functional>

/// How the worker that plays films is run. Tests shorten the limits.
struct NxPreviewSettings
{
    using Milliseconds = std::chrono::milliseconds;

    /// Where the program is; looks at the disk, so it is asked on the thread that starts it.
    std::function<NxResult<QString>()> program;
    QString cacheFolder; ///< The only folder that a worker may write to.

    Milliseconds startLimit{20'000}; ///< Until a fresh worker says hello.
    Milliseconds answerLimit{10'000}; ///< Between two answers while it has work.
    Milliseconds idleLimit{60'000}; ///< It is let go when nobody has asked for so long.
};
