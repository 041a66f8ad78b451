// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/import/NxEngineImporter.h>

#include <NxCore/NxLog.h>
#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLEngine/disk/NxDiskThread.h>
#include <NxVBLEngine/import/NxImportChannel.h>
#include <NxVBLEngine/import/NxImportJob.h>
#include <NxVBLEngine/import/NxImportNow.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxSlice.h>
#include <NxVBLEngine/store/NxProjectStore.h>

#include <QPointer>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace {

constexpr qint64 ProgressInterval = 100; // ms
constexpr int EnoughWaiting = int(NxImportChannel::MostWaiting);

} // namespace

NxEngineImporter::NxEngineImporter(NxProjectMemory *memory, NxEngineCategory *category,
    std::shared_ptr<NxDiskThread> disk, NxProjectStore *store, NxFileLook look)
    : m_memory(memory)
    , m_category(category)
    , m_disk(std::move(disk))
    , m_store(store)
    , m_look(std::move(look))
    , m_bell([this] { pumpLater(); })
{
    m_sinceProgress.start();
    // A timer, not the bell itself: between two of its turns all other events get theirs.
    m_pumpTimer.setSingleShot(true);
    m_pumpTimer.setInterval(0);
    connect(&m_pumpTimer, &QTimer::timeout, this, &NxEngineImporter::pump);
}

NxEngineImporter::~NxEngineImporter()
{
    if (m_channel)
        m_channel->cancel();
}

NxEngineFolder *NxEngineImporter::checkedFolder(INxFolderMedia *into) const
{
    if (m_memory->isReadOnly()) {
        NX_LOG_ERROR("nothing can be imported: the project is read-only");
        return nullptr;
    }
    NxEngineFolder *folder = into ? m_category->folder(into->folderId()) : nullptr;
    if (folder && folder == into && folder->canAddMedia())
        return folder;
    NX_LOG_ERROR("nothing can be imported into this folder");
    return nullptr;
}

quint64 NxEngineImporter::start(INxFolderMedia *into, const QStringList &paths, int importKind)
{
    NxEngineFolder *folder = checkedFolder(into);
    if (!folder)
        return 0;
    m_jobs.push_back(std::make_unique<NxImportJob>(++m_lastJob, folder, paths, importKind));
    pumpLater();
    return m_lastJob;
}

QList<INxAbstractMediaItem *> NxEngineImporter::addNow(
    INxFolderMedia *into, const QStringList &paths, NxImportReport *report)
{
    NxEngineFolder *folder = checkedFolder(into);
    if (!folder)
        return {};
    NxImportNow import(folder);
    const QList<INxAbstractMediaItem *> items = import.add(paths);
    if (report)
        *report = import.report();
    return items;
}

void NxEngineImporter::cancel(quint64 number)
{
    const auto found = std::find_if(m_jobs.begin(), m_jobs.end(),
        [number](const auto &job) { return job->number() == number; });
    if (found == m_jobs.end())
        return;
    if (found == m_jobs.begin()) {
        endJob(tr("The import was cancelled."));
        return;
    }
    const std::unique_ptr<NxImportJob> job = std::move(*found);
    m_jobs.erase(found);
    job->stop(tr("The import was cancelled."));
    Q_EMIT finished(number, job->report());
}

void NxEngineImporter::stopAll()
{
    const QPointer<NxEngineImporter> self(this);
    while (self && m_jobs.size() > 1)
        cancel(m_jobs.back()->number());
    if (!self || m_jobs.empty())
        return;
    endJob(tr("The project was closed."));
    if (!m_pumping)
        goOnToEnd();
}

void NxEngineImporter::endJob(const QString &reason)
{
    m_jobs.front()->stop(reason);
    if (m_channel)
        m_channel->cancel();
    pumpLater();
}

NxImportJob *NxEngineImporter::currentJob(quint64 number) const
{
    const bool isCurrent = !m_jobs.empty() && m_jobs.front()->number() == number;
    return isCurrent ? m_jobs.front().get() : nullptr;
}

// The walk

void NxEngineImporter::beginWalk()
{
    m_channel = std::make_shared<NxImportChannel>(
        m_jobs.front()->namedToWalk(), m_bell.rope(), m_look);
    m_walkTaken = false;
    postWalk();
}

void NxEngineImporter::postWalk()
{
    m_channel->resume();
    const QPointer<NxEngineImporter> self(this);
    const std::shared_ptr<NxImportChannel> channel = m_channel;
    const bool posted = m_disk->post([channel](NxDiskPulse &pulse) { channel->walkOn(pulse); },
        [self, channel] {
            if (self)
                self->onStuck(channel);
        });
    if (!posted)
        endJob(tr("The project was closed."));
}

void NxEngineImporter::onStuck(const std::shared_ptr<NxImportChannel> &channel)
{
    if (channel != m_channel || m_ending)
        return;
    takeWalked();
    m_jobs.front()->giveUpNamed();
    beginWalk();
    pumpLater();
}

void NxEngineImporter::takeWalked()
{
    const bool isOver = m_channel->isOver(); // Asked first: then what is taken is the rest.
    m_jobs.front()->append(m_channel->take());
    m_walkTaken = isOver;
}

// Adding

void NxEngineImporter::pumpLater()
{
    m_pumpTimer.start();
}

void NxEngineImporter::pump()
{
    if (m_pumping) {
        m_pumpAgain = true; // Somebody who was told of an item runs an event loop.
        return;
    }
    if (m_jobs.empty())
        return;
    {
        const QScopedValueRollback<bool> pumping(m_pumping, true);
        workOnCurrentJob();
    }
    if (std::exchange(m_pumpAgain, false))
        pumpLater();
    goOnToEnd();
}

void NxEngineImporter::workOnCurrentJob()
{
    NxImportJob &job = *m_jobs.front();
    if (m_ending || job.isStopped())
        return;
    if (!m_channel)
        beginWalk();
    if (job.waiting() < EnoughWaiting)
        takeWalked();
    job.addSlice(NxSlice::Longest);
    if (job.isStopped())
        m_channel->cancel();
    else if (m_channel->isResting() && job.waiting() < EnoughWaiting)
        postWalk();
    if (job.waiting() > 0)
        pumpLater();
}

void NxEngineImporter::goOnToEnd()
{
    if (m_jobs.empty())
        return;
    NxImportJob &job = *m_jobs.front();
    const bool isOver = job.isStopped() || (m_walkTaken && job.waiting() == 0);
    if (isOver && !m_ending) {
        m_ending = true;
        job.conclude();
        m_memory->flush();
    }
    const quint64 number = job.number();
    const QPointer<NxEngineImporter> self(this);
    if (m_sinceProgress.hasExpired(ProgressInterval))
        tellProgress(&job);
    if (self && currentJob(number))
        askCommit();
}

// Committing

void NxEngineImporter::askCommit()
{
    NxImportJob &job = *m_jobs.front();
    const bool isNoUse = m_ending ? m_lastAsked : m_committing || !job.hasFresh();
    if (isNoUse)
        return;
    m_committing = true;
    m_lastAsked = m_ending;
    const quint64 number = job.number();
    std::vector<qint64> media = job.takeFresh();
    const bool isLast = m_ending;
    if (!m_store) {
        onCommitted(number, media, isLast, {});
        return;
    }
    const QPointer<NxEngineImporter> self(this);
    m_store->commit([self, number, media = std::move(media), isLast](
                        const NxResult<void> &result) {
        if (self)
            self->onCommitted(number, media, isLast, result);
    });
}

void NxEngineImporter::onCommitted(quint64 number, const std::vector<qint64> &media, bool isLast,
    const NxResult<void> &result)
{
    if (!currentJob(number))
        return; // The commit before this one failed, and ended the job.
    m_committing = false;
    NxImportJob &job = *m_jobs.front();
    if (!result) {
        job.noteNotSaved(result.error().message);
        endJob(result.error().message);
        job.conclude();
        finish();
        return;
    }
    job.noteSaved(int(media.size()));
    const QPointer<NxEngineImporter> self(this);
    if (!media.empty())
        tellAdded(number, media);
    // Whoever was told may have done anything.
    if (self && currentJob(number) && !media.empty())
        tellProgress(currentJob(number));
    if (!self || !currentJob(number))
        return;
    if (isLast)
        finish();
    else
        askCommit();
}

void NxEngineImporter::tellAdded(quint64 number, const std::vector<qint64> &media)
{
    QList<INxAbstractMediaItem *> items;
    items.reserve(int(media.size()));
    for (const qint64 id : media) {
        NxEngineMedia *added = m_memory->media(id);
        if (added && added->folder())
            items.append(added);
    }
    if (!items.isEmpty())
        Q_EMIT this->added(number, items);
}

void NxEngineImporter::tellProgress(NxImportJob *job)
{
    m_sinceProgress.start();
    Q_EMIT progress(job->number(), job->found(), job->saved(), job->read());
}

void NxEngineImporter::finish()
{
    const std::unique_ptr<NxImportJob> job = std::move(m_jobs.front());
    m_jobs.pop_front();
    if (m_channel)
        m_channel->cancel();
    m_channel.reset();
    m_walkTaken = false;
    m_ending = false;
    m_committing = false;
    m_lastAsked = false;
    if (!m_jobs.empty())
        pumpLater();
    Q_EMIT finished(job->number(), job->report()); // Last: whoever hears it may end everything.
}
