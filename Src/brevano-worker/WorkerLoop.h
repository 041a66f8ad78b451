// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxWorkerExit.h>
#include <brevano-worker/Reading.h>
#include <brevano-worker/pipe/WorkerPipe.h>

#include <QString>

/// Says hello, then answers request after request, until the pipe is closed.
class WorkerLoop
{
public:
    /// Descriptors to read from and to write to; not owned.
    WorkerLoop(int in, int out, const QString &cacheFolder);

    [[nodiscard]] NxWorkerExit run(const NxWorkerHello &hello);

private:
    [[nodiscard]] bool handle(const NxWorkerFrames::Frame &frame) const;

    WorkerPipe m_pipe;
    const Reading m_reading;
};
