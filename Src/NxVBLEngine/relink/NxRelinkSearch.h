// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/disk/NxFileProbe.h>
#include <NxVBLEngine/reading/NxWorkerSettings.h>
#include <NxVBLModel/INxRelinkSearch.h>

#include <NxCore/NxDoorbell.h>

#include <QElapsedTimer>
#include <QTimer>

#include <memory>
#include <vector>

class NxDiskThread;
class NxImportChannel;
class NxProjectMemory;
class NxReadingThread;
class NxRelinkJob;

/// Finds the moved files of an open project.
///
/// The disk thread walks, as it does for imports; workers of the search's own make fingerprints
/// and read lengths. Several searches go on side by side. GUI thread only.
class NXVBLENGINE_TEST_EXPORT NxRelinkSearch final : public INxRelinkSearch
{
    Q_OBJECT
public:
    /// Memory must outlive the search. One that dies with searches under way says nothing more;
    /// stopAll() first lets them end.
    NxRelinkSearch(const NxProjectMemory *memory, std::shared_ptr<NxDiskThread> disk,
                   NxWorkerSettings settings, NxFileLook look = &NxFileProbe::look);
    ~NxRelinkSearch() override;

    quint64 start(const QList<INxAbstractMediaItem *> &items, const QString &directory) override;
    void cancel(quint64 search) override;

    /// Ends all searches at once because the project closes; their finished() comes before this
    /// returns.
    void stopAll();

private:
    struct Running;

    [[nodiscard]] Running *find(quint64 number) const;
    [[nodiscard]] std::vector<quint64> numbers() const;
    void pumpLater() { m_pumpTimer.start(); }
    void pump();
    void hearWorkers();
    [[nodiscard]] bool advance(Running *running);
    void walk(Running *running);
    void takeWalked(Running *running);
    void onStuck(quint64 number, const std::shared_ptr<NxImportChannel> &channel);
    void submit(Running *running);
    void tellProgress(Running *running);
    void finish(quint64 number);

    const NxProjectMemory *const m_memory; // Not owned.
    const std::shared_ptr<NxDiskThread> m_disk;
    const NxWorkerSettings m_settings;
    const NxFileLook m_look;
    NxDoorbell m_bell;
    std::unique_ptr<NxReadingThread> m_thread; // Made with the first request.
    std::vector<std::unique_ptr<Running>> m_running; // In the order of their starts.
    QTimer m_pumpTimer;
    QTimer m_progressTimer; // For what was not told yet, because too little time had passed.
    quint64 m_lastSearch = 0;
    quint64 m_lastRequest = 0;
};
