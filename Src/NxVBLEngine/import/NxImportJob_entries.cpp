// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What a job does with each entry of a walk, and how it adds media and folders.

#include <NxVBLEngine/import/NxImportJob.h>

#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLModel/NxFolderPath.h>

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace {

constexpr qint64 LongestGroup = 2'000'000; // ns
constexpr int LargestGroup = 64;

} // namespace

// Entries

NxEngineMedia *NxImportJob::knownMedia(const NxWalkEntry &entry) const
{
    return m_memory->mediaByPath(entry.realPath(), m_category->categoryType());
}

void NxImportJob::takeFile(const NxWalkEntry &entry)
{
    if (m_groupPaths.contains(entry.realPath()))
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
        addLine(entry.shownPath(), obstacle.verdict, obstacle.reason, meantFor());
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
    m_groupShown.append(entry.shownPath());
    m_groupPaths.insert(entry.realPath());
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
    addLine(entry.shownPath(), NxImportVerdict::AlreadyThere,
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
    addLine(entry.shownPath(), NxImportVerdict::Refused, entry.reason, meantFor());
}

void NxImportJob::noteUnreadable(const NxWalkEntry &entry)
{
    if (const NxEngineMedia *known = knownMedia(entry)) {
        noteKnown(entry, known);
        return;
    }
    if (entry.given.isEmpty() && m_unreadable.contains(entry.realPath())) {
        ++m_report.passedOverTwice;
        --m_report.found;
        return;
    }
    m_unreadable.insert(entry.realPath());
    addLine(entry.shownPath(), NxImportVerdict::Unreadable, entry.reason, meantFor());
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
