// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QHash>
#include <QSet>
#include <QString>

#include <chrono>

/// Which drives do not answer when a file of theirs is opened. Values only.
///
/// While one is being tried nothing else of it is; so a dead drive holds up one worker, and the
/// others go on with what lies elsewhere.
class NXVBLENGINE_TEST_EXPORT NxSilentVolumes
{
public:
    using Milliseconds = std::chrono::milliseconds;

    explicit NxSilentVolumes(Milliseconds pause) : m_pause(pause) {}

    /// The drive takes long over a file; others of it are held back. False when it is known to.
    bool noteSlow(const QString &volume);
    /// It did not answer at all; it is tried again after a pause, each time a longer one.
    void noteSilent(const QString &volume, Milliseconds now);
    /// It answers. True when it did not before.
    bool noteAnswer(const QString &volume);
    /// True when nothing of it may be opened now.
    [[nodiscard]] bool isHeldBack(const QString &volume, Milliseconds now) const;

private:
    struct Silence
    {
        Milliseconds until{0};
        Milliseconds pause{0};
    };

    const Milliseconds m_pause;
    QSet<QString> m_slow;
    QHash<QString, Silence> m_silent;
};
