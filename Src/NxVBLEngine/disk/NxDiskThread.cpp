// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/disk/NxDiskThread.h>

#include <NxCore/NxLog.h>
#include <NxCore/NxQueue.h>
#include <NxCore/NxStepBack.h>

#include <algorithm>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

namespace {

constexpr std::chrono::milliseconds LongestFarewell{1'000};
constexpr std::chrono::milliseconds IdleWait{60'000};

struct PostedTask
{
    quint64 number = 0;
    NxDiskThread::Task run;
};

} // namespace

/// What all threads of one NxDiskThread see; lives as long as the last of them.
struct NxDiskThread::Shared
{
    NxQueue<bool> tickets; // One per task, whichever queue that stands in.
    NxQueue<PostedTask> small;
    NxQueue<PostedTask> normal;
    NxQueue<quint64> done;
    std::atomic<int> hanging{0};

    /// Waits for a task; nothing when the thread is to end.
    std::optional<PostedTask> next()
    {
        while (true) {
            const bool ticket = tickets.waitPop(IdleWait).has_value();
            if (std::optional<PostedTask> task = small.tryPop())
                return task;
            if (std::optional<PostedTask> task = normal.tryPop())
                return task;
            if (!ticket && tickets.isClosed())
                return std::nullopt;
        }
    }
};

/// One thread: what it does at the moment, and whether it was left behind.
struct NxDiskThread::Worker
{
    NxDiskPulse pulse;
    NxQueue<bool> ended;
    std::mutex mutex;
    quint64 running = 0; // Guarded by the mutex, as is `left`.
    bool left = false;

    void begin(quint64 task)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        pulse.start();
        running = task;
    }

    /// False when the thread was left behind in the meantime.
    bool end()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        running = 0;
        return !left;
    }

    bool isStuck(std::chrono::milliseconds patience)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return running != 0 && pulse.sinceLastBeat() > patience;
    }

    /// Leaves the thread behind if it is stuck; answers the task it is stuck in, else 0.
    quint64 leaveIfStuck(std::chrono::milliseconds patience)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (running == 0 || pulse.sinceLastBeat() <= patience || !pulse.leaveBehind())
            return 0;
        left = true;
        return running;
    }

    /// True when a task is running that now counts as left behind.
    bool leaveIfRunning()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        left = running != 0;
        return left;
    }
};

void NxDiskPulse::beat()
{
    m_lastBeat = Clock::now().time_since_epoch().count();
}

void NxDiskPulse::start()
{
    m_fate = Fate::Running;
    beat();
}

bool NxDiskPulse::conclude()
{
    Fate fate = Fate::Running;
    return m_fate.compare_exchange_strong(fate, Fate::Concluded) || fate == Fate::Concluded;
}

bool NxDiskPulse::leaveBehind()
{
    Fate fate = Fate::Running;
    return m_fate.compare_exchange_strong(fate, Fate::LeftBehind);
}

std::chrono::milliseconds NxDiskPulse::sinceLastBeat() const
{
    const Clock::duration last(m_lastBeat);
    return std::chrono::duration_cast<std::chrono::milliseconds>(
        Clock::now().time_since_epoch() - last);
}

NxDiskThread::NxDiskThread(std::chrono::milliseconds patience)
    : m_patience(patience)
    , m_shared(std::make_shared<Shared>())
{
    connect(&m_supervisor, &QTimer::timeout, this, &NxDiskThread::supervise);
    const std::chrono::milliseconds shortest(10);
    m_supervisor.start(std::max(patience / 4, shortest));
    startThread();
}

NxDiskThread::~NxDiskThread()
{
    close();
}

void NxDiskThread::startThread()
{
    m_worker = std::make_shared<Worker>();
    m_thread = std::thread(&NxDiskThread::work, m_shared, m_worker);
}

void NxDiskThread::work(
    const std::shared_ptr<Shared> &shared, const std::shared_ptr<Worker> &worker)
{
    nxStepBack();
    while (std::optional<PostedTask> task = shared->next()) {
        worker->begin(task->number);
        task->run(worker->pulse);
        task->run = nullptr; // What it captured goes before anybody is told.
        if (!worker->end()) {
            --shared->hanging;
            return;
        }
        shared->done.push(task->number);
    }
    worker->ended.push(true);
}

bool NxDiskThread::post(Task task, Stuck stuck, Lane lane)
{
    if (m_closed)
        return false;
    forgetDone();
    const quint64 number = ++m_lastTask;
    if (stuck)
        m_stuckHandlers.insert(number, std::move(stuck));
    NxQueue<PostedTask> &queue = lane == Lane::Small ? m_shared->small : m_shared->normal;
    queue.push({number, std::move(task)});
    m_shared->tickets.push(true);
    return true;
}

bool NxDiskThread::isStuck() const
{
    return hangingThreads() > 0 || m_worker->isStuck(m_patience);
}

int NxDiskThread::hangingThreads() const
{
    return m_shared->hanging;
}

void NxDiskThread::forgetDone()
{
    for (const quint64 task : m_shared->done.drain())
        m_stuckHandlers.remove(task);
}

void NxDiskThread::supervise()
{
    forgetDone();
    ++m_shared->hanging; // Before the thread can see that it was left, and count itself out.
    const quint64 task = m_worker->leaveIfStuck(m_patience);
    if (task == 0) {
        --m_shared->hanging;
        return;
    }

    NX_LOG_INFO("a disk does not answer; going on without the thread that waits for it");
    m_thread.detach();
    startThread();
    const Stuck stuck = m_stuckHandlers.take(task);
    if (stuck)
        stuck(); // Last: it may close everything.
}

void NxDiskThread::close()
{
    if (m_closed)
        return;
    m_closed = true;
    m_supervisor.stop();
    const std::vector<PostedTask> droppedSmall = m_shared->small.drain();
    const std::vector<PostedTask> dropped = m_shared->normal.drain();
    m_worker->pulse.close();
    m_shared->tickets.close();

    if (m_worker->ended.waitPop(std::min(m_patience, LongestFarewell))) {
        m_thread.join();
        m_stuckHandlers.clear();
        return;
    }
    ++m_shared->hanging;
    if (m_worker->leaveIfRunning()) {
        m_thread.detach();
    } else {
        --m_shared->hanging;
        m_thread.join(); // It came back at the last moment.
    }
    m_stuckHandlers.clear();
}
