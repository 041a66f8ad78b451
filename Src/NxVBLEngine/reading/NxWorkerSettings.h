// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QThread>

#include <chrono>
#include <functional>

/// How workers are run. Tests shorten the limits.
struct NxWorkerSettings
{
    using Milliseconds = std::chrono::milliseconds;

    QString program; ///< Empty: there is none, and `whyNone` says why.
    QString whyNone;
    QString cacheFolder; ///< Where pictures are written.
    int workers = QThread::idealThreadCount();
    /// Where volumes are mounted; must never wait for one.
    std::function<QStringList()> volumeRoots;

    Milliseconds startLimit{20'000}; ///< Until a fresh worker says hello, or one let go is gone.
    Milliseconds slowOpening{3'000}; ///< After that no other file of the drive is tried.
    Milliseconds openingLimit{15'000};
    Milliseconds factsLimit{20'000};
    Milliseconds picturesLimit{60'000};
    Milliseconds silentPause{15'000}; ///< Until a drive that did not answer is tried again.
    Milliseconds idleLimit{60'000}; ///< A worker without work is let go then.
};
