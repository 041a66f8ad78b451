// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxWorkerExit.h>
#include <NxWorkerProtocol/NxWorkerFrames.h>
#include <brevano-worker/Reading.h>

#include <QString>

/// Says hello, then answers request after request, until the pipe is closed.
class WorkerLoop
{
public:
    /// Descriptors to read from and to write to; not owned.
    WorkerLoop(int in, int out, const QString &cacheFolder);

    [[nodiscard]] NxWorkerExit run(const NxWorkerHello &hello);

private:
    [[nodiscard]] bool send(NxWorkerWord word, const QByteArray &bytes) const;
    /// False at the end of the pipe.
    [[nodiscard]] bool receive();
    [[nodiscard]] bool handle(const NxWorkerFrames::Frame &frame) const;

    const int m_in;
    const int m_out;
    const Reading m_reading;
    NxWorkerFrames m_frames;
};
