// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxReadingThread.h>

#include <NxCore/NxDoorbell.h>
#include <NxCore/NxQueue.h>
#include <NxVBLEngine/reading/NxWorkerPool.h>

#include <QEventLoop>

#include <chrono>
#include <optional>
#include <utility>

namespace {

constexpr std::chrono::seconds LongestStart{60};

/// What the thread is asked for.
struct Order
{
    enum class What { Read, TellProcessIds, End };

    What what = What::Read;
    std::vector<NxReadRequest> requests;
};

} // namespace

struct NxReadingThread::Shared
{
    NxWorkerSettings settings; // Not changed once the thread runs.
    NxDoorbellRope outcomeBell;
    NxQueue<Order> orders;
    NxQueue<NxReadOutcome> outcomes;
    NxQueue<std::vector<qint64>> processIds;
    NxQueue<NxDoorbellRope> orderBell; // One, when the thread is up.
};

NxReadingThread::NxReadingThread(NxWorkerSettings settings, NxDoorbellRope bell)
    : m_shared(std::make_shared<Shared>())
{
    m_shared->settings = std::move(settings);
    m_shared->outcomeBell = std::move(bell);
    m_thread = std::thread(&NxReadingThread::work, m_shared);
}

NxReadingThread::~NxReadingThread()
{
    m_shared->orders.push({Order::What::End, {}});
    ring();
    m_thread.join();
}

void NxReadingThread::add(std::vector<NxReadRequest> requests)
{
    m_shared->orders.push({Order::What::Read, std::move(requests)});
    ring();
}

std::vector<NxReadOutcome> NxReadingThread::take()
{
    return m_shared->outcomes.drain();
}

std::vector<qint64> NxReadingThread::processIds()
{
    m_shared->orders.push({Order::What::TellProcessIds, {}});
    ring();
    return m_shared->processIds.waitPop(LongestStart).value_or(std::vector<qint64>());
}

void NxReadingThread::ring()
{
    if (!m_isUp)
        m_orderBell = m_shared->orderBell.waitPop(LongestStart).value_or(NxDoorbellRope());
    m_isUp = true;
    m_orderBell.ring();
}

void NxReadingThread::work(const std::shared_ptr<Shared> &shared)
{
    QEventLoop loop;
    NxWorkerPool pool(shared->settings, [&shared](NxReadOutcome outcome) {
        shared->outcomes.push(std::move(outcome));
        shared->outcomeBell.ring();
    });
    NxDoorbell bell([&] {
        for (const Order &order : shared->orders.drain()) {
            if (order.what == Order::What::Read)
                pool.add(order.requests);
            else if (order.what == Order::What::TellProcessIds)
                shared->processIds.push(pool.processIds());
            else
                loop.quit();
        }
    });
    shared->orderBell.push(bell.rope());
    loop.exec();
}
