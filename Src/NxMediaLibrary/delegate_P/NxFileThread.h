// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <NxCore/NxDoorbell.h>

#include <QtGlobal>

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

/// One thread on which files are looked at and read, for an object that must not wait for them.
///
/// A disk that does not answer holds up only the thread that asked: the next task finds it and
/// goes on with a fresh one. Lives on a thread with an event loop, and is used from there alone.
class NXMEDIALIBRARY_TEST_EXPORT NxFileThread
{
    Q_DISABLE_COPY_MOVE(NxFileThread)
public:
    /// Runs on the thread that owns this object, and never after it died; may destroy it.
    using Answer = std::function<void()>;
    /// Runs on the file thread, perhaps after this object died: captures values alone, but for
    /// what it hands on to its answer without looking at it.
    using Task = std::function<Answer()>;

    /// How long one task may take before those behind it get another thread.
    static constexpr std::chrono::milliseconds DefaultPatience{5'000};

    explicit NxFileThread(std::chrono::milliseconds patience = DefaultPatience);
    /// Drops what waits. Waits for what runs, but only a moment.
    ~NxFileThread();

    /// Tasks run in their order.
    void post(Task task);
    /// Drops the tasks that wait.
    void dropWaiting();

private:
    struct Shared;
    struct Worker;
    static void work(const std::shared_ptr<Shared> &shared, const std::shared_ptr<Worker> &worker);
    void takeAnswers();
    void leaveIfStuck();

    const std::chrono::milliseconds m_patience;
    NxDoorbell m_bell;
    const std::shared_ptr<Shared> m_shared;
    std::shared_ptr<Worker> m_worker; // Made with the first task, as the thread is.
    std::thread m_thread;
};
