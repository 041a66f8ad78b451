// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QHash>
#include <QObject>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <thread>

/// The sign of life of a task on the disk thread; valid while the task runs.
class NXVBLENGINE_TEST_EXPORT NxDiskPulse
{
public:
    using Clock = std::chrono::steady_clock;

    /// The disk has answered. To be called between all calls that may wait for a disk.
    void beat();
    /// True when nobody waits for the task any more: it should return, and nothing that it
    /// answers from now on is used.
    [[nodiscard]] bool isAbandoned() const { return m_isClosing || m_fate == Fate::LeftBehind; }
    /// The task has its answer: from here on nobody leaves it behind. False when somebody has.
    [[nodiscard]] bool conclude();

    /// For the thread itself.
    void start();
    /// False when the task has its answer.
    [[nodiscard]] bool leaveBehind();
    void close() { m_isClosing = true; }
    [[nodiscard]] std::chrono::milliseconds sinceLastBeat() const;

private:
    enum class Fate { Running, Concluded, LeftBehind };

    std::atomic<Clock::rep> m_lastBeat{0};
    std::atomic<Fate> m_fate{Fate::Running};
    std::atomic<bool> m_isClosing{false};
};

/// The one thread of a project that waits for disks.
///
/// Tasks run one after the other, small ones before others. A disk that does not answer holds up
/// only the thread that asked: when a task shows no sign of life for too long, its thread is left
/// behind, whoever posted the task is told, and a fresh thread goes on with the tasks behind it.
/// A task left behind still runs on when the disk answers after all, so it must keep alive all
/// that it touches: tasks capture values and shared pointers, never a plain `this`.
///
/// Lives on the GUI thread, which needs an event loop.
class NXVBLENGINE_TEST_EXPORT NxDiskThread final : public QObject
{
    Q_OBJECT
public:
    enum class Lane {
        Normal,
        Small, ///< Runs before all normal tasks; for what takes a moment.
    };
    using Task = std::function<void(NxDiskPulse &)>;
    using Stuck = std::function<void()>;

    /// How long a task may go without a sign of life.
    static constexpr std::chrono::milliseconds DefaultPatience{10'000};

    explicit NxDiskThread(std::chrono::milliseconds patience = DefaultPatience);
    ~NxDiskThread() override;

    /// Appends a task. `stuck` is called on the GUI thread when the task was left behind. False
    /// after close(); the task is dropped then.
    bool post(Task task, Stuck stuck = {}, Lane lane = Lane::Normal);
    /// True while the running task shows no sign of life, before and after it was left behind.
    [[nodiscard]] bool isStuck() const;
    /// Threads that were left behind and still wait for their disk.
    [[nodiscard]] int hangingThreads() const;
    /// Drops the tasks that wait, asks the running one to return, and waits for it: for a disk
    /// that does not answer only a moment.
    void close();

private:
    struct Shared;
    struct Worker;
    static void work(const std::shared_ptr<Shared> &shared, const std::shared_ptr<Worker> &worker);
    void startThread();
    void forgetDone();
    void supervise();

    const std::chrono::milliseconds m_patience;
    const std::shared_ptr<Shared> m_shared;
    std::shared_ptr<Worker> m_worker; // The thread that works now.
    std::thread m_thread;
    QHash<quint64, Stuck> m_stuckHandlers; // By task. They never leave this thread.
    quint64 m_lastTask = 0;
    bool m_closed = false;
    QTimer m_supervisor;
};
