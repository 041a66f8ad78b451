// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxFootageReader.h>

#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxSlice.h>
#include <NxVBLEngine/reading/NxReadRequests.h>
#include <NxVBLEngine/reading/NxReadingThread.h>
#include <NxWorkerProtocol/NxPictureFile.h>

#include <QPointer>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr int ProgressInterval = 100; // ms
constexpr int WeightPerWorker = 16;

NxFootageStatus statusOf(NxPictureState state)
{
    // By NxPictureState.
    static constexpr std::array<NxFootageStatus, 4> statuses = {
        NxFootageStatus::Waiting, NxFootageStatus::Done, NxFootageStatus::NoneThere,
        NxFootageStatus::Failed};
    return statuses[size_t(state)];
}

NxFootageStatus statusOf(NxReadState state)
{
    // By NxReadState.
    static constexpr std::array<NxFootageStatus, 3> statuses = {
        NxFootageStatus::Waiting, NxFootageStatus::Done, NxFootageStatus::Failed};
    return statuses[size_t(state)];
}

QByteArray hex(const NxFingerprint &fingerprint)
{
    constexpr int digits = 16;
    return QByteArray::number(fingerprint.high, 16).rightJustified(digits, '0')
           + QByteArray::number(fingerprint.low, 16).rightJustified(digits, '0');
}

} // namespace

NxFootageReader::NxFootageReader(NxProjectMemory *memory, NxWorkerSettings settings)
    : m_memory(memory),
      m_settings(std::move(settings)),
      m_bell([this] { m_pumpTimer.start(); }),
      m_announcer(memory)
{
    // A timer, not the bell itself: between two of its turns all other events get theirs.
    m_pumpTimer.setSingleShot(true);
    m_pumpTimer.setInterval(0);
    connect(&m_pumpTimer, &QTimer::timeout, this, &NxFootageReader::pump);
    m_quietTimer.setSingleShot(true);
    m_quietTimer.setInterval(int(NxQuietFiles::Quiet));
    connect(&m_quietTimer, &QTimer::timeout, this, &NxFootageReader::askQuiet);
    m_parkedTimer.setSingleShot(true);
    m_parkedTimer.setInterval(int(m_settings.silentPause.count()));
    connect(&m_parkedTimer, &QTimer::timeout, this, &NxFootageReader::tryParked);
    connect(m_memory, &NxProjectMemory::applied, this, &NxFootageReader::onApplied);
    m_clock.start();
    m_sinceProgress.start();
}

NxFootageReader::~NxFootageReader() = default;

std::vector<qint64> NxFootageReader::workerProcessIds()
{
    return m_thread ? m_thread->processIds() : std::vector<qint64>();
}

NxFootageState NxFootageReader::state(const INxAbstractMediaItem *item) const
{
    NxFootageState state;
    const auto *media = dynamic_cast<const NxEngineMedia *>(item);
    if (!media)
        return state;
    const NxFootageRecord record = media->footage();
    const auto pathOf = [this, &record](NxPictureKind kind, NxPictureState made) {
        return made == NxPictureState::Made && !record.fingerprint.isNull()
                   ? m_settings.cacheFolder + QLatin1Char('/')
                         + NxPictureFile::name(record.fingerprint, kind)
                   : QString();
    };
    state.facts = statusOf(record.state);
    state.reason = record.reason;
    state.cover = statusOf(record.cover);
    state.coverReason = record.coverReason;
    state.coverPath = pathOf(NxPictureKind::Cover, record.cover);
    state.strip = statusOf(record.strip);
    state.stripReason = record.stripReason;
    state.stripPath = pathOf(NxPictureKind::Strip, record.strip);
    if (!record.fingerprint.isNull())
        state.fingerprint = hex(record.fingerprint);
    return state;
}

bool NxFootageReader::isIdle() const
{
    return m_fresh.empty() && m_flying.isEmpty() && m_outcomes.empty()
           && m_order.waiting(NxReadWave::Facts) == 0 && m_order.waiting(NxReadWave::Pictures) == 0;
}

void NxFootageReader::pumpLater()
{
    m_busy = true;
    m_pumpTimer.start();
}

void NxFootageReader::pump()
{
    const QPointer<NxFootageReader> self(this);
    if (m_thread) {
        for (NxReadOutcome &outcome : m_thread->take())
            m_outcomes.push_back(std::move(outcome));
    }
    const NxSlice slice;
    applyOutcomes(slice);
    if (!self)
        return;
    fileFresh(slice);
    submit();
    if (!m_outcomes.empty() || !m_fresh.empty())
        m_pumpTimer.start();
    finishBatch();
}

void NxFootageReader::submit()
{
    if (!m_trouble.isEmpty()) {
        giveUp(m_trouble);
        return;
    }
    std::vector<NxReadRequest> requests;
    const int budget = std::max(m_settings.workers, 1) * WeightPerWorker;
    const NxSlice slice; // Of its own: the workers must not wait for what they sent.
    while (m_load < budget) {
        if (slice.isOver()) {
            m_pumpTimer.start(); // Many wait whose files are away.
            break;
        }
        const std::optional<NxReadingOrder::Item> item = m_order.take();
        if (!item)
            break;
        submit(*item, &requests);
    }
    if (requests.empty())
        return;
    if (!m_thread)
        m_thread = std::make_unique<NxReadingThread>(m_settings, m_bell.rope());
    m_thread->add(std::move(requests));
}

void NxFootageReader::submit(const NxReadingOrder::Item &item, std::vector<NxReadRequest> *requests)
{
    const NxEngineMedia *media = m_memory->media(item.media);
    if (!media || !media->folder() || media->isAway()) {
        forgetWishes(item.media);
        return;
    }
    Flight flight;
    flight.media = item.media;
    flight.path = media->filePath();
    flight.wave = item.wave;
    const quint64 number = ++m_lastNumber;
    m_flying.insert(number, flight);
    ++m_flightsOf[size_t(item.wave)][item.media];
    m_load += weightOf(item.wave);
    m_factsFlying += item.wave == NxReadWave::Facts;
    requests->push_back(NxReadRequests::of(number, flight.path, wishesFor(item)));
}

quint8 NxFootageReader::wishesFor(const NxReadingOrder::Item &item) const
{
    constexpr quint8 pictures = rwFingerprint | rwCover | rwStrip;
    if (item.wave == NxReadWave::Pictures)
        return pictures | (m_anew.contains(item.media) ? rwAnew : 0);
    const bool identified = (m_asked.value(item.media) & wFingerprint) != 0;
    return rwFacts | (identified ? rwFingerprint : 0);
}

void NxFootageReader::finishBatch()
{
    const QPointer<NxFootageReader> self(this);
    const qint64 waiting = m_order.waiting(NxReadWave::Facts) + m_factsFlying;
    if (m_busy && (isIdle() || m_sinceProgress.hasExpired(ProgressInterval))) {
        m_sinceProgress.start();
        Q_EMIT progress(m_done, m_done + waiting);
    }
    if (self && waiting == 0 && m_announcer.isAnythingNoted())
        m_announcer.announce();
    if (!self || !isIdle() || !std::exchange(m_busy, false))
        return;
    m_done = 0;
    Q_EMIT idle(); // Last: whoever hears it may close the project.
}
