// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>
#include <NxVBLModel/NxRelinkReport.h>

#include <QHash>
#include <QObject>
#include <QPointer>

class INxAbstractMediaItem;
class INxFolderMedia;
class INxMediaItemManager;
class INxRelinkSearch;
class NxMediaItemManagerPresenter;

/// Finds the missing media of a category again: the user names a folder, and what lies there and
/// below is put back in place without a question, as one undo step.
///
/// What could be this file or that one is left for the user: it stands in the report. Media that
/// were relinked, removed or changed while the search ran are left alone. GUI thread only.
class NXMEDIALIBRARY_EXPORT NxMissingMediaRelinker : public QObject
{
    Q_OBJECT
public:
    /// The presenter is not owned, and may die first: that cancels a search that runs.
    NxMissingMediaRelinker(NxMediaItemManagerPresenter *presenter, QObject *parent = nullptr);
    ~NxMissingMediaRelinker() override;

    /// The media of a folder, and of those below it, whose files are not there. From what is
    /// known already: no disk is touched.
    [[nodiscard]] static QList<INxAbstractMediaItem *> missingMedia(const INxFolderMedia *folder);

    /// Begins to look for the files of `items` in `directory` and below. False, with the reason in
    /// the log, when a search runs already or the project has nothing that searches. finished()
    /// follows.
    bool start(const QList<INxAbstractMediaItem *> &items, const QString &directory);
    /// finished() follows; nothing is relinked then. What was found until then stands in the report
    /// as ambiguous: what was not looked at may match as well.
    void cancel();
    [[nodiscard]] bool isRunning() const { return m_search != 0; }

Q_SIGNALS:
    /// Files seen, and how many of them were compared.
    void progress(qint64 seen, qint64 compared);
    /// `relinked` is how many media have a file again. Those of the report's findings that match
    /// but could not be relinked have become NxRelinkMatch::None.
    void finished(const NxRelinkReport &report, int relinked);

private:
    void onProgress(quint64 search, qint64 seen, qint64 compared);
    void onFinished(quint64 search, NxRelinkReport report);
    void onEngineGone();
    [[nodiscard]] int relinkAll(NxRelinkReport *report) const;
    static void leaveToTheUser(NxRelinkReport *report);
    [[nodiscard]] bool relink(INxMediaItemManager *manager, const NxRelinkFinding &finding) const;

    const QPointer<NxMediaItemManagerPresenter> m_presenter;
    QPointer<INxRelinkSearch> m_engine;
    quint64 m_search = 0; // Its number with the engine; 0 while none runs.
    QHash<INxAbstractMedia *, QString> m_paths; // Where the media's files were at the start.
};
