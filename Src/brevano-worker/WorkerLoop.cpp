// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/WorkerLoop.h>

#include <array>
#include <cerrno>
#include <optional>
#include <unistd.h>

WorkerLoop::WorkerLoop(int in, int out, const QString &cacheFolder)
    : m_in(in), m_out(out), m_reading(cacheFolder)
{
}

NxWorkerExit WorkerLoop::run(const NxWorkerHello &hello)
{
    if (!send(NxWorkerWord::Hello, NxWorkerMessages::packed(hello)))
        return NxWorkerExit::Done;
    while (receive()) {
        while (const std::optional<NxWorkerFrames::Frame> frame = m_frames.take()) {
            if (!handle(*frame))
                return NxWorkerExit::PipeBroken;
        }
        if (m_frames.isBroken())
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
        isHeard = send(NxWorkerWord::Opened, NxWorkerMessages::packedOpened(request.number));
    });
    return isHeard && send(NxWorkerWord::Answer, NxWorkerMessages::packed(answer));
}

bool WorkerLoop::send(NxWorkerWord word, const QByteArray &bytes) const
{
    const QByteArray frame = NxWorkerFrames::framed(word, bytes);
    int sent = 0;
    while (sent < frame.size()) {
        const ssize_t count = ::write(m_out, frame.constData() + sent, size_t(frame.size() - sent));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        sent += int(count);
    }
    return true;
}

bool WorkerLoop::receive()
{
    constexpr size_t most = 64 * 1024;
    std::array<char, most> bytes;
    ssize_t count = 0;
    do {
        count = ::read(m_in, bytes.data(), bytes.size());
    } while (count < 0 && errno == EINTR);
    if (count <= 0)
        return false;
    m_frames.append(QByteArray(bytes.data(), int(count)));
    return true;
}
