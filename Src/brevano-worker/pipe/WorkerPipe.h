// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxWorkerFrames.h>

#include <optional>

/// The worker's end of the pipe to the editor.
class WorkerPipe
{
public:
    /// Descriptors to read from and to write to; not owned.
    WorkerPipe(int in, int out);

    /// False when nobody reads any more.
    [[nodiscard]] bool send(NxWorkerWord word, const QByteArray &bytes) const;
    /// Waits for bytes; false at the end of the pipe.
    [[nodiscard]] bool receive();
    /// True when receive() would not wait.
    [[nodiscard]] bool hasMore() const;
    /// The next whole message of what was received.
    [[nodiscard]] std::optional<NxWorkerFrames::Frame> take() { return m_frames.take(); }
    [[nodiscard]] bool isBroken() const { return m_frames.isBroken(); }

private:
    const int m_in;
    const int m_out;
    NxWorkerFrames m_frames;
};
