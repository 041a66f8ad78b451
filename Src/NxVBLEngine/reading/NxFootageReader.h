// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/reading/NxFolderAnnouncer.h>
#include <NxVBLEngine/reading/NxQuietFiles.h>
#include <NxVBLEngine/reading/NxReadOutcome.h>
#include <NxVBLEngine/reading/NxReadingOrder.h>
#include <NxVBLEngine/reading/NxWorkerSettings.h>
#include <NxVBLEngine/records/NxFootageRecord.h>
#include <NxVBLModel/INxFootageService.h>

#include <NxCore/NxDoorbell.h>

#include <QElapsedTimer>
#include <QHash>
#include <QSet>
#include <QTimer>

#include <array>
#include <deque>
#include <memory>
#include <vector>

class NxEngineMedia;
class NxProjectMemory;
class NxReadingThread;
class NxSlice;
struct NxChange;

/// Has the files of an open project read by workers, and takes what they find into the project.
///
/// Keeps the order, hands out a few requests at a time, and applies answers in slices of a few
/// milliseconds, so that the window stays alive. GUI thread only.
class NXVBLENGINE_TEST_EXPORT NxFootageReader final : public INxFootageService
{
    Q_OBJECT
public:
    /// Memory must outlive the reader.
    NxFootageReader(NxProjectMemory *memory, NxWorkerSettings settings);
    ~NxFootageReader() override;

    void start() override;
    void stop() override;
    void want(const QList<INxAbstractMediaItem *> &items, int wishes) override;
    void read(const QList<INxAbstractMediaItem *> &items, int wishes) override;
    NxFootageState state(const INxAbstractMediaItem *item) const override;
    bool isIdle() const override;
    QString trouble() const override { return m_trouble; }

    /// Somebody looks at the media: its facts and pictures come first.
    void wantVisible(const NxEngineMedia *media);
    /// Nobody looks at what was wanted any more.
    void forgetWanted() { m_order.forgetVisible(); }
    /// A picture that was made is not in the cache any more.
    void notePictureGone(NxEngineMedia *media);
    /// The file of a media was seen on disk.
    void noteSeen(qint64 media, const NxFileStamp &stamp);
    [[nodiscard]] const QString &cacheFolder() const { return m_settings.cacheFolder; }
    /// For tests: process ids of the workers that run.
    [[nodiscard]] std::vector<qint64> workerProcessIds();

Q_SIGNALS:
    /// These were written since they were read; they should be looked at again now.
    void looksWanted(const std::vector<qint64> &media);

private:
    /// A request that is with the workers.
    struct Flight
    {
        qint64 media = 0;
        QString path;
        NxReadWave wave = NxReadWave::Facts;
        quint8 wishes = 0;
    };

    /// What a request weighs: facts take a moment, pictures do not.
    [[nodiscard]] static constexpr int weightOf(NxReadWave wave)
    {
        return wave == NxReadWave::Facts ? 1 : 8;
    }

    void onApplied(const NxChange &change);
    [[nodiscard]] bool wantOne(const NxEngineMedia *media, int wishes);
    void pumpLater();
    void pump();
    void fileFresh(const NxSlice &slice);
    void file(const NxEngineMedia *media);
    void submit();
    void submit(const NxReadingOrder::Item &item, std::vector<NxReadRequest> *requests);
    [[nodiscard]] quint8 wishesFor(const NxReadingOrder::Item &item) const;
    void applyOutcomes(const NxSlice &slice);
    void apply(const NxReadOutcome &outcome);
    /// Nobody has seen the file of which this is the answer, and more is known of it than that.
    /// Once only: where the disk then says that it is there, the next answer counts.
    [[nodiscard]] bool mayHaveVanished(const NxEngineMedia &media, const NxReadAnswer &answer);
    void applyAnswer(NxEngineMedia *media, const Flight &flight, const NxReadAnswer &answer);
    void applyFacts(NxEngineMedia *media, const Flight &flight, const NxReadAnswer &answer);
    void applyPictures(NxEngineMedia *media, const NxReadAnswer &answer);
    void applyKilled(NxEngineMedia *media, const Flight &flight, const QString &reason);
    [[nodiscard]] NxEngineMedia *landed(const Flight &flight);
    [[nodiscard]] bool wantsPictures(qint64 media) const;
    void park(const Flight &flight, const QString &volume);
    void unpark(const QString &volume);
    void tryParked();
    void giveUp(const QString &reason);
    void addPictures(const NxEngineMedia *media);
    void addAgain(const NxReadingOrder::Item &item);
    void readWhenQuiet(qint64 media, const NxFileStamp &stamp);
    [[nodiscard]] bool isFlying(qint64 media, NxReadWave wave) const;
    [[nodiscard]] bool isUnderWay(qint64 media, NxReadWave wave) const;
    void forgetWishes(qint64 media);
    void tellRead(NxEngineMedia *media);
    void finishBatch();
    void askQuiet();

    NxProjectMemory *const m_memory; // Not owned.
    const NxWorkerSettings m_settings;
    NxDoorbell m_bell;
    std::unique_ptr<NxReadingThread> m_thread; // Made with the first request.
    NxReadingOrder m_order;
    std::deque<qint64> m_fresh; // Not looked at yet.
    QHash<quint64, Flight> m_flying; // By the number of the request.
    std::array<QHash<qint64, int>, 2> m_flightsOf; // How many a media has, by wave.
    std::deque<NxReadOutcome> m_outcomes;
    QHash<QString, std::deque<NxReadingOrder::Item>> m_parked; // By silent volume.
    QHash<qint64, int> m_asked; // Wishes of media that somebody asked for.
    QSet<qint64> m_anew; // Those that are to be read although they were.
    QSet<qint64> m_doubted; // Those that no worker found at the last try.
    QSet<qint64> m_blamedUnseen; // They killed workers before anybody knew their stamps.
    NxQuietFiles m_quiet;
    NxFolderAnnouncer m_announcer;
    QTimer m_pumpTimer;
    QTimer m_quietTimer;
    QTimer m_parkedTimer;
    QElapsedTimer m_clock;
    QElapsedTimer m_sinceProgress;
    quint64 m_lastNumber = 0;
    int m_load = 0; // Of what flies.
    int m_factsFlying = 0;
    qint64 m_done = 0; // Since all was idle.
    bool m_readsAll = false;
    bool m_busy = false; // idle() is still to come.
    QString m_trouble;
};
