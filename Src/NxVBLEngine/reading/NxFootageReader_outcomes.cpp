// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
// What becomes of the answers that workers give.
#include <NxVBLEngine/reading/NxFootageReader.h>

#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxSlice.h>
#include <NxVBLEngine/reading/NxReadingThread.h>

#include <QPointer>

#include <array>
#include <utility>

namespace {

NxPictureState stateOf(const NxPictureAnswer &picture)
{
    // By NxPictureOutcome.
    static constexpr std::array<NxPictureState, 4> states = {NxPictureState::Unknown,
        NxPictureState::Made, NxPictureState::None, NxPictureState::Failed};
    return states[size_t(picture.outcome)];
}

void forgetPictures(NxFootageRecord *record)
{
    record->fingerprint = {};
    record->cover = NxPictureState::Unknown;
    record->coverReason.clear();
    record->strip = NxPictureState::Unknown;
    record->stripReason.clear();
}

void failPictures(NxFootageRecord *record, const QString &reason)
{
    record->cover = NxPictureState::Failed;
    record->coverReason = reason;
    record->strip = NxPictureState::Failed;
    record->stripReason = reason;
}

} // namespace

void NxFootageReader::applyOutcomes(const NxSlice &slice)
{
    if (m_outcomes.empty())
        return;
    const QPointer<NxFootageReader> self(this);
    while (self && !m_outcomes.empty() && !slice.isOver()) {
        const NxReadOutcome outcome = std::move(m_outcomes.front());
        m_outcomes.pop_front();
        apply(outcome);
    }
    if (self)
        m_memory->flush();
}

NxEngineMedia *NxFootageReader::landed(const Flight &flight)
{
    NxEngineMedia *media = m_memory->media(flight.media);
    if (!media || media->filePath() == flight.path)
        return media;
    const bool isWanted = m_readsAll || m_asked.contains(flight.media);
    if (media->folder() && isWanted)
        m_order.add(flight.media, NxReadWave::Facts); // Another file by now.
    return nullptr;
}

void NxFootageReader::apply(const NxReadOutcome &outcome)
{
    const auto found = m_flying.find(outcome.number);
    if (found == m_flying.end())
        return;
    const Flight flight = *found;
    m_flying.erase(found);
    QHash<qint64, int> &flights = m_flightsOf[size_t(flight.wave)];
    if (--flights[flight.media] == 0)
        flights.remove(flight.media);
    m_load -= weightOf(flight.wave);
    m_factsFlying -= flight.wave == NxReadWave::Facts;
    const QPointer<NxFootageReader> self(this);
    switch (outcome.end) {
    case NxReadEnd::Answered:
        if (NxEngineMedia *media = landed(flight))
            applyAnswer(media, flight, outcome.answer);
        break;
    case NxReadEnd::Killed:
        if (NxEngineMedia *media = landed(flight))
            applyKilled(media, flight, outcome.reason);
        break;
    case NxReadEnd::DriveSilent:
        park(flight, outcome.volume);
        break;
    case NxReadEnd::NoWorker:
        giveUp(outcome.reason);
        break;
    }
    if (self && !outcome.volumeBack.isEmpty())
        unpark(outcome.volumeBack);
}

bool NxFootageReader::mayHaveVanished(const NxEngineMedia &media, const NxReadAnswer &answer)
{
    const qint64 id = media.id();
    const bool wasSeen = answer.failure.isEmpty() || answer.stamp != NxFileStamp();
    if (wasSeen || m_anew.contains(id)) {
        m_doubted.remove(id);
        return false;
    }
    if (media.isAway())
        return true;
    if (m_doubted.contains(id) || media.readState() != NxReadState::Read)
        return false;
    // What is known of it, its fingerprint above all, is what finds it again.
    m_doubted.insert(id);
    return true;
}

void NxFootageReader::applyAnswer(
    NxEngineMedia *media, const Flight &flight, const NxReadAnswer &answer)
{
    const qint64 id = media->id();
    if (mayHaveVanished(*media, answer)) {
        forgetWishes(id);
        Q_EMIT looksWanted({id});
        return;
    }
    if (answer.changedMeanwhile && !answer.failure.isEmpty() && m_readsAll) {
        // Half a file says nothing about the whole one: it is read when it is quiet.
        readWhenQuiet(id, answer.stamp);
        return;
    }
    const bool isOther = media->stamp() != answer.stamp;
    if (flight.wave == NxReadWave::Facts)
        applyFacts(media, flight, answer);
    else if (isOther && m_readsAll)
        readWhenQuiet(id, answer.stamp); // It was written since its facts were read.
    else if (isOther)
        m_order.addVisible(id, NxReadWave::Facts);
    else
        applyPictures(media, answer);
}

void NxFootageReader::applyFacts(
    NxEngineMedia *media, const Flight &flight, const NxReadAnswer &answer)
{
    NxFootageRecord record = media->footage();
    const bool isAnew = m_anew.contains(flight.media) && wantsPictures(flight.media);
    if (record.stamp != answer.stamp || isAnew)
        forgetPictures(&record);
    record.state = answer.failure.isEmpty() ? NxReadState::Read : NxReadState::Failed;
    record.reason = answer.failure;
    record.stamp = answer.stamp;
    record.facts = answer.facts.value_or(NxFootageFacts());
    if (!answer.fingerprint.isNull())
        record.fingerprint = answer.fingerprint;
    const QPointer<NxFootageReader> self(this);
    m_memory->setFootage(media, record);
    media = self ? m_memory->media(flight.media) : nullptr;
    if (media)
        tellRead(media);
}

void NxFootageReader::tellRead(NxEngineMedia *media)
{
    ++m_done;
    m_announcer.note(media);
    addPictures(media);
    forgetWishes(media->id());
    Q_EMIT itemRead(media);
}

void NxFootageReader::applyPictures(NxEngineMedia *media, const NxReadAnswer &answer)
{
    NxFootageRecord record = media->footage();
    if (!answer.failure.isEmpty())
        failPictures(&record, answer.failure);
    else
        record.fingerprint = answer.fingerprint;
    if (answer.cover.outcome != NxPictureOutcome::NotAsked) {
        record.cover = stateOf(answer.cover);
        record.coverReason = answer.cover.reason;
    }
    if (answer.strip.outcome != NxPictureOutcome::NotAsked) {
        record.strip = stateOf(answer.strip);
        record.stripReason = answer.strip.reason;
    }
    NxFootageStreams &streams = record.facts.streams;
    if (streams.bitDepth == 0)
        streams.bitDepth = answer.bitDepth;
    if (streams.pixelFormat.isEmpty())
        streams.pixelFormat = answer.pixelFormat;
    const qint64 id = media->id();
    forgetWishes(id);
    const QPointer<NxFootageReader> self(this);
    m_memory->setFootage(media, record);
    media = self ? m_memory->media(id) : nullptr;
    if (media)
        Q_EMIT picturesMade(media);
}

void NxFootageReader::applyKilled(
    NxEngineMedia *media, const Flight &flight, const QString &reason)
{
    NxReadAnswer answer;
    answer.failure = reason;
    answer.stamp = {media->sourceSize(), media->record().modified};
    if (media->sourceSize() < 0)
        m_blamedUnseen.insert(media->id());
    if (flight.wave == NxReadWave::Facts)
        applyFacts(media, flight, answer);
    else
        applyPictures(media, answer);
}

void NxFootageReader::giveUp(const QString &reason)
{
    m_trouble = reason;
    m_order.clear();
    m_fresh.clear();
    m_asked.clear();
    m_anew.clear();
    m_doubted.clear();
    m_parked.clear();
}
