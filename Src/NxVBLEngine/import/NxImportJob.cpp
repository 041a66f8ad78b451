// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/import/NxImportJob.h>

#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineUndoStack.h>
#include <NxVBLEngine/objects/NxSlice.h>
#include <NxVBLModel/NxFolderPath.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace {

bool isFinding(const NxWalkEntry &entry)
{
    return entry.step == NxWalkStep::File || entry.step == NxWalkStep::Refused
        || entry.step == NxWalkStep::Unreadable;
}

qint64 NxImportReport::*counterOf(NxImportVerdict verdict)
{
    // By NxImportVerdict. A copy is added, and counted there.
    static constexpr std::array<qint64 NxImportReport::*, 5> counters = {
        &NxImportReport::alreadyThere,
        nullptr,
        &NxImportReport::refused,
        &NxImportReport::unreadable,
        &NxImportReport::cancelled,
    };
    return counters[size_t(verdict)];
}

} // namespace

const std::array<NxImportJob::Handler, 9> NxImportJob::s_handlers = {
    &NxImportJob::takeFile,
    &NxImportJob::enterFolder,
    &NxImportJob::leaveFolder,
    &NxImportJob::countHidden,
    &NxImportJob::countOther,
    &NxImportJob::countTwice,
    &NxImportJob::refuse,
    &NxImportJob::noteUnreadable,
    &NxImportJob::endNamed,
};

NxImportJob::NxImportJob(
    quint64 number, NxEngineFolder *into, const QStringList &paths, int importKind)
    : m_number(number)
    , m_category(into->category())
    , m_memory(m_category->memory())
    , m_importKind(importKind)
    , m_intoPath(NxFolderPath::of(into))
    , m_levels{{into->folderId(), into->name()}}
{
    m_named.reserve(paths.size());
    for (const QString &path : paths)
        m_named.append(NxDirectoryWalker::named(path));
}

QVector<NxDirectoryWalker::Named> NxImportJob::namedToWalk() const
{
    return m_named.mid(m_namedWalked);
}

void NxImportJob::append(std::vector<NxWalkEntry> entries)
{
    if (m_stopped)
        return;
    for (const NxWalkEntry &entry : entries) {
        m_report.found += isFinding(entry);
        m_namedWalked += entry.step == NxWalkStep::NamedDone;
    }
    m_waiting.insert(m_waiting.end(), std::make_move_iterator(entries.begin()),
        std::make_move_iterator(entries.end()));
}

void NxImportJob::giveUpNamed()
{
    if (m_stopped || m_namedWalked == m_named.size())
        return;
    const NxDirectoryWalker::Named &named = m_named.at(m_namedWalked);
    NxWalkEntry unanswered;
    unanswered.step = NxWalkStep::Unreadable;
    unanswered.path = named.path;
    unanswered.given = named.given;
    unanswered.reason = tr("The drive does not answer.");
    NxWalkEntry done;
    done.step = NxWalkStep::NamedDone;
    append({unanswered, done});
}

void NxImportJob::addSlice(qint64 milliseconds)
{
    if (m_stopped || m_waiting.empty() || !mayGoOn())
        return;
    m_changed = false;
    NxEngineUndoStack *undo = m_memory->undoStack();
    undo->continueStep(m_step);
    {
        const NxUndoRedoCommander step(
            undo, QStringLiteral("NxImportJob::addSlice"), QStringLiteral("importMedia"));
        handleWaiting(milliseconds);
        flushGroup();
    }
    if (m_changed)
        m_step = undo->lastSerial();
    m_memory->flush();
}

void NxImportJob::handleWaiting(qint64 milliseconds)
{
    const NxSlice slice(milliseconds);
    while (!m_stopped && !m_waiting.empty() && !slice.isOver()) {
        const NxWalkEntry entry = std::move(m_waiting.front());
        m_waiting.pop_front();
        (this->*s_handlers[size_t(entry.step)])(entry);
    }
}

bool NxImportJob::noteTakenBack()
{
    m_takenBack = m_step != 0 && !m_memory->undoStack()->isDone(m_step);
    if (m_takenBack)
        stop(tr("What was imported has been taken back."));
    return m_takenBack;
}

bool NxImportJob::mayGoOn()
{
    if (noteTakenBack())
        return false;
    if (m_memory->isReadOnly()) {
        stop(tr("The project can no longer be written."));
    } else if (!m_category->folder(m_levels.front().folderId)) {
        stop(tr("The folder it was meant for has been removed."));
    }
    return !m_stopped;
}

void NxImportJob::stop(const QString &reason)
{
    if (m_stopped)
        return;
    m_stopped = true;
    dropGroup(reason);
    m_waiting.clear();
    for (int i = m_namedDone; i < m_named.size(); ++i)
        addLine(m_named.at(i).given, NxImportVerdict::Cancelled, reason, m_intoPath);
}

QVector<int> NxImportJob::touchedFolders()
{
    std::vector<const NxEngineFolder *> folders;
    for (const int id : std::exchange(m_touched, {})) {
        if (const NxEngineFolder *folder = m_category->folder(id))
            folders.push_back(folder);
    }
    std::sort(folders.begin(), folders.end(), [](const auto *a, const auto *b) {
        const bool sameDepth = a->depth() == b->depth();
        return sameDepth ? a->folderId() < b->folderId() : a->depth() > b->depth();
    });
    QVector<int> ids;
    for (const NxEngineFolder *folder : folders)
        ids.append(folder->folderId());
    return ids;
}

void NxImportJob::conclude()
{
    if (!m_stopped)
        noteTakenBack();
    const QVector<int> ids = touchedFolders();
    for (const int id : ids) {
        NxEngineFolder *folder = m_category->folder(id); // An observer may remove one.
        if (!folder)
            continue;
        m_category->itemObservers.tell([folder](INxMediaItemEventObserver *observer) {
            observer->onAllMediaChangedFinishEvent(folder);
        });
    }
}

// Report

qint64 NxImportJob::read()
{
    const auto isRead = [this](qint64 id) {
        const NxEngineMedia *media = m_memory->media(id);
        return !media || media->readState() != NxReadState::Unread;
    };
    while (m_readInARow < m_allAdded.size() && isRead(m_allAdded[m_readInARow]))
        ++m_readInARow;
    constexpr size_t reach = 1'000; // What is visible is read out of turn, but not by thousands.
    const size_t end = std::min(m_allAdded.size(), m_readInARow + reach);
    const auto first = m_allAdded.begin();
    return qint64(m_readInARow)
        + std::count_if(first + std::ptrdiff_t(m_readInARow), first + std::ptrdiff_t(end), isRead);
}

std::vector<qint64> NxImportJob::takeFresh()
{
    return std::exchange(m_fresh, {});
}

void NxImportJob::noteNotSaved(const QString &reason)
{
    addLine(m_memory->projectPath(), NxImportVerdict::Cancelled, reason, m_intoPath);
}

QString NxImportJob::meantFor() const
{
    QStringList names;
    for (size_t i = 1; i < m_levels.size(); ++i)
        names.append(m_levels[i].name);
    names.removeAll(QString());
    const QString below = NxFolderPath::join(names);
    if (m_intoPath.isEmpty() || below.isEmpty())
        return m_intoPath + below;
    return m_intoPath + QLatin1Char('/') + below;
}

void NxImportJob::addLine(const QString &path, NxImportVerdict verdict, const QString &reason,
    const QString &folder)
{
    m_report.lines.append({path, verdict, reason, folder});
    if (const auto counter = counterOf(verdict))
        ++(m_report.*counter);
}

NxImportReport NxImportJob::report() const
{
    NxImportReport report = m_report;
    if (!m_takenBack)
        return report;
    report.added = std::count_if(m_allAdded.begin(), m_allAdded.end(), [this](qint64 id) {
        const NxEngineMedia *media = m_memory->media(id);
        return media && media->folder();
    });
    return report;
}
