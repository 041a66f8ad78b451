// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/NxImportReport.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QObject>
#include <QStringList>

class INxFolderMedia;

/// Brings the user's files into a category. Owned by the category's manager.
///
/// Files are only looked at, never changed. One undo step per job.
class NXVBLMODEL_EXPORT INxMediaImporter : public QObject
{
    Q_OBJECT
public:
    explicit INxMediaImporter(QObject *parent = nullptr);
    ~INxMediaImporter() override;

    /// Starts a job and answers its number; 0 when the folder takes no media. Paths are walked on
    /// the disk thread; a named folder becomes a folder. `importKind` is a
    /// NXVBLMODEL::NxMediaImportType. Jobs run one after another.
    virtual quint64 start(INxFolderMedia *into, const QStringList &paths, int importKind) = 0;
    /// Stops a job; what was added stays.
    virtual void cancel(quint64 job) = 0;
    /// Makes items from their paths alone, at once: opens and tests nothing, walks no folder. For
    /// requests of other parts of the editor, which know what they hand in. What is already there
    /// is answered, too, and noted in `report`, which may be null.
    virtual QList<INxAbstractMediaItem *> addNow(INxFolderMedia *into, const QStringList &paths,
                                                 NxImportReport *report) = 0;

Q_SIGNALS:
    /// Files found, added and read so far.
    void progress(quint64 job, qint64 found, qint64 added, qint64 read);
    void added(quint64 job, const QList<INxAbstractMediaItem *> &items);
    /// Emitted once a job, after all that it added is on disk.
    void finished(quint64 job, const NxImportReport &report);
};
