// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/pipe/WorkerPipe.h>

#include <array>
#include <cerrno>
#include <poll.h>
#include <unistd.h>

WorkerPipe::WorkerPipe(int in, int out) : m_in(in), m_out(out) {}

bool WorkerPipe::send(NxWorkerWord word, const QByteArray &bytes) const
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

bool WorkerPipe::receive()
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

bool WorkerPipe::hasMore() const
{
    pollfd in = {m_in, POLLIN, 0};
    return ::poll(&in, 1, 0) > 0;
}
