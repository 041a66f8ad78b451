// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxRelinkReport.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QList>
#include <QObject>

class INxAbstractMediaItem;

/// Looks for the files of media whose file is not where it was. Owned by the project.
///
/// It changes nothing: whoever asked decides what to do with the report. Files are looked at by
/// the disk thread and by workers, never on the calling thread. GUI thread only.
class NXVBLMODEL_EXPORT INxRelinkSearch : public QObject
{
    Q_OBJECT
public:
    explicit INxRelinkSearch(QObject *parent = nullptr);
    ~INxRelinkSearch() override;

    /// Looks through `directory` and all folders below it for the files of `items`.
    ///
    /// A file is recognised by the fingerprint of its contents, whatever it is called; of several
    /// with the same contents, by its name. Where a media has no fingerprint, or no file has it,
    /// a file of the same name and size is taken if its length does not contradict. Files that
    /// other media of the project stand for are left out. Returns the search's number, never 0;
    /// finished() follows in any case, not before this call returns.
    virtual quint64 start(const QList<INxAbstractMediaItem *> &items, const QString &directory) = 0;
    /// finished() follows soon, with what was found so far. An unknown number is ignored.
    virtual void cancel(quint64 search) = 0;

Q_SIGNALS:
    /// How many files were seen, and how many of them were compared. At most ten times a second.
    void progress(quint64 search, qint64 seen, qint64 compared);
    void finished(quint64 search, const NxRelinkReport &report);
};
