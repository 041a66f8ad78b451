// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/guard/ProcessWatch.h>

#include <NxWorkerProtocol/NxWorkerExit.h>

#include <chrono>
#include <cstdio>
#include <memory>
#include <unistd.h>

namespace {

constexpr std::chrono::milliseconds Interval{20};

} // namespace

ProcessWatch::ProcessWatch(qint64 limit)
    : m_limit(limit), m_parent(::getppid()), m_thread([this] { watch(); })
{
}

ProcessWatch::~ProcessWatch()
{
    m_stopping = true;
    m_thread.join();
}

qint64 ProcessWatch::residentBytes()
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(
        std::fopen("/proc/self/statm", "re"), &std::fclose);
    long long whole = 0;
    long long resident = 0;
    if (!file || std::fscanf(file.get(), "%lld %lld", &whole, &resident) != 2)
        return 0;
    return resident * ::sysconf(_SC_PAGESIZE);
}

void ProcessWatch::watch() const
{
    while (!m_stopping) {
        if (residentBytes() > m_limit)
            ::_exit(int(NxWorkerExit::TooMuchMemory));
        if (::getppid() != m_parent)
            ::_exit(int(NxWorkerExit::EditorGone));
        std::this_thread::sleep_for(Interval);
    }
}
