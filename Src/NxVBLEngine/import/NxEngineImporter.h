// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/disk/NxFileProbe.h>
#include <NxVBLModel/INxMediaImporter.h>

#include <NxCore/NxDoorbell.h>
#include <NxCore/NxResult.h>

#include <QElapsedTimer>
#include <QTimer>

#include <deque>
#include <memory>
#include <vector>

class NxDiskThread;
class NxEngineCategory;
class NxEngineFolder;
class NxImportChannel;
class NxImportJob;
class NxProjectMemory;
class NxProjectStore;

/// The importer of a category of the embedded engine.
///
/// The disk thread finds files; this adds them in slices of a few milliseconds, so that the
/// window stays alive, and reports what the project file holds. A job whose folder is removed, or
/// whose undo step is taken back, ends there.
class NXVBLENGINE_TEST_EXPORT NxEngineImporter final : public INxMediaImporter
{
    Q_OBJECT
public:
    /// `store` is null for a project that lives in memory alone. Memory, category and store must
    /// outlive the importer. An importer that dies with jobs reports nothing more; stopAll() first
    /// lets them end.
    NxEngineImporter(NxProjectMemory *memory, NxEngineCategory *category,
        std::shared_ptr<NxDiskThread> disk, NxProjectStore *store,
        NxFileLook look = &NxFileProbe::look);
    ~NxEngineImporter() override;

    quint64 start(INxFolderMedia *into, const QStringList &paths, int importKind) override;
    /// A job that has not begun finishes at once, the running one with its last commit.
    void cancel(quint64 job) override;
    QList<INxAbstractMediaItem *> addNow(
        INxFolderMedia *into, const QStringList &paths, NxImportReport *report) override;

    /// Ends all jobs because the project closes: no more is added, and finished() comes with the
    /// last commit, which closing the store brings about.
    void stopAll();
    [[nodiscard]] bool isRunning() const { return !m_jobs.empty(); }

private:
    [[nodiscard]] NxEngineFolder *checkedFolder(INxFolderMedia *into) const;
    [[nodiscard]] NxImportJob *currentJob(quint64 number) const;
    void pumpLater();
    void pump();
    void workOnCurrentJob();
    void beginWalk();
    void postWalk();
    void takeWalked();
    void onStuck(const std::shared_ptr<NxImportChannel> &channel);
    void endJob(const QString &reason);
    void goOnToEnd();
    void askCommit();
    void onCommitted(quint64 number, const std::vector<qint64> &media, bool isLast,
        const NxResult<void> &result);
    void tellAdded(quint64 number, const std::vector<qint64> &media);
    void tellProgress(NxImportJob *job);
    void finish();

    NxProjectMemory *const m_memory; // Not owned, as are category and store.
    NxEngineCategory *const m_category;
    const std::shared_ptr<NxDiskThread> m_disk;
    NxProjectStore *const m_store;
    const NxFileLook m_look;

    std::deque<std::unique_ptr<NxImportJob>> m_jobs; // The first one runs.
    quint64 m_lastJob = 0;
    std::shared_ptr<NxImportChannel> m_channel; // Of the running job.
    bool m_walkTaken = false; // Everything that the walk found has been taken.
    bool m_pumping = false;
    bool m_pumpAgain = false;
    bool m_ending = false; // Nothing more is added to the running job.
    bool m_committing = false;
    bool m_lastAsked = false; // The commit after which the job is over.
    QElapsedTimer m_sinceProgress;
    NxDoorbell m_bell;
    QTimer m_pumpTimer;
};
