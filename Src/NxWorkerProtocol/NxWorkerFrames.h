// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxWorkerMessages.h>

/// Parts a pipe's bytes into messages.
class NxWorkerFrames
{
public:
    struct Frame
    {
        NxWorkerWord word = NxWorkerWord::Hello;
        QByteArray bytes;
    };

    /// A message as it goes over the pipe.
    [[nodiscard]] static QByteArray framed(NxWorkerWord word, const QByteArray &bytes);

    void append(const QByteArray &bytes) { m_bytes += bytes; }
    /// The next whole message; none while bytes are missing or what comes is none.
    [[nodiscard]] std::optional<Frame> take();
    /// True when what came can be no message: nothing more will be understood.
    [[nodiscard]] bool isBroken() const { return m_broken; }

private:
    QByteArray m_bytes;
    bool m_broken = false;
};
