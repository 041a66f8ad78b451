// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/reading/NxReadOutcome.h>
#include <NxVBLEngine/reading/NxSilentVolumes.h>
#include <NxVBLEngine/reading/NxWorkerBurial.h>
#include <NxVBLEngine/reading/NxWorkerProcess.h>
#include <NxVBLEngine/reading/NxWorkerSettings.h>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// Gives requests to workers and answers what became of each, exactly once.
///
/// A file that ends a worker, by a crash, by hunger for memory or by taking too long, is tried
/// once more; when it ends that one, too, it is given up. The worker is replaced each time. A
/// drive that does not answer holds up one worker at most. Workers start with the first request
/// and are let go after a while without any.
///
/// Used on the thread it was made on, which needs an event loop.
class NXVBLENGINE_TEST_EXPORT NxWorkerPool final : public QObject
{
    Q_OBJECT
public:
    using Tell = std::function<void(NxReadOutcome)>;

    NxWorkerPool(NxWorkerSettings settings, Tell tell);
    /// Ends all workers; what was not answered is not.
    ~NxWorkerPool() override;

    void add(const std::vector<NxReadRequest> &requests);
    /// Process ids of the workers that run.
    [[nodiscard]] std::vector<qint64> processIds() const;

private:
    struct Job
    {
        NxReadRequest request;
        int killed = 0; // Workers that it ended.
        QString volumeBack; // A drive that answers again, with this very file.
    };
    /// The place of one worker.
    struct Seat
    {
        std::unique_ptr<NxWorkerProcess> process;
        std::optional<Job> job;
        QString volume;
        bool isOpened = false;
        QTimer slowTimer;
        QTimer limitTimer;
        QTimer idleTimer;
    };

    [[nodiscard]] std::unique_ptr<Seat> newSeat();
    void startWorkers();
    void start(Seat *seat);
    void feed();
    void feed(Seat *seat);
    [[nodiscard]] std::optional<Job> takeJob(QString *volume);
    void begin(Seat *seat, Job job, const QString &volume);
    void onReady(Seat *seat);
    void onOpened(Seat *seat);
    void onAnswered(Seat *seat, const NxReadAnswer &answer);
    void onEnded(Seat *seat, NxWorkerEnd end, const QString &why);
    void onSlow(Seat *seat);
    void onLimit(Seat *seat);
    void noteAnswer(Seat *seat);
    void letGo(Seat *seat);
    void settleKilled(Seat *seat, const QString &reason);
    void giveUpAll(const QString &why);
    void tellSilent(const Job &job, const QString &volume);
    [[nodiscard]] QString volumeOf(const NxReadRequest &request);
    [[nodiscard]] std::chrono::milliseconds now() const;

    const NxWorkerSettings m_settings;
    const Tell m_tell;
    std::vector<std::unique_ptr<Seat>> m_seats;
    std::deque<Job> m_waiting;
    NxWorkerBurial m_burial;
    NxSilentVolumes m_volumes;
    QStringList m_roots;
    std::chrono::milliseconds m_rootsRead{-1};
    QElapsedTimer m_clock;
    QString m_givenUp; // Why no worker is started any more.
    bool m_isGivenUpTold = false;
    int m_vainStarts = 0; // In a row.
};
