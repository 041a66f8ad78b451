// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxVBLModel/INxMediaImporter.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QVector>

#include <optional>

class Console;
class INxProject;
class InterruptWatcher;

/// One import from its start to its report: tells what is added once it is on disk, shows how far
/// it is, and stops when the user wants it to.
class ImportRun : public QObject
{
    Q_OBJECT
public:
    struct Outcome
    {
        NxImportReport report;
        bool interrupted = false;
        /// Why not all could be written; what was told before is on disk nevertheless.
        QString failure;
        QList<INxAbstractMediaItem *> added; ///< Not owned; what is in the project now.
    };

    /// With `tellsItems` each file is a JSON line as soon as it is on disk. An interruption that
    /// `interrupts` notices stops the import.
    ImportRun(INxProject *project, Console *console, const InterruptWatcher &interrupts,
              bool tellsItems);

    /// Waits for the end. Nothing when the folder takes no media.
    [[nodiscard]] std::optional<Outcome> run(INxMediaImporter *importer, INxFolderMedia *into,
                                             const QStringList &paths);

private:
    void onAdded(const QList<INxAbstractMediaItem *> &items);
    void onCommitted(const QVector<QByteArray> &lines, int items, const NxResult<void> &result);
    void onProgress(qint64 found, qint64 added);
    void onFinished(const NxImportReport &report);
    void stop();
    void endWhenComplete();

    INxProject *const m_project; // Not owned.
    Console *const m_console; // Not owned.
    const bool m_tellsItems;
    INxMediaImporter *m_importer = nullptr; // Not owned.
    QEventLoop m_loop;
    QElapsedTimer m_sinceProgress;
    Outcome m_outcome;
    quint64 m_job = 0;
    qint64 m_onDisk = 0;
    int m_openCommits = 0;
    bool m_isFinished = false;
};
