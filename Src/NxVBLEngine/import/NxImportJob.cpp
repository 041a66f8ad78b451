// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/import/NxImportJob.h>

#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineUndoStack.h>
#include <NxVBLModel/NxFolderPath.h>

#include <QElapsedTimer>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr qint64 LongestGroup = 2'000'000; // ns
constexpr int LargestGroup = 64;

const QString &canonical(const NxWalkEntry &entry)
{
    return entry.canonicalPath.isEmpty() ? entry.path : entry.canonicalPath;
}

const QString &shown(const NxWalkEntry &entry)
{
    return entry.given.isEmpty() ? entry.path : entry.given;
}

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
    QElapsedTimer clock;
    clock.start();
    while (!m_stopped && !m_waiting.empty() && !clock.hasExpired(milliseconds)) {
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

// Entries

NxEngineMedia *NxImportJob::knownMedia(const NxWalkEntry &entry) const
{
    return m_memory->mediaByPath(canonical(entry), m_category->categoryType());
}

void NxImportJob::takeFile(const NxWalkEntry &entry)
{
    if (m_groupPaths.contains(canonical(entry)))
        flushGroup();
    if (m_stopped) // By an observer.
        return;
    if (const NxEngineMedia *known = knownMedia(entry)) {
        noteKnown(entry, known);
        return;
    }
    Obstacle obstacle;
    const NxEngineFolder *folder = currentFolder(&obstacle);
    if (m_stopped)
        return;
    if (!folder) {
        addLine(shown(entry), obstacle.verdict, obstacle.reason, meantFor());
        if (!m_category->folder(m_levels.front().folderId))
            stop(obstacle.reason);
        return;
    }
    const int folderId = folder->folderId();
    if (m_groupFolder != folderId)
        flushGroup();
    if (!m_stopped)
        appendToGroup(entry, folderId);
}

void NxImportJob::appendToGroup(const NxWalkEntry &entry, int folderId)
{
    m_groupFolder = folderId;
    NxMediaSeed seed;
    seed.path = entry.path;
    seed.canonicalPath = entry.canonicalPath;
    seed.size = entry.facts.size;
    seed.created = entry.facts.created;
    seed.modified = entry.facts.modified;
    seed.importKind = m_importKind;
    m_group.append(seed);
    m_groupShown.append(shown(entry));
    m_groupPaths.insert(canonical(entry));
    if (m_group.size() >= m_groupSize)
        flushGroup();
}

void NxImportJob::noteKnown(const NxWalkEntry &entry, const NxEngineMedia *known)
{
    const bool isOfThisJob = m_firstAdded != 0 && known->id() >= m_firstAdded;
    if (entry.given.isEmpty() && (isOfThisJob || m_known.contains(known->id()))) {
        ++m_report.passedOverTwice;
        --m_report.found;
        return;
    }
    m_known.insert(known->id());
    const QString path = NxFolderPath::of(known->parentFolder());
    addLine(shown(entry), NxImportVerdict::AlreadyThere,
        tr("It is already in \"%1\".").arg(path.isEmpty() ? known->parentFolder()->name() : path),
        meantFor());
}

void NxImportJob::enterFolder(const NxWalkEntry &entry)
{
    if (!entry.name.isEmpty()) {
        m_levels.push_back({0, entry.name});
        return;
    }
    // The top of a disk has no name: its files come in directly.
    m_levels.push_back({m_levels.back().folderId, QString()});
}

void NxImportJob::leaveFolder(const NxWalkEntry &)
{
    m_levels.pop_back();
}

void NxImportJob::countHidden(const NxWalkEntry &)
{
    ++m_report.passedOverHidden;
}

void NxImportJob::countOther(const NxWalkEntry &)
{
    ++m_report.passedOverOther;
}

void NxImportJob::countTwice(const NxWalkEntry &)
{
    ++m_report.passedOverTwice;
}

void NxImportJob::refuse(const NxWalkEntry &entry)
{
    addLine(shown(entry), NxImportVerdict::Refused, entry.reason, meantFor());
}

void NxImportJob::noteUnreadable(const NxWalkEntry &entry)
{
    if (const NxEngineMedia *known = knownMedia(entry)) {
        noteKnown(entry, known);
        return;
    }
    if (entry.given.isEmpty() && m_unreadable.contains(canonical(entry))) {
        ++m_report.passedOverTwice;
        --m_report.found;
        return;
    }
    m_unreadable.insert(canonical(entry));
    addLine(shown(entry), NxImportVerdict::Unreadable, entry.reason, meantFor());
}

void NxImportJob::endNamed(const NxWalkEntry &)
{
    ++m_namedDone;
    m_levels.resize(1); // A walk that was given up left its folders open.
}

// Adding

NxEngineFolder *NxImportJob::childFor(NxEngineFolder *parent, Level *level)
{
    if (level->folderId != 0)
        return m_category->folder(level->folderId);
    NxEngineFolder *child = parent->childNamed(level->name);
    if (!child && parent->canAddFolder()) {
        child = m_memory->addNewFolder(parent, level->name);
        m_changed = m_changed || child;
        m_report.foldersAdded += child ? 1 : 0;
    }
    if (child)
        level->folderId = child->folderId();
    return child;
}

NxEngineFolder *NxImportJob::currentFolder(Obstacle *obstacle)
{
    obstacle->reason = tr("The folder it was meant for has been removed.");
    if (m_levels.back().folderId != 0)
        return m_category->folder(m_levels.back().folderId);
    NxEngineFolder *folder = m_category->folder(m_levels.front().folderId);
    for (size_t i = 1; i < m_levels.size() && folder; ++i) {
        folder = childFor(folder, &m_levels[i]);
        if (!folder && m_levels[i].folderId == 0) {
            const QString name = m_levels[i].name;
            *obstacle = {NxImportVerdict::Refused,
                tr("The folder \"%1\" cannot be made here.").arg(name)};
        }
    }
    return folder;
}

void NxImportJob::flushGroup()
{
    if (m_group.isEmpty())
        return;
    NxEngineFolder *folder = m_category->folder(m_groupFolder);
    if (!folder) {
        dropGroup(tr("The folder it was meant for has been removed."));
        return;
    }
    // Taken out first: an observer may stop the job.
    const int folderId = m_groupFolder;
    const QVector<NxMediaSeed> group = std::exchange(m_group, {});
    m_groupShown.clear();
    m_groupPaths.clear();
    QElapsedTimer clock;
    clock.start();
    const QVector<NxEngineMedia *> added = m_memory->addNewMedia(folder, group);
    const qint64 each = std::max<qint64>(clock.nsecsElapsed() / group.size(), 1);
    m_groupSize = int(std::clamp<qint64>(LongestGroup / each, 1, LargestGroup));
    if (added.isEmpty()) {
        stop(tr("The project can no longer be written."));
        return;
    }
    noteAdded(added, folderId);
}

void NxImportJob::noteAdded(const QVector<NxEngineMedia *> &added, int folderId)
{
    m_changed = true;
    m_touched.insert(folderId);
    if (m_firstAdded == 0)
        m_firstAdded = added.first()->id();
    for (const NxEngineMedia *media : added) {
        m_fresh.push_back(media->id());
        m_allAdded.push_back(media->id());
    }
}

void NxImportJob::dropGroup(const QString &reason)
{
    for (const QString &path : std::as_const(m_groupShown))
        addLine(path, NxImportVerdict::Cancelled, reason, meantFor());
    m_group.clear();
    m_groupShown.clear();
    m_groupPaths.clear();
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
