// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/relink/NxRelinkJob.h>

#include <NxVBLEngine/import/NxImportRules.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxSlice.h>
#include <NxVBLEngine/reading/NxFileLength.h>
#include <NxVBLEngine/reading/NxReadRequests.h>
#include <NxVBLEngine/relink/NxRelinkMatcher.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

QString fileName(const QString &path)
{
    return path.section(QLatin1Char('/'), -1);
}

qint64 sizeOf(const NxEngineMedia *media)
{
    if (media->sourceSize() >= 0)
        return media->sourceSize();
    return media->stamp().size >= 0 ? media->stamp().size : media->fingerprint().size;
}

} // namespace

NxRelinkJob::NxRelinkJob(quint64 number, const QList<INxAbstractMediaItem *> &items,
                         const NxProjectMemory *memory)
    : m_number(number),
      m_memory(memory)
{
    m_wanted.reserve(size_t(items.size()));
    for (INxAbstractMediaItem *item : items) {
        m_wanted.push_back(wantedOf(item));
        const NxRelinkWanted &wanted = m_wanted.back();
        if (!wanted.fingerprint.isNull())
            m_sizes.insert(wanted.fingerprint.size);
        if (wanted.size >= 0)
            m_namesAndSizes.insert({wanted.name, wanted.size});
    }
}

NxRelinkWanted NxRelinkJob::wantedOf(INxAbstractMediaItem *item) const
{
    NxRelinkWanted wanted;
    wanted.media = NxMediaRef(item);
    const auto *media = dynamic_cast<const NxEngineMedia *>(item);
    if (!media || !media->folder() || m_memory->media(media->id()) != media)
        return wanted;
    wanted.id = media->id();
    wanted.path = media->filePath();
    wanted.name = fileName(wanted.path);
    wanted.size = sizeOf(media);
    wanted.fingerprint = media->fingerprint();
    if (media->readState() == NxReadState::Read)
        wanted.length = media->mediaInfo()->duration();
    return wanted;
}

// The walk

void NxRelinkJob::append(std::vector<NxWalkEntry> entries)
{
    if (m_stage == Stage::Over)
        return;
    m_waiting.insert(m_waiting.end(), std::make_move_iterator(entries.begin()),
                     std::make_move_iterator(entries.end()));
}

void NxRelinkJob::giveUpWalk(const QString &directory)
{
    noteLeftOut(directory, tr("The drive does not answer."));
    endWalk();
}

void NxRelinkJob::work(qint64 milliseconds)
{
    const NxSlice slice(milliseconds);
    while (!m_waiting.empty() && !slice.isOver()) {
        const NxWalkEntry entry = std::move(m_waiting.front());
        m_waiting.pop_front();
        handle(entry);
    }
}

void NxRelinkJob::handle(const NxWalkEntry &entry)
{
    const bool isFile = entry.step == NxWalkStep::File;
    const bool isNamed = !entry.given.isEmpty();
    const bool isFileByName = entry.step == NxWalkStep::Refused && isNamed
                              && entry.reason == NxImportRules::refusalOfNamed(entry.path);
    if ((isFile && isNamed) || isFileByName)
        noteLeftOut(entry.path, tr("It is not a folder."));
    else if (isFile)
        takeFile(entry);
    else if (!entry.reason.isEmpty())
        noteLeftOut(entry.path, entry.reason);
}

void NxRelinkJob::takeFile(const NxWalkEntry &entry)
{
    ++m_seen;
    NxRelinkCandidate file;
    file.path = entry.path;
    file.name = fileName(entry.path);
    file.size = entry.facts.size;
    const bool mayHaveContents = m_sizes.contains(file.size);
    if (!mayHaveContents && !m_namesAndSizes.contains({file.name, file.size}))
        return;
    if (isKnown(entry.path) || isKnown(entry.realPath()))
        return;
    const auto twin = m_byRealPath.constFind(entry.realPath());
    if (twin != m_byRealPath.constEnd()) {
        NxRelinkCandidate &known = m_candidates[size_t(*twin)];
        if (entry.canonicalPath.isEmpty()) { // The file itself, not one more link to it.
            known.path = file.path;
            known.name = file.name;
        }
        return;
    }
    const int place = int(m_candidates.size());
    m_byRealPath.insert(entry.realPath(), place);
    m_candidates.push_back(file);
    if (mayHaveContents)
        m_asks.push_back({place, rwFingerprint});
}

bool NxRelinkJob::isKnown(const QString &path) const
{
    return !m_memory->allMediaByPath(path).isEmpty();
}

// What workers read

std::vector<NxReadRequest> NxRelinkJob::takeRequests(int most, quint64 *lastNumber)
{
    std::vector<NxReadRequest> requests;
    if (!m_noWorkers.isEmpty() && !m_asks.empty())
        noteNotCompared();
    if (m_flying.size() > most / 2)
        return requests;
    while (!m_asks.empty() && m_flying.size() < most) {
        const Ask ask = m_asks.front();
        m_asks.pop_front();
        const QString &path = m_candidates[size_t(ask.candidate)].path;
        requests.push_back(NxReadRequests::of(++*lastNumber, path, ask.wishes));
        m_flying.insert(*lastNumber, ask);
    }
    return requests;
}

void NxRelinkJob::noteNotCompared()
{
    note(tr("Not all files could be compared. %1").arg(m_noWorkers));
    m_asks.clear();
}

bool NxRelinkJob::take(const NxReadOutcome &outcome)
{
    const auto found = m_flying.find(outcome.number);
    if (found == m_flying.end())
        return false;
    const Ask ask = *found;
    m_flying.erase(found);
    switch (outcome.end) {
    case NxReadEnd::Answered:
        takeAnswer(ask, outcome.answer);
        break;
    case NxReadEnd::Killed:
        failCandidate(ask, outcome.reason);
        break;
    case NxReadEnd::DriveSilent:
        // One sentence for all files of the drive.
        failCandidate(ask, outcome.reason, outcome.volume);
        break;
    case NxReadEnd::NoWorker:
        m_noWorkers = outcome.reason;
        noteNotCompared();
        break;
    }
    return true;
}

void NxRelinkJob::takeAnswer(const Ask &ask, const NxReadAnswer &answer)
{
    if (!answer.failure.isEmpty()) {
        failCandidate(ask, answer.failure);
        return;
    }
    NxRelinkCandidate &file = m_candidates[size_t(ask.candidate)];
    m_compared += file.fingerprint.isNull(); // Not counted again when its length is read.
    if ((ask.wishes & rwFingerprint) != 0)
        file.fingerprint = answer.fingerprint;
    if (answer.facts)
        file.length = NxFileLength::of(*answer.facts);
}

void NxRelinkJob::failCandidate(const Ask &ask, const QString &reason, const QString &volume)
{
    NxRelinkCandidate &file = m_candidates[size_t(ask.candidate)];
    noteLeftOut(volume.isEmpty() ? file.path : volume, reason);
    file.isOut = file.isOut || (ask.wishes & rwFingerprint) != 0; // A damaged film has a name.
}

// The end

void NxRelinkJob::cancel()
{
    if (m_stage == Stage::Over)
        return;
    m_cancelled = true;
    m_stage = Stage::Over;
    m_waiting.clear();
    m_asks.clear();
    m_flying.clear();
}

bool NxRelinkJob::goOnToEnd()
{
    const bool isDone = m_walkOver && m_waiting.empty() && m_asks.empty() && m_flying.isEmpty();
    if (m_stage == Stage::Contents && isDone) {
        m_stage = Stage::Lengths;
        leaveOutKnown();
        const NxRelinkMatcher matcher(m_wanted, m_candidates);
        for (const int candidate : matcher.lengthsNeeded())
            m_asks.push_back({candidate, rwFacts});
    } else if (m_stage == Stage::Lengths && isDone) {
        m_stage = Stage::Over;
    }
    return m_stage == Stage::Over;
}

void NxRelinkJob::forgetChanged()
{
    for (NxRelinkWanted &wanted : m_wanted) {
        if (wanted.id == 0)
            continue;
        const NxEngineMedia *media = m_memory->media(wanted.id);
        if (media && media->folder() && media->filePath() == wanted.path)
            continue;
        wanted.media = NxMediaRef();
        wanted.id = 0;
    }
}

void NxRelinkJob::leaveOutKnown()
{
    for (auto it = m_byRealPath.constBegin(); it != m_byRealPath.constEnd(); ++it) {
        NxRelinkCandidate &file = m_candidates[size_t(it.value())];
        file.isOut = file.isOut || isKnown(file.path) || isKnown(it.key());
    }
}

NxRelinkReport NxRelinkJob::report()
{
    forgetChanged();
    leaveOutKnown(); // Others may have got them while the search went on.
    NxRelinkReport report;
    report.findings = NxRelinkMatcher(m_wanted, m_candidates).findings();
    report.unreadable = m_unreadable;
    report.cancelled = m_cancelled;
    return report;
}

void NxRelinkJob::note(const QString &sentence)
{
    if (m_noted.contains(sentence))
        return;
    m_noted.insert(sentence);
    m_unreadable.append(sentence);
}

void NxRelinkJob::noteLeftOut(const QString &path, const QString &reason)
{
    note(tr("\"%1\" was left out. %2").arg(path, reason));
}
