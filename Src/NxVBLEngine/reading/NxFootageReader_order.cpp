// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
// Which files are to be read, and when.
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxSlice.h>
#include <NxVBLEngine/reading/NxFootageReader.h>
#include <NxVBLEngine/reading/NxReadingThread.h>

#include <QPointer>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

/// What failed is not tried again by itself.
bool needsPictures(const NxEngineMedia *media)
{
    const NxPictureState cover = media->coverState();
    const NxPictureState strip = media->stripState();
    const bool isUntried = cover == NxPictureState::Unknown || strip == NxPictureState::Unknown;
    const bool hasFailed = cover == NxPictureState::Failed || strip == NxPictureState::Failed;
    return media->readState() == NxReadState::Read
        && (isUntried || (media->fingerprint().isNull() && !hasFailed));
}

} // namespace

void NxFootageReader::start()
{
    if (std::exchange(m_readsAll, true))
        return;
    m_fresh.clear();
    for (const NxEngineMedia *media : m_memory->livingMedia())
        m_fresh.push_back(media->id());
    std::sort(m_fresh.begin(), m_fresh.end()); // Ids grow: it is the order of their import.
    pumpLater();
}

void NxFootageReader::stop()
{
    m_readsAll = false;
    m_order.clear();
    m_fresh.clear();
    m_asked.clear();
    m_anew.clear();
    m_doubted.clear();
    m_parked.clear();
    m_parkedTimer.stop();
    m_quiet.clear();
    m_quietTimer.stop();
    pumpLater();
}

void NxFootageReader::read(const QList<INxAbstractMediaItem *> &items, int wishes)
{
    for (INxAbstractMediaItem *item : items) {
        const auto *media = dynamic_cast<const NxEngineMedia *>(item);
        if (!media || !media->folder())
            continue;
        m_asked[media->id()] |= wishes;
        m_anew.insert(media->id());
        m_order.addVisible(media->id(), NxReadWave::Facts);
    }
    pumpLater();
}

void NxFootageReader::want(const QList<INxAbstractMediaItem *> &items, int wishes)
{
    for (INxAbstractMediaItem *item : items) {
        const auto *media = dynamic_cast<const NxEngineMedia *>(item);
        if (media && media->folder())
            (void)wantOne(media, wishes); // Even when there is nothing to do, idle() follows.
    }
    pumpLater();
}

void NxFootageReader::wantVisible(const NxEngineMedia *media)
{
    if (media->folder() && !media->isAway() && wantOne(media, wFacts | wPictures))
        pumpLater();
}

bool NxFootageReader::wantOne(const NxEngineMedia *media, int wishes)
{
    const qint64 id = media->id();
    const bool wantsFingerprint = (wishes & wFingerprint) != 0 && media->fingerprint().isNull();
    const bool isUnread = media->readState() == NxReadState::Unread;
    const bool isRead = media->readState() == NxReadState::Read;
    if (isUnread || (isRead && wantsFingerprint)) {
        m_asked[id] |= wishes;
        if (isFlying(id, NxReadWave::Facts) && !wantsFingerprint)
            return false;
        m_order.addVisible(id, NxReadWave::Facts);
        return true;
    }
    const bool isWanted = (wishes & wPictures) != 0 && needsPictures(media)
        && !isFlying(id, NxReadWave::Pictures);
    if (isWanted)
        m_order.addVisible(id, NxReadWave::Pictures);
    return isWanted;
}

void NxFootageReader::notePictureGone(NxEngineMedia *media)
{
    const qint64 id = media->id();
    NxFootageRecord record = media->footage();
    for (NxPictureState *state : {&record.cover, &record.strip}) {
        if (*state == NxPictureState::Made)
            *state = NxPictureState::Unknown;
    }
    const QPointer<NxFootageReader> self(this);
    m_memory->setFootage(media, record);
    const NxEngineMedia *known = self ? m_memory->media(id) : nullptr;
    if (known)
        wantVisible(known);
}

// What changes on disk

void NxFootageReader::noteSeen(qint64 id, const NxFileStamp &stamp)
{
    NxEngineMedia *media = m_memory->media(id);
    if (!m_readsAll || !media || !media->folder() || isUnderWay(id, NxReadWave::Facts))
        return;
    if (m_blamedUnseen.remove(id) && media->readState() == NxReadState::Failed) {
        NxFootageRecord record = media->footage();
        record.stamp = stamp; // Whatever happened to it happened to the file as it is.
        m_memory->setFootage(media, record);
        return;
    }
    const bool isNew = media->readState() == NxReadState::Unread && !m_quiet.contains(id);
    if (isNew || media->stamp() == stamp) {
        m_quiet.forget(id);
        file(media);
    } else if (m_quiet.noteSeen(id, stamp, m_clock.elapsed())) {
        m_order.add(id, NxReadWave::Facts);
        pumpLater();
    } else if (!m_quietTimer.isActive()) {
        m_quietTimer.start();
    }
}

void NxFootageReader::readWhenQuiet(qint64 media, const NxFileStamp &stamp)
{
    if (m_quiet.contains(media))
        return;
    (void)m_quiet.noteSeen(media, stamp, m_clock.elapsed()); // The first time it never is.
    if (!m_quietTimer.isActive())
        m_quietTimer.start();
}

void NxFootageReader::askQuiet()
{
    std::vector<qint64> due;
    for (const qint64 id : m_quiet.due(m_clock.elapsed())) {
        const NxEngineMedia *media = m_memory->media(id);
        if (media && media->folder() && !media->isAway())
            due.push_back(id);
        else
            m_quiet.forget(id); // Should it come back, it is seen again.
    }
    if (!m_quiet.isEmpty())
        m_quietTimer.start();
    if (!due.empty())
        Q_EMIT looksWanted(due);
}

void NxFootageReader::onApplied(const NxChange &change)
{
    const bool bringsFiles
        = change.what == NxChangeKind::MediaAdd || change.what == NxChangeKind::MediaRelink;
    if (!bringsFiles || !m_readsAll)
        return;
    for (const qint64 id : change.ids)
        m_quiet.forget(id);
    m_fresh.insert(m_fresh.end(), change.ids.begin(), change.ids.end());
    pumpLater();
}

void NxFootageReader::fileFresh(const NxSlice &slice)
{
    while (!m_fresh.empty() && !slice.isOver()) {
        const NxEngineMedia *media = m_memory->media(m_fresh.front());
        m_fresh.pop_front();
        if (media && media->folder())
            file(media);
    }
}

void NxFootageReader::file(const NxEngineMedia *media)
{
    const bool isUnread = media->readState() == NxReadState::Unread;
    const NxReadWave wave = isUnread ? NxReadWave::Facts : NxReadWave::Pictures;
    if ((!isUnread && !needsPictures(media)) || isUnderWay(media->id(), wave))
        return;
    m_order.add(media->id(), wave);
    pumpLater();
}

bool NxFootageReader::isFlying(qint64 media, NxReadWave wave) const
{
    return m_flightsOf[size_t(wave)].contains(media);
}

bool NxFootageReader::isUnderWay(qint64 media, NxReadWave wave) const
{
    return isFlying(media, wave) || m_order.contains(media, wave);
}

void NxFootageReader::forgetWishes(qint64 media)
{
    const bool isUsed = isUnderWay(media, NxReadWave::Facts)
        || isUnderWay(media, NxReadWave::Pictures);
    if (isUsed)
        return;
    m_asked.remove(media);
    m_anew.remove(media);
}

bool NxFootageReader::wantsPictures(qint64 media) const
{
    return m_readsAll || (m_asked.value(media) & wPictures) != 0;
}

void NxFootageReader::addPictures(const NxEngineMedia *media)
{
    if (!needsPictures(media) || !wantsPictures(media->id()))
        return;
    if (m_asked.contains(media->id()))
        m_order.addVisible(media->id(), NxReadWave::Pictures);
    else
        m_order.add(media->id(), NxReadWave::Pictures);
}

// Drives that do not answer

void NxFootageReader::park(const Flight &flight, const QString &volume)
{
    if (!m_readsAll && !m_asked.contains(flight.media))
        return;
    m_parked[volume].push_back({flight.media, flight.wave});
    if (!m_parkedTimer.isActive())
        m_parkedTimer.start();
}

void NxFootageReader::addAgain(const NxReadingOrder::Item &item)
{
    const NxEngineMedia *media = m_memory->media(item.media);
    if (!media || !media->folder())
        return;
    if (m_asked.contains(item.media))
        m_order.addVisible(item.media, item.wave);
    else
        file(media); // What was read in the meantime is not read again.
}

void NxFootageReader::unpark(const QString &volume)
{
    for (const NxReadingOrder::Item &item : m_parked.take(volume))
        addAgain(item);
    pumpLater();
}

void NxFootageReader::tryParked()
{
    for (auto volume = m_parked.begin(); volume != m_parked.end();) {
        addAgain(volume->front());
        volume->pop_front();
        volume = volume->empty() ? m_parked.erase(volume) : std::next(volume);
    }
    if (!m_parked.isEmpty())
        m_parkedTimer.start(); // The one that is tried may be gone and never come back here.
    pumpLater();
}
