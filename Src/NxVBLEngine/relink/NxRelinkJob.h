// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/import/NxDirectoryWalker.h>
#include <NxVBLEngine/reading/NxReadOutcome.h>
#include <NxVBLEngine/relink/NxRelinkWanted.h>
#include <NxVBLModel/NxRelinkReport.h>

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QPair>
#include <QSet>
#include <QStringList>

#include <deque>
#include <vector>

class INxAbstractMediaItem;
class NxEngineMedia;
class NxProjectMemory;

/// One search on the GUI thread: picks candidates from what a walk finds, says what workers should
/// read of them, and makes the report.
///
/// It goes through three stages: while the folder is walked, and as long as contents are compared;
/// then the lengths that still decide; then it is over.
class NXVBLENGINE_TEST_EXPORT NxRelinkJob
{
    Q_DECLARE_TR_FUNCTIONS(NxRelinkJob)
public:
    /// Looks at the items now; they may die later. Memory must outlive the job.
    NxRelinkJob(quint64 number, const QList<INxAbstractMediaItem *> &items,
                const NxProjectMemory *memory);

    [[nodiscard]] quint64 number() const { return m_number; }

    void append(std::vector<NxWalkEntry> entries);
    [[nodiscard]] int waiting() const { return int(m_waiting.size()); }
    /// Works for about that long on what waits.
    void work(qint64 milliseconds);
    /// Everything that the walk found was appended.
    void endWalk() { m_walkOver = true; }
    /// The drive of the folder does not answer: its walk is over.
    void giveUpWalk(const QString &directory);

    /// Requests for workers, so many that `most` are with them; none while half of that are, so
    /// that they go in batches. `lastNumber`: the last number that a request was given.
    [[nodiscard]] std::vector<NxReadRequest> takeRequests(int most, quint64 *lastNumber);
    /// There are no workers to read anything, for this reason. Nothing happens without one.
    void setNoWorkers(const QString &reason) { m_noWorkers = reason; }
    /// False when the request was not this job's.
    bool take(const NxReadOutcome &outcome);

    /// Nothing more is looked for.
    void cancel();
    /// Goes on to the next stage when this one is done; true when that was the last.
    [[nodiscard]] bool goOnToEnd();
    /// What was found, for the media that are still as they were.
    [[nodiscard]] NxRelinkReport report();

    [[nodiscard]] qint64 seen() const { return m_seen; }
    [[nodiscard]] qint64 compared() const { return m_compared; }

private:
    enum class Stage { Contents, Lengths, Over };
    /// A file that workers should read, or are reading.
    struct Ask
    {
        int candidate = 0;
        quint8 wishes = 0;
    };

    [[nodiscard]] NxRelinkWanted wantedOf(INxAbstractMediaItem *item) const;
    void handle(const NxWalkEntry &entry);
    void takeFile(const NxWalkEntry &entry);
    [[nodiscard]] bool isKnown(const QString &path) const;
    void takeAnswer(const Ask &ask, const NxReadAnswer &answer);
    /// `volume`: the drive, when all of it is out of reach.
    void failCandidate(const Ask &ask, const QString &reason, const QString &volume = {});
    void note(const QString &sentence);
    void noteLeftOut(const QString &path, const QString &reason);
    void noteNotCompared();
    void forgetChanged();
    void leaveOutKnown();

    const quint64 m_number;
    const NxProjectMemory *const m_memory; // Not owned.
    std::vector<NxRelinkWanted> m_wanted;
    QSet<qint64> m_sizes; // Of contents that are looked for.
    QSet<QPair<QString, qint64>> m_namesAndSizes;

    std::deque<NxWalkEntry> m_waiting;
    bool m_walkOver = false;
    std::vector<NxRelinkCandidate> m_candidates;
    QHash<QString, int> m_byRealPath; // Several links may lead to one file.
    std::deque<Ask> m_asks;
    QHash<quint64, Ask> m_flying; // By the number of the request.
    QString m_noWorkers; // Why nothing can be read.

    Stage m_stage = Stage::Contents;
    bool m_cancelled = false;
    QStringList m_unreadable;
    QSet<QString> m_noted;
    qint64 m_seen = 0;
    qint64 m_compared = 0;
};
