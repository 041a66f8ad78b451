// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/relink/NxRelinkSearch.h>

#include <NxVBLEngine/disk/NxDiskThread.h>
#include <NxVBLEngine/import/NxImportChannel.h>
#include <NxVBLEngine/objects/NxSlice.h>
#include <NxVBLEngine/reading/NxReadingThread.h>
#include <NxVBLEngine/relink/NxRelinkJob.h>

#include <QPointer>

#include <algorithm>
#include <utility>

namespace {

constexpr int ProgressInterval = 100; // ms
constexpr int RequestsPerWorker = 64;
constexpr int EnoughWaiting = int(NxImportChannel::MostWaiting);

} // namespace

struct NxRelinkSearch::Running
{
    Running(quint64 number, const QList<INxAbstractMediaItem *> &items,
            const NxProjectMemory *memory)
        : job(number, items, memory)
    {
        sinceProgress.start();
    }

    NxRelinkJob job;
    QString directory;
    std::shared_ptr<NxImportChannel> channel; // Null when everything it found was taken.
    QElapsedTimer sinceProgress;
    qint64 seenTold = 0;
    qint64 comparedTold = 0;
};

NxRelinkSearch::NxRelinkSearch(const NxProjectMemory *memory, std::shared_ptr<NxDiskThread> disk,
                               NxWorkerSettings settings, NxFileLook look)
    : m_memory(memory),
      m_disk(std::move(disk)),
      m_settings(std::move(settings)),
      m_look(std::move(look)),
      m_bell([this] { pumpLater(); })
{
    // A timer, not the bell itself: between two of its turns all other events get theirs.
    m_pumpTimer.setSingleShot(true);
    m_pumpTimer.setInterval(0);
    connect(&m_pumpTimer, &QTimer::timeout, this, &NxRelinkSearch::pump);
    m_progressTimer.setSingleShot(true);
    m_progressTimer.setInterval(ProgressInterval);
    connect(&m_progressTimer, &QTimer::timeout, this, &NxRelinkSearch::pump);
}

NxRelinkSearch::~NxRelinkSearch()
{
    for (const auto &running : m_running) {
        if (running->channel)
            running->channel->cancel();
    }
}

quint64 NxRelinkSearch::start(const QList<INxAbstractMediaItem *> &items, const QString &directory)
{
    auto running = std::make_unique<Running>(++m_lastSearch, items, m_memory);
    const NxDirectoryWalker::Named named = NxDirectoryWalker::named(directory);
    running->directory = named.path;
    running->channel = std::make_shared<NxImportChannel>(QVector<NxDirectoryWalker::Named>{named},
                                                         m_bell.rope(), m_look);
    if (m_settings.program.isEmpty())
        running->job.setNoWorkers(m_settings.whyNone);
    m_running.push_back(std::move(running));
    pumpLater();
    return m_lastSearch;
}

void NxRelinkSearch::cancel(quint64 search)
{
    Running *running = find(search);
    if (!running)
        return;
    running->job.cancel();
    if (running->channel)
        running->channel->cancel();
    pumpLater();
}

void NxRelinkSearch::stopAll()
{
    const QPointer<NxRelinkSearch> self(this);
    for (const quint64 number : numbers()) {
        cancel(number);
        finish(number);
        if (!self)
            return;
    }
}

NxRelinkSearch::Running *NxRelinkSearch::find(quint64 number) const
{
    const auto found = std::find_if(m_running.begin(), m_running.end(), [number](const auto &one) {
        return one->job.number() == number;
    });
    return found == m_running.end() ? nullptr : found->get();
}

std::vector<quint64> NxRelinkSearch::numbers() const
{
    std::vector<quint64> numbers;
    for (const auto &running : m_running)
        numbers.push_back(running->job.number());
    return numbers;
}

void NxRelinkSearch::pump()
{
    hearWorkers();
    const QPointer<NxRelinkSearch> self(this);
    for (const quint64 number : numbers()) {
        Running *running = find(number); // Whoever was told of another may have done anything.
        if (running && advance(running))
            finish(number);
        else if (running)
            tellProgress(running);
        if (!self)
            return;
    }
}

void NxRelinkSearch::hearWorkers()
{
    if (!m_thread)
        return;
    for (const NxReadOutcome &outcome : m_thread->take()) {
        for (const auto &running : m_running) {
            if (running->job.take(outcome))
                break;
        }
    }
}

bool NxRelinkSearch::advance(Running *running)
{
    NxRelinkJob &job = running->job;
    if (running->channel)
        walk(running);
    job.work(NxSlice::Longest);
    if (job.waiting() > 0)
        pumpLater();
    submit(running);
    if (job.goOnToEnd())
        return true;
    submit(running); // The next stage may begin, and have nothing to do.
    return job.goOnToEnd();
}

// The walk

void NxRelinkSearch::walk(Running *running)
{
    if (running->job.waiting() < EnoughWaiting)
        takeWalked(running);
    if (!running->channel || !running->channel->isResting()
        || running->job.waiting() >= EnoughWaiting)
        return;
    const std::shared_ptr<NxImportChannel> channel = running->channel;
    const quint64 number = running->job.number();
    const QPointer<NxRelinkSearch> self(this);
    channel->resume();
    const bool isPosted = m_disk->post([channel](NxDiskPulse &pulse) { channel->walkOn(pulse); },
                                       [self, number, channel] {
                                           if (self)
                                               self->onStuck(number, channel);
                                       });
    if (!isPosted)
        running->job.cancel(); // The project was closed.
}

void NxRelinkSearch::takeWalked(Running *running)
{
    const bool isOver = running->channel->isOver(); // Asked first: then what is taken is the rest.
    running->job.append(running->channel->take());
    if (!isOver)
        return;
    running->channel.reset();
    running->job.endWalk();
}

void NxRelinkSearch::onStuck(quint64 number, const std::shared_ptr<NxImportChannel> &channel)
{
    Running *running = find(number);
    if (!running || running->channel != channel)
        return;
    takeWalked(running);
    if (!running->channel)
        return; // It answered at the last moment.
    running->channel.reset();
    running->job.giveUpWalk(running->directory);
    pumpLater();
}

// The workers

void NxRelinkSearch::submit(Running *running)
{
    const int most = std::max(m_settings.workers, 1) * RequestsPerWorker;
    std::vector<NxReadRequest> requests = running->job.takeRequests(most, &m_lastRequest);
    if (requests.empty())
        return;
    if (!m_thread)
        m_thread = std::make_unique<NxReadingThread>(m_settings, m_bell.rope());
    m_thread->add(std::move(requests));
}

// What is told

void NxRelinkSearch::tellProgress(Running *running)
{
    const qint64 seen = running->job.seen();
    const qint64 compared = running->job.compared();
    const bool isNews = seen != running->seenTold || compared != running->comparedTold;
    if (!isNews)
        return;
    if (!running->sinceProgress.hasExpired(ProgressInterval)) {
        if (!m_progressTimer.isActive())
            m_progressTimer.start(); // Nothing else may happen for long.
        return;
    }
    running->sinceProgress.start();
    running->seenTold = seen;
    running->comparedTold = compared;
    Q_EMIT progress(running->job.number(), seen, compared);
}

void NxRelinkSearch::finish(quint64 number)
{
    const auto found = std::find_if(m_running.begin(), m_running.end(), [number](const auto &one) {
        return one->job.number() == number;
    });
    if (found == m_running.end())
        return;
    const std::unique_ptr<Running> running = std::move(*found);
    m_running.erase(found);
    Q_EMIT finished(number, running->job.report()); // Last: whoever hears it may end everything.
}
