// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ImportDesk.h>

#include <Brevano/window/ImportReports.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/INxMediaImporter.h>
#include <NxVBLModel/INxMediaLibrary.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/NxFolderPath.h>

#include <QDir>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace {

constexpr int ProgressInterval = 50; // ms
constexpr int ReportInterval = 500; // ms; a long report takes a while to show.

/// The managers of a project that take files.
QVector<INxMediaManager *> importingManagers(INxProject *project)
{
    QVector<INxMediaManager *> managers;
    for (int category = 0; project && category < NXVBLMODEL::MediaCategoryCount; ++category) {
        INxMediaManager *manager =
            project->mediaLibrary()->mediaManager(NXVBLMODEL::NxMediaCategoryType(category));
        if (manager && manager->importer())
            managers.append(manager);
    }
    return managers;
}

INxMediaImporter *importerOf(const INxFolderMedia *folder)
{
    INxMediaManager *manager = folder->mediaManager();
    return manager ? manager->importer() : nullptr;
}

/// The folder of that path, or the deepest one above it that is there.
INxFolderMedia *deepestFolder(INxFolderMedia *section, const QString &path)
{
    QStringList names = NxFolderPath::split(path);
    INxFolderMedia *folder = NxFolderPath::find(section, path);
    while (!folder && !names.isEmpty()) {
        names.removeLast();
        folder = NxFolderPath::find(section, NxFolderPath::join(names));
    }
    return folder;
}

QString pathOfLine(const QString &line)
{
    constexpr QLatin1Char resource(':'); // Absolute for Qt, but no file of the user's.
    if (QDir::isAbsolutePath(line) && !line.startsWith(resource))
        return line;
    const QUrl url(line, QUrl::StrictMode);
    return url.isLocalFile() ? url.toLocalFile() : QString();
}

} // namespace

ImportDesk::ImportDesk(QObject *parent)
    : QObject(parent),
      m_progress(ProgressInterval),
      m_reportNews(ReportInterval)
{
    connect(&m_progress, &Throttle::sigNow, this, &ImportDesk::sigProgress);
    connect(&m_reportNews, &Throttle::sigNow, this, &ImportDesk::sigReportChanged);
}

ImportDesk::~ImportDesk() = default;

// The project

void ImportDesk::setProject(INxProject *project)
{
    m_ears.reset();
    m_project = project;
    m_service = project ? project->footageService() : nullptr;
    m_jobs.clear();
    m_coming = Import();
    m_last = Import();
    m_hasReport = false;
    m_filesRead = 0;
    m_filesKnown = 0;
    m_ears = std::make_unique<QObject>();
    const QVector<INxMediaManager *> managers = importingManagers(project);
    for (INxMediaManager *manager : managers)
        listenTo(manager->importer());
    if (m_service)
        listenTo(m_service);
    m_progress.note();
    Q_EMIT sigReportChanged();
}

void ImportDesk::listenTo(INxMediaImporter *importer)
{
    connect(importer, &INxMediaImporter::progress, m_ears.get(),
            [this, importer](quint64 job, qint64 found) { onProgress(importer, job, found); });
    connect(importer, &INxMediaImporter::added, m_ears.get(),
            [this, importer](quint64 job, const QList<INxAbstractMediaItem *> &items) {
                onAdded(importer, job, items);
            });
    connect(importer, &INxMediaImporter::finished, m_ears.get(),
            [this, importer](quint64 job, const NxImportReport &report) {
                onFinished(importer, job, report);
            });
}

void ImportDesk::listenTo(INxFootageService *service)
{
    connect(service, &INxFootageService::itemRead, m_ears.get(),
            [this](INxAbstractMediaItem *item) { onItemRead(item); });
    connect(service, &INxFootageService::progress, m_ears.get(),
            [this](qint64 read, qint64 known) { onReading(read, known); });
    connect(service, &INxFootageService::idle, m_ears.get(), [this] { onReading(0, 0); });
}

// Jobs

QString ImportDesk::obstacle(const INxFolderMedia *into) const
{
    if (!m_project)
        return tr("There is no project to import into.");
    if (m_project->isReadOnly()) {
        const QString reason = m_project->readOnlyReason();
        return reason.isEmpty() ? tr("This project cannot be changed.") : reason;
    }
    const bool takesMedia = into && into->canAddMedia() && importerOf(into);
    return takesMedia ? QString() : tr("Files cannot be imported into this folder.");
}

quint64 ImportDesk::start(INxFolderMedia *into, const QStringList &paths,
                          NXVBLMODEL::NxMediaImportType kind)
{
    return paths.isEmpty() ? 0 : launch({into, kind, paths}, Import());
}

quint64 ImportDesk::launch(const Errand &errand, const Import &begun)
{
    const QString reason = obstacle(errand.into);
    if (!reason.isEmpty()) {
        Q_EMIT sigRefused(reason);
        return 0;
    }
    Job job;
    job.importer = importerOf(errand.into);
    job.number = job.importer->start(errand.into, errand.paths, errand.kind);
    if (job.number == 0) {
        Q_EMIT sigRefused(tr("Files cannot be imported into this folder."));
        return 0;
    }
    job.section = errand.into->owner();
    job.kind = errand.kind;
    begin(begun, job);
    m_progress.note();
    return job.number;
}

void ImportDesk::begin(const Import &begun, const Job &job)
{
    if (!isBusy()) {
        m_coming = begun;
        m_countBefore = m_coming.media.count();
        m_readBefore = m_coming.media.readCount();
    }
    m_jobs.push_back(job);
}

ImportDesk::Job *ImportDesk::jobOf(INxMediaImporter *importer, quint64 number)
{
    const auto isIt = [importer, number](const Job &job) {
        return job.importer == importer && job.number == number;
    };
    const auto found = std::find_if(m_jobs.begin(), m_jobs.end(), isIt);
    if (found != m_jobs.end())
        return &*found;
    Job job; // Another part of the editor started it.
    job.importer = importer;
    job.number = number;
    begin(Import(), job);
    return &m_jobs.back();
}

void ImportDesk::cancel()
{
    const std::vector<Job> jobs = m_jobs; // A job that has not begun finishes at once.
    for (auto job = jobs.rbegin(); job != jobs.rend(); ++job) {
        if (job->isRunning && job->importer)
            job->importer->cancel(job->number);
    }
}

void ImportDesk::onProgress(INxMediaImporter *importer, quint64 number, qint64 found)
{
    jobOf(importer, number)->found = found;
    m_progress.note();
}

void ImportDesk::onAdded(INxMediaImporter *importer, quint64 number,
                         const QList<INxAbstractMediaItem *> &items)
{
    (void)jobOf(importer, number);
    for (INxAbstractMediaItem *item : items)
        m_coming.media.add(item, m_service ? m_service->state(item) : NxFootageState());
    m_progress.note();
}

void ImportDesk::onFinished(INxMediaImporter *importer, quint64 number,
                            const NxImportReport &report)
{
    Job *job = jobOf(importer, number);
    job->isRunning = false;
    job->found = report.found;
    ImportReports::add(&m_coming.report, report);
    for (const NxImportReportLine &line : report.lines) {
        if (ImportReports::isWorthAnotherTry(line.verdict))
            m_coming.homes.insert(line.path, {job->section, job->kind});
    }
    if (std::none_of(m_jobs.begin(), m_jobs.end(), [](const Job &one) { return one.isRunning; }))
        conclude();
    m_progress.note();
}

void ImportDesk::conclude()
{
    m_jobs.clear();
    m_last = std::exchange(m_coming, Import());
    m_hasReport = true;
    Q_EMIT sigFinished(report());
}

qint64 ImportDesk::found() const
{
    qint64 sum = 0;
    for (const Job &job : m_jobs)
        sum += job.found;
    return sum;
}

qint64 ImportDesk::added() const
{
    return isBusy() ? m_coming.media.count() - m_countBefore : 0;
}

qint64 ImportDesk::read() const
{
    return isBusy() ? m_coming.media.readCount() - m_readBefore : 0;
}

// Reading

void ImportDesk::onItemRead(INxAbstractMediaItem *item)
{
    const NxFootageState state = m_service->state(item);
    (void)m_coming.media.noteRead(item, state);
    if (m_last.media.noteRead(item, state))
        m_reportNews.note();
    if (isBusy())
        m_progress.note();
}

void ImportDesk::onReading(qint64 read, qint64 known)
{
    m_filesRead = read;
    m_filesKnown = known;
    m_progress.note();
}

QString ImportDesk::trouble() const
{
    return m_service ? m_service->trouble() : QString();
}

// Report

NxImportReport ImportDesk::report() const
{
    NxImportReport report = m_last.report;
    m_last.media.appendTo(&report);
    return report;
}

bool ImportDesk::canTryAgain(const NxImportReportLine &line) const
{
    // The project file itself is named when it could not be written.
    return m_project && line.path != m_project->path()
           && ImportReports::isWorthAnotherTry(line.verdict);
}

void ImportDesk::tryAgain(const QVector<NxImportReportLine> &lines)
{
    QVector<NxImportReportLine> known;
    QVector<NxImportReportLine> unknown;
    for (const NxImportReportLine &line : lines) {
        if (canTryAgain(line))
            (isInProject(line.path) ? known : unknown).append(line);
    }
    if (!known.isEmpty() && m_service)
        readAgain(known);
    if (!unknown.isEmpty())
        importAgain(unknown);
}

void ImportDesk::readAgain(const QVector<NxImportReportLine> &lines)
{
    ImportReports::take(&m_last.report, lines);
    QList<INxAbstractMediaItem *> items;
    for (const NxImportReportLine &line : lines) {
        INxAbstractMediaItem *item = itemAt(line.path);
        m_last.media.watch(item);
        items.append(item);
    }
    m_service->read(items, INxFootageService::wFacts | INxFootageService::wPictures);
    m_reportNews.note();
}

void ImportDesk::importAgain(const QVector<NxImportReportLine> &lines)
{
    Import rest = m_last;
    ImportReports::take(&rest.report, lines);
    const std::vector<Errand> errands = errandsOf(lines);
    for (const Errand &errand : errands) {
        if (launch(errand, rest) == 0)
            return; // The reason was told, and holds for all of them.
    }
}

std::vector<ImportDesk::Errand> ImportDesk::errandsOf(
    const QVector<NxImportReportLine> &lines) const
{
    std::vector<Errand> errands;
    QHash<QPair<INxFolderMedia *, int>, size_t> places;
    for (const NxImportReportLine &line : lines) {
        const Home home = m_last.homes.value(line.path);
        INxFolderMedia *section = home.section ? home.section.data() : firstSection();
        INxFolderMedia *into = deepestFolder(section, line.folder);
        const QPair<INxFolderMedia *, int> key(into, home.kind);
        if (!places.contains(key)) {
            places.insert(key, errands.size());
            errands.push_back({into, home.kind, {}});
        }
        errands[places.value(key)].paths.append(line.path);
    }
    return errands;
}

INxFolderMedia *ImportDesk::firstSection() const
{
    const QVector<INxMediaManager *> managers = importingManagers(m_project);
    for (INxMediaManager *manager : managers) {
        const QList<INxFolderMedia *> sections =
            manager->folderManager()->rootFolder()->childFolders();
        const auto found =
            std::find_if(sections.begin(), sections.end(),
                         [](const INxFolderMedia *section) { return section->canAddMedia(); });
        if (found != sections.end())
            return *found;
    }
    return nullptr;
}

INxAbstractMediaItem *ImportDesk::itemAt(const QString &path) const
{
    const QVector<INxMediaManager *> managers = importingManagers(m_project);
    for (INxMediaManager *manager : managers) {
        INxAbstractMedia *media =
            manager->folderManager()->rootFolder()->findMediaByPath(path, true);
        if (auto *item = dynamic_cast<INxAbstractMediaItem *>(media))
            return item;
    }
    return nullptr;
}

// What is dropped and pasted

QStringList ImportDesk::pathsOf(const QMimeData *data)
{
    QStringList paths;
    if (!data)
        return paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    if (urls.isEmpty()) {
        const QStringList lines = data->text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (const QString &line : lines)
            paths.append(pathOfLine(line.trimmed()));
    }
    paths.removeAll(QString());
    paths.removeDuplicates();
    return paths;
}
