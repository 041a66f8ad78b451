// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxWorkerPool.h>

#include <NxCore/NxLog.h>
#include <NxVBLEngine/disk/NxFileProbe.h>

#include <QFile>

#include <algorithm>
#include <utility>

namespace {

constexpr int MostVainStarts = 3;
constexpr int MostKilled = 2;
constexpr std::chrono::seconds RootsInterval{2};

int milliseconds(std::chrono::milliseconds time)
{
    return int(time.count());
}

/// By NxWorkerEnd, for a worker that ended over a file.
QString reasonOf(NxWorkerEnd end)
{
    if (end == NxWorkerEnd::TooMuchMemory)
        return NxWorkerPool::tr("Reading the file takes too much memory.");
    return NxWorkerPool::tr("Reading the file crashed its reader.");
}

} // namespace

NxWorkerPool::NxWorkerPool(NxWorkerSettings settings, Tell tell)
    : m_settings(std::move(settings))
    , m_tell(std::move(tell))
    , m_volumes(m_settings.silentPause)
{
    m_clock.start();
    if (m_settings.program.isEmpty())
        m_givenUp = m_settings.whyNone;
    for (int i = 0; i < std::max(m_settings.workers, 1); ++i)
        m_seats.push_back(newSeat());
}

NxWorkerPool::~NxWorkerPool() = default;

std::unique_ptr<NxWorkerPool::Seat> NxWorkerPool::newSeat()
{
    auto made = std::make_unique<Seat>();
    Seat *seat = made.get();
    seat->slowTimer.setSingleShot(true);
    seat->limitTimer.setSingleShot(true);
    seat->idleTimer.setSingleShot(true);
    connect(&seat->slowTimer, &QTimer::timeout, this, [this, seat] { onSlow(seat); });
    connect(&seat->limitTimer, &QTimer::timeout, this, [this, seat] { onLimit(seat); });
    connect(&seat->idleTimer, &QTimer::timeout, this, [this, seat] {
        seat->process->close();
        seat->limitTimer.start(milliseconds(m_settings.startLimit));
    });
    return made;
}

void NxWorkerPool::add(const std::vector<NxReadRequest> &requests)
{
    for (const NxReadRequest &request : requests)
        m_waiting.push_back({request, 0, {}});
    if (m_givenUp.isEmpty())
        startWorkers();
    else
        giveUpAll(m_givenUp);
    feed();
}

std::vector<qint64> NxWorkerPool::processIds() const
{
    std::vector<qint64> ids;
    for (const auto &seat : m_seats) {
        if (seat->process && seat->process->processId() > 0)
            ids.push_back(seat->process->processId());
    }
    return ids;
}

// Workers

void NxWorkerPool::startWorkers()
{
    size_t needed = m_waiting.size();
    for (const auto &seat : m_seats) {
        if (needed == 0 || !m_givenUp.isEmpty())
            return;
        if (!seat->process)
            start(seat.get());
        if (!seat->job)
            --needed;
    }
}

void NxWorkerPool::start(Seat *seat)
{
    seat->process = std::make_unique<NxWorkerProcess>(m_settings.program, m_settings.cacheFolder);
    NxWorkerProcess *process = seat->process.get();
    connect(process, &NxWorkerProcess::ready, this, [this, seat] { onReady(seat); });
    connect(process, &NxWorkerProcess::opened, this, [this, seat] { onOpened(seat); });
    connect(process, &NxWorkerProcess::answered, this,
        [this, seat](const NxReadAnswer &answer) { onAnswered(seat, answer); });
    connect(process, &NxWorkerProcess::ended, this,
        [this, seat](NxWorkerEnd end, const QString &why) { onEnded(seat, end, why); });
    seat->limitTimer.start(milliseconds(m_settings.startLimit));
    process->start();
}

void NxWorkerPool::onReady(Seat *seat)
{
    m_vainStarts = 0;
    seat->limitTimer.stop();
    feed(seat);
}

void NxWorkerPool::letGo(Seat *seat)
{
    seat->slowTimer.stop();
    seat->limitTimer.stop();
    seat->idleTimer.stop();
    if (seat->process)
        m_burial.take(std::move(seat->process));
}

void NxWorkerPool::onEnded(Seat *seat, NxWorkerEnd end, const QString &why)
{
    const bool wasAtWork = seat->job.has_value();
    const bool isVain = !wasAtWork && !seat->process->hasGreeted();
    letGo(seat);
    const bool isHopeless = end == NxWorkerEnd::NotStarted || end == NxWorkerEnd::WrongVersion;
    if (isVain && (isHopeless || ++m_vainStarts >= MostVainStarts)) {
        giveUpAll(why);
        return;
    }
    if (wasAtWork)
        settleKilled(seat, reasonOf(end));
    startWorkers();
    feed();
}

void NxWorkerPool::onSlow(Seat *seat)
{
    if (m_volumes.noteSlow(seat->volume)) {
        feed();
        return;
    }
    // Another worker waits for this drive already: this one is needed elsewhere.
    letGo(seat);
    tellSilent(*std::exchange(seat->job, std::nullopt), seat->volume);
    startWorkers();
    feed();
}

void NxWorkerPool::onLimit(Seat *seat)
{
    if (!seat->job) {
        onEnded(seat, NxWorkerEnd::Crashed,
            tr("%1 was started and said nothing.").arg(m_settings.program));
        return;
    }
    const bool isOpened = seat->isOpened;
    letGo(seat);
    if (isOpened) {
        settleKilled(seat, tr("Reading the file took too long."));
    } else {
        m_volumes.noteSilent(seat->volume, now());
        tellSilent(*std::exchange(seat->job, std::nullopt), seat->volume);
    }
    startWorkers();
    feed();
}

void NxWorkerPool::settleKilled(Seat *seat, const QString &reason)
{
    noteAnswer(seat); // Not of the drive's doing: others of it are not held back for this.
    Job job = *std::exchange(seat->job, std::nullopt);
    if (++job.killed < MostKilled) {
        m_waiting.push_back(std::move(job));
        return;
    }
    NxReadOutcome outcome;
    outcome.number = job.request.number;
    outcome.end = NxReadEnd::Killed;
    outcome.reason = reason;
    outcome.volumeBack = job.volumeBack;
    m_tell(std::move(outcome));
}

void NxWorkerPool::giveUpAll(const QString &why)
{
    if (!std::exchange(m_isGivenUpTold, true))
        NX_LOG_ERROR("no footage is read: %s", qUtf8Printable(why));
    m_givenUp = why;
    for (const auto &seat : m_seats) {
        if (seat->job)
            m_waiting.push_back(*std::exchange(seat->job, std::nullopt));
        letGo(seat.get());
    }
    for (const Job &job : std::exchange(m_waiting, {})) {
        NxReadOutcome outcome;
        outcome.number = job.request.number;
        outcome.end = NxReadEnd::NoWorker;
        outcome.reason = why;
        m_tell(std::move(outcome));
    }
}

// Requests

void NxWorkerPool::feed()
{
    for (const auto &seat : m_seats)
        feed(seat.get());
}

void NxWorkerPool::feed(Seat *seat)
{
    if (!seat->process || !seat->process->isReady() || seat->job)
        return;
    QString volume;
    std::optional<Job> job = takeJob(&volume);
    if (job)
        begin(seat, std::move(*job), volume);
    else if (!seat->idleTimer.isActive())
        seat->idleTimer.start(milliseconds(m_settings.idleLimit));
}

std::optional<NxWorkerPool::Job> NxWorkerPool::takeJob(QString *volume)
{
    while (!m_waiting.empty()) {
        Job job = std::move(m_waiting.front());
        m_waiting.pop_front();
        *volume = volumeOf(job.request);
        if (!m_volumes.isHeldBack(*volume, now()))
            return job;
        tellSilent(job, *volume);
    }
    return std::nullopt;
}

void NxWorkerPool::begin(Seat *seat, Job job, const QString &volume)
{
    seat->volume = volume;
    seat->isOpened = false;
    seat->idleTimer.stop();
    seat->slowTimer.start(milliseconds(m_settings.slowOpening));
    seat->limitTimer.start(milliseconds(m_settings.openingLimit));
    seat->job = std::move(job);
    seat->process->ask(seat->job->request);
}

void NxWorkerPool::onOpened(Seat *seat)
{
    constexpr quint8 pictures = rwCover | rwStrip;
    if (!seat->job)
        return;
    noteAnswer(seat);
    const bool isLong = (seat->job->request.wishes & pictures) != 0;
    seat->isOpened = true;
    seat->slowTimer.stop();
    seat->limitTimer.start(
        milliseconds(isLong ? m_settings.picturesLimit : m_settings.factsLimit));
}

void NxWorkerPool::onAnswered(Seat *seat, const NxReadAnswer &answer)
{
    if (!seat->job || answer.number != seat->job->request.number) {
        onEnded(seat, NxWorkerEnd::Confused, {}); // Its answers are to something else.
        return;
    }
    seat->slowTimer.stop();
    seat->limitTimer.stop();
    noteAnswer(seat);
    NxReadOutcome outcome;
    outcome.number = answer.number;
    outcome.answer = answer;
    outcome.volumeBack = seat->job->volumeBack;
    seat->job.reset();
    m_tell(std::move(outcome));
    feed(seat);
}

void NxWorkerPool::noteAnswer(Seat *seat)
{
    if (m_volumes.noteAnswer(seat->volume))
        seat->job->volumeBack = seat->volume;
}

void NxWorkerPool::tellSilent(const Job &job, const QString &volume)
{
    NxReadOutcome outcome;
    outcome.number = job.request.number;
    outcome.end = NxReadEnd::DriveSilent;
    outcome.reason = tr("The drive does not answer.");
    outcome.volume = volume;
    m_tell(std::move(outcome));
}

QString NxWorkerPool::volumeOf(const NxReadRequest &request)
{
    const bool areOld = m_rootsRead.count() < 0 || now() - m_rootsRead > RootsInterval;
    if (areOld && m_settings.volumeRoots) {
        m_roots = m_settings.volumeRoots();
        m_rootsRead = now();
    }
    return NxFileProbe::volumeOf(QFile::decodeName(request.path), m_roots);
}

std::chrono::milliseconds NxWorkerPool::now() const
{
    return std::chrono::milliseconds(m_clock.elapsed());
}
