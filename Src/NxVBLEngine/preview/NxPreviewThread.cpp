// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/preview/NxPreviewThread.h>

#include <NxCore/NxDoorbell.h>
#include <NxCore/NxQueue.h>
#include <NxVBLEngine/preview/NxPreviewPlayer.h>

#include <QEventLoop>

#include <chrono>
#include <optional>
#include <utility>

namespace {

constexpr std::chrono::seconds LongestStart{60};

/// What the thread is asked for.
struct Task
{
    enum class What { Obey, TellProcessId, End };

    What what = What::Obey;
    NxPreviewOrder order;
};

} // namespace

struct NxPreviewThread::Shared
{
    NxPreviewSettings settings; // Not changed once the thread runs.
    NxDoorbellRope newsBell;
    NxQueue<Task> tasks;
    NxQueue<NxPreviewNews> news;
    NxQueue<qint64> processIds;
    NxQueue<NxDoorbellRope> taskBell; // One, when the thread is up.
};

NxPreviewThread::NxPreviewThread(NxPreviewSettings settings, NxDoorbellRope bell)
    : m_shared(std::make_shared<Shared>())
{
    m_shared->settings = std::move(settings);
    m_shared->newsBell = std::move(bell);
    m_thread = std::thread(&NxPreviewThread::work, m_shared);
}

NxPreviewThread::~NxPreviewThread()
{
    m_shared->tasks.push({Task::What::End, {}});
    ring();
    m_thread.join();
}

void NxPreviewThread::add(NxPreviewOrder order)
{
    m_shared->tasks.push({Task::What::Obey, std::move(order)});
    ring();
}

std::vector<NxPreviewNews> NxPreviewThread::take()
{
    return m_shared->news.drain();
}

qint64 NxPreviewThread::processId()
{
    m_shared->tasks.push({Task::What::TellProcessId, {}});
    ring();
    return m_shared->processIds.waitPop(LongestStart).value_or(0);
}

void NxPreviewThread::ring()
{
    // A thread that is not up yet looks for itself what waits when it is.
    if (!m_isUp) {
        if (const std::optional<NxDoorbellRope> bell = m_shared->taskBell.tryPop()) {
            m_orderBell = *bell;
            m_isUp = true;
        }
    }
    m_orderBell.ring();
}

void NxPreviewThread::work(const std::shared_ptr<Shared> &shared)
{
    QEventLoop loop;
    NxPreviewPlayer player(shared->settings, [&shared](NxPreviewNews news) {
        shared->news.push(std::move(news));
        shared->newsBell.ring();
    });
    NxDoorbell bell([&] {
        for (const Task &task : shared->tasks.drain()) {
            if (task.what == Task::What::Obey)
                player.obey(task.order);
            else if (task.what == Task::What::TellProcessId)
                shared->processIds.push(player.processId());
            else
                loop.quit();
        }
    });
    shared->taskBell.push(bell.rope());
    bell.ring();
    loop.exec();
}
