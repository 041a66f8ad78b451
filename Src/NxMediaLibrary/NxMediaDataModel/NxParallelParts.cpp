// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxParallelParts.h"

#include <NxCore/NxLog.h>

#include <QtGlobal>

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <vector>

namespace {

constexpr size_t MostThreads = 4; // More wait for memory rather than compute.

class PartList
{
public:
    PartList(size_t parts, const std::function<void(size_t part)> &work)
        : m_parts(parts),
          m_work(work)
    {
    }

    void workOff() noexcept
    {
        try {
            for (size_t part = m_next++; part < m_parts; part = m_next++)
                m_work(part);
        } catch (...) {
            m_next = m_parts;
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_fault = std::current_exception();
        }
    }
    // When all threads are gone.
    void throwFault() const
    {
        if (m_fault)
            std::rethrow_exception(m_fault);
    }

private:
    const size_t m_parts;
    const std::function<void(size_t part)> &m_work;
    std::atomic<size_t> m_next{0};
    std::mutex m_mutex;
    std::exception_ptr m_fault;
};

class Helpers
{
public:
    Helpers(size_t count, const std::function<void()> &work, const NxThreadStart &start)
    {
        m_threads.reserve(count);
        try {
            while (m_threads.size() < count)
                m_threads.push_back(start(work));
        } catch (const std::exception &fault) {
            NX_LOG_INFO("goes on with %zu threads fewer: %s", count - m_threads.size(),
                        fault.what());
        }
    }
    ~Helpers()
    {
        for (std::thread &thread : m_threads)
            thread.join();
    }
    Q_DISABLE_COPY(Helpers)

private:
    std::vector<std::thread> m_threads;
};

} // namespace

std::thread nxStartThread(const std::function<void()> &work)
{
    return std::thread(work);
}

void nxDoParts(size_t parts, const std::function<void(size_t part)> &work,
               const NxThreadStart &start)
{
    const size_t threads =
        std::min({size_t(std::thread::hardware_concurrency()), MostThreads, parts});
    PartList list(parts, work);
    {
        const Helpers helpers(
            threads > 1 ? threads - 1 : 0, [&list] { list.workOff(); }, start);
        list.workOff();
    }
    list.throwFault();
}
