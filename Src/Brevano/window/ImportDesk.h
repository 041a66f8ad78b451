// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/window/ImportedMedia.h>
#include <Brevano/window/Throttle.h>
#include <NxVBLModel/NxImportReport.h>
#include <NxVBLModel/NxMediaTypes.h>

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <memory>
#include <vector>

class INxAbstractMediaItem;
class INxFolderMedia;
class INxFootageService;
class INxMediaImporter;
class INxProject;
class QMimeData;

/// Everything that comes into the project through the window: the jobs that run, how far they are,
/// and the report of the last import.
///
/// Jobs that run side by side or one behind the other are one import, with one report. Files that
/// turn out unreadable later join the report. GUI thread only.
class ImportDesk : public QObject
{
    Q_OBJECT
public:
    explicit ImportDesk(QObject *parent = nullptr);
    ~ImportDesk() override;

    /// The project that is worked on, not owned; null: none. Call it before the project closes.
    /// What the desk knew of another project is forgotten.
    void setProject(INxProject *project);

    /// Imports into a folder, once the jobs before it are over. Answers the number that the
    /// folder's importer gave the job; 0 when there is nothing to do, or when sigRefused() said
    /// why it cannot be done.
    quint64 start(INxFolderMedia *into, const QStringList &paths,
                  NXVBLMODEL::NxMediaImportType kind);
    /// Stops all jobs; what was added stays.
    void cancel();
    /// Tries once more what a line of the report is about: media of the project are read again,
    /// other paths are imported again. The outcome takes the lines' place in the report.
    void tryAgain(const QVector<NxImportReportLine> &lines);
    [[nodiscard]] bool canTryAgain(const NxImportReportLine &line) const;

    /// Whether jobs run.
    [[nodiscard]] bool isBusy() const { return !m_jobs.empty(); }
    /// Files found by the running import.
    [[nodiscard]] qint64 found() const;
    /// Media added by the running import.
    [[nodiscard]] qint64 added() const;
    /// Those of them whose files have been read.
    [[nodiscard]] qint64 read() const;
    /// Whether files are being read, whoever brought them.
    [[nodiscard]] bool isReading() const { return m_filesRead < m_filesKnown; }
    /// Files read of filesKnown() since all was last idle.
    [[nodiscard]] qint64 filesRead() const { return m_filesRead; }
    [[nodiscard]] qint64 filesKnown() const { return m_filesKnown; }
    /// Why no file of the project can be read, a sentence; empty when all is well.
    [[nodiscard]] QString trouble() const;

    /// Whether there has been an import since the project was set.
    [[nodiscard]] bool hasReport() const { return m_hasReport; }
    /// Of the last import that is over.
    [[nodiscard]] NxImportReport report() const;
    /// Whether a path of a report is that of a media in the project.
    [[nodiscard]] bool isInProject(const QString &path) const { return itemAt(path) != nullptr; }

    /// The paths that something dropped or pasted names: those of its local files, else the lines
    /// of its text that are absolute paths or addresses of local files. Each once; whether the
    /// files are there is not looked at. Null is answered with nothing.
    [[nodiscard]] static QStringList pathsOf(const QMimeData *data);

Q_SIGNALS:
    /// Something that is asked for above changed; 20 times a second at most.
    void sigProgress();
    /// The last running job ended.
    void sigFinished(const NxImportReport &report);
    /// The report of the last import changed, or is gone with its project.
    void sigReportChanged();
    /// Nothing was started; the reason is a sentence for the user.
    void sigRefused(const QString &reason);

private:
    struct Job
    {
        QPointer<INxMediaImporter> importer;
        quint64 number = 0;
        QPointer<INxFolderMedia> section; // Null for jobs that others started.
        NXVBLMODEL::NxMediaImportType kind = NXVBLMODEL::mitFiles;
        qint64 found = 0;
        bool isRunning = true;
    };
    /// Where a path of the report was to go.
    struct Home
    {
        QPointer<INxFolderMedia> section;
        NXVBLMODEL::NxMediaImportType kind = NXVBLMODEL::mitFiles;
    };
    /// What an import came to; until all its jobs are over, so far.
    struct Import
    {
        NxImportReport report; // Without the media that turned out unreadable.
        ImportedMedia media;
        QHash<QString, Home> homes; // Of the paths that may be tried again.
    };
    struct Errand
    {
        INxFolderMedia *into = nullptr; // Not owned.
        NXVBLMODEL::NxMediaImportType kind = NXVBLMODEL::mitFiles;
        QStringList paths;
    };

    void listenTo(INxMediaImporter *importer);
    void listenTo(INxFootageService *service);
    [[nodiscard]] Job *jobOf(INxMediaImporter *importer, quint64 number);
    [[nodiscard]] QString obstacle(const INxFolderMedia *into) const;
    quint64 launch(const Errand &errand, const Import &begun);
    void begin(const Import &begun, const Job &job);
    void onProgress(INxMediaImporter *importer, quint64 number, qint64 found);
    void onAdded(INxMediaImporter *importer, quint64 number,
                 const QList<INxAbstractMediaItem *> &items);
    void onFinished(INxMediaImporter *importer, quint64 number, const NxImportReport &report);
    void onItemRead(INxAbstractMediaItem *item);
    void onReading(qint64 read, qint64 known);
    void conclude();

    void readAgain(const QVector<NxImportReportLine> &lines);
    void importAgain(const QVector<NxImportReportLine> &lines);
    [[nodiscard]] std::vector<Errand> errandsOf(const QVector<NxImportReportLine> &lines) const;
    [[nodiscard]] INxAbstractMediaItem *itemAt(const QString &path) const;
    [[nodiscard]] INxFolderMedia *firstSection() const;

    INxProject *m_project = nullptr; // Not owned.
    QPointer<INxFootageService> m_service;
    std::unique_ptr<QObject> m_ears; // The connections to the project's objects.
    std::vector<Job> m_jobs; // Of the running import, those that are over included.
    Import m_coming;
    qint64 m_countBefore = 0; // What m_coming began with.
    qint64 m_readBefore = 0;
    Import m_last;
    bool m_hasReport = false;
    qint64 m_filesRead = 0;
    qint64 m_filesKnown = 0;
    Throttle m_progress;
    Throttle m_reportNews;
};
