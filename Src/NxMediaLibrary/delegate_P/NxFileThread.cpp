// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate_P/NxFileThread.h>

#include <NxCore/NxDoorbellRope.h>
#include <NxCore/NxLog.h>
#include <NxCore/NxQueue.h>
#include <NxCore/NxStepBack.h>

#include <atomic>
#include <optional>
#include <utility>

namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds LongestFarewell{1'000};
constexpr std::chrono::hours IdleWait{1};
constexpr SteadyClock::rep Idle = 0;
constexpr SteadyClock::rep Left = -1;

} // namespace

/// What all threads of one object see; lives as long as the last of them.
struct NxFileThread::Shared
{
    NxQueue<Task> tasks;
    NxQueue<Answer> answers;
    NxDoorbellRope bell;
};

struct NxFileThread::Worker
{
    /// When its task began, else Idle; Left once it is to end with the task that it runs.
    std::atomic<SteadyClock::rep> runsSince{Idle};
    NxQueue<bool> ended;
};

NxFileThread::NxFileThread(std::chrono::milliseconds patience)
    : m_patience(patience),
      m_bell([this] { takeAnswers(); }),
      m_shared(std::make_shared<Shared>())
{
    m_shared->bell = m_bell.rope();
}

NxFileThread::~NxFileThread()
{
    dropWaiting();
    m_shared->tasks.close();
    m_shared->answers.close();
    if (!m_worker)
        return;
    if (m_worker->ended.waitPop(LongestFarewell))
        m_thread.join();
    else
        m_thread.detach(); // It waits for a disk, and touches nothing of ours when it comes back.
}

void NxFileThread::post(Task task)
{
    m_shared->tasks.push(std::move(task));
    if (m_worker)
        leaveIfStuck();
    if (m_worker)
        return;
    m_worker = std::make_shared<Worker>();
    m_thread = std::thread(&NxFileThread::work, m_shared, m_worker);
}

void NxFileThread::dropWaiting()
{
    (void)m_shared->tasks.drain();
}

void NxFileThread::leaveIfStuck()
{
    SteadyClock::rep since = m_worker->runsSince;
    if (since == Idle
        || SteadyClock::now() - SteadyClock::time_point(SteadyClock::duration(since)) <= m_patience)
        return;
    if (!m_worker->runsSince.compare_exchange_strong(since, Left))
        return; // It has just come back.
    NX_LOG_INFO("a file does not answer; going on without the thread that waits for it");
    m_worker.reset();
    m_thread.detach();
}

void NxFileThread::work(const std::shared_ptr<Shared> &shared,
                        const std::shared_ptr<Worker> &worker)
{
    nxStepBack();
    bool isLeft = false;
    while (!isLeft && !shared->tasks.isClosed()) {
        std::optional<Task> task = shared->tasks.waitPop(IdleWait);
        if (!task)
            continue;
        SteadyClock::rep began = SteadyClock::now().time_since_epoch().count();
        worker->runsSince = began;
        Answer answer = (*task)();
        task.reset();
        isLeft = !worker->runsSince.compare_exchange_strong(began, Idle);
        shared->answers.push(std::move(answer));
        shared->bell.ring();
    }
    worker->ended.push(true);
}

void NxFileThread::takeAnswers()
{
    const std::shared_ptr<Shared> shared = m_shared;
    while (const std::optional<Answer> answer = shared->answers.tryPop()) {
        (*answer)();
        if (shared->answers.isClosed())
            return; // It destroyed this object.
    }
}
