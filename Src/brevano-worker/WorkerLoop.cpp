// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/WorkerLoop.h>

#include <optional>

WorkerLoop::WorkerLoop(int in, int out, const QString &cacheFolder)
    : m_pipe(in, out), m_reading(cacheFolder)
{
}

NxWorkerExit WorkerLoop::run(const NxWorkerHello &hello)
{
    if (!m_pipe.send(NxWorkerWord::Hello, NxWorkerMessages::packed(hello)))
        return NxWorkerExit::Done;
    while (m_pipe.receive()) {
        while (const std::optional<NxWorkerFrames::Frame> frame = m_pipe.take()) {
            if (!handle(*frame))
                return NxWorkerExit::PipeBroken;
        }
        if (m_pipe.isBroken())
            return NxWorkerExit::PipeBroken;
    }
    return NxWorkerExit::Done;
}

bool WorkerLoop::handle(const NxWorkerFrames::Frame &frame) const
{
    NxReadRequest request;
    if (frame.word != NxWorkerWord::Request || !NxWorkerMessages::unpack(frame.bytes, &request))
        return false;
    bool isHeard = true;
    const NxReadAnswer answer = m_reading.answer(request, [this, &request, &isHeard] {
        isHeard = m_pipe.send(NxWorkerWord::Opened, NxWorkerMessages::packedOpened(request.number));
    });
    return isHeard && m_pipe.send(NxWorkerWord::Answer, NxWorkerMessages::packed(answer));
}
