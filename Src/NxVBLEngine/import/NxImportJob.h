// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/import/NxDirectoryWalker.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLModel/NxImportReport.h>

#include <QCoreApplication>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <array>
#include <deque>
#include <vector>

class NxEngineCategory;
class NxEngineFolder;

/// One import on the GUI thread: turns what a walk found into media and folders, slice by slice,
/// and keeps the report.
///
/// Folders are made with the first file that belongs into them. The whole job is one undo step,
/// unless the user does something in between.
class NXVBLENGINE_TEST_EXPORT NxImportJob
{
    Q_DECLARE_TR_FUNCTIONS(NxImportJob)
public:
    NxImportJob(quint64 number, NxEngineFolder *into, const QStringList &paths, int importKind);

    [[nodiscard]] quint64 number() const { return m_number; }
    /// The named paths of which the walk has not told everything yet.
    [[nodiscard]] QVector<NxDirectoryWalker::Named> namedToWalk() const;

    void append(std::vector<NxWalkEntry> entries);
    [[nodiscard]] int waiting() const { return int(m_waiting.size()); }
    /// The named path that is walked at the moment does not answer: it is reported, and its walk
    /// counts as over.
    void giveUpNamed();
    /// Works for about that long on what waits.
    void addSlice(qint64 milliseconds);

    /// Nothing more is added; named paths that are not done are reported as cancelled.
    void stop(const QString &reason);
    [[nodiscard]] bool isStopped() const { return m_stopped; }
    /// Nothing more comes: tells the observers that the folders' media have changed, children
    /// before parents, each once.
    void conclude();

    /// The ids of the media that were added since the last call.
    [[nodiscard]] std::vector<qint64> takeFresh();
    [[nodiscard]] bool hasFresh() const { return !m_fresh.empty(); }
    /// So many added media are safe in the project file.
    void noteSaved(int media) { m_report.added += media; }
    /// The project file could not be written.
    void noteNotSaved(const QString &reason);

    [[nodiscard]] qint64 found() const { return m_report.found; }
    [[nodiscard]] qint64 saved() const { return m_report.added; }
    /// Added media whose files have been read since, be it in vain.
    [[nodiscard]] qint64 read();
    /// Final when the job is over.
    [[nodiscard]] NxImportReport report() const;

private:
    struct Level
    {
        int folderId = 0; // 0: not made yet.
        QString name;
    };
    /// Why a file cannot go where it should.
    struct Obstacle
    {
        NxImportVerdict verdict = NxImportVerdict::Cancelled;
        QString reason;
    };
    using Handler = void (NxImportJob::*)(const NxWalkEntry &);
    static const std::array<Handler, 9> s_handlers; // By NxWalkStep.

    void takeFile(const NxWalkEntry &entry);
    void enterFolder(const NxWalkEntry &entry);
    void leaveFolder(const NxWalkEntry &entry);
    void countHidden(const NxWalkEntry &entry);
    void countOther(const NxWalkEntry &entry);
    void countTwice(const NxWalkEntry &entry);
    void refuse(const NxWalkEntry &entry);
    void noteUnreadable(const NxWalkEntry &entry);
    void endNamed(const NxWalkEntry &entry);

    bool noteTakenBack();
    [[nodiscard]] bool mayGoOn();
    [[nodiscard]] NxEngineFolder *currentFolder(Obstacle *obstacle);
    [[nodiscard]] NxEngineFolder *childFor(NxEngineFolder *parent, Level *level);
    void handleWaiting(qint64 milliseconds);
    void appendToGroup(const NxWalkEntry &entry, int folderId);
    void flushGroup();
    void noteAdded(const QVector<NxEngineMedia *> &added, int folderId);
    void dropGroup(const QString &reason);
    void noteKnown(const NxWalkEntry &entry, const NxEngineMedia *known);
    [[nodiscard]] NxEngineMedia *knownMedia(const NxWalkEntry &entry) const;
    void addLine(const QString &path, NxImportVerdict verdict, const QString &reason,
        const QString &folder);
    [[nodiscard]] QString meantFor() const;
    [[nodiscard]] QVector<int> touchedFolders();

    const quint64 m_number;
    NxEngineCategory *const m_category; // Not owned, as is the memory.
    NxProjectMemory *const m_memory;
    const int m_importKind;
    const QString m_intoPath;
    QVector<NxDirectoryWalker::Named> m_named;
    int m_namedWalked = 0; // By the walk.
    int m_namedDone = 0; // By this job.
    std::deque<NxWalkEntry> m_waiting;
    std::vector<Level> m_levels; // The first is the folder that the job adds to.

    QVector<NxMediaSeed> m_group; // Added together, to one folder.
    QStringList m_groupShown; // Their paths as reported.
    QSet<QString> m_groupPaths;
    int m_groupFolder = 0;
    int m_groupSize = 4; // Adapted to how long the observers take.

    qint64 m_step = 0; // Serial of the undo step.
    bool m_changed = false; // In the current slice.
    bool m_takenBack = false;
    bool m_stopped = false;
    qint64 m_firstAdded = 0;
    std::vector<qint64> m_fresh;
    std::vector<qint64> m_allAdded;
    size_t m_readInARow = 0; // Of those, from the first on: files are read in their order.
    QSet<qint64> m_known; // Media reported as being there already.
    QSet<QString> m_unreadable; // Canonical paths.
    QSet<int> m_touched; // Folders that got media.
    NxImportReport m_report;
};
