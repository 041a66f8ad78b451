// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/NxEmbeddedEngine.h>

#include <NxCore/INxAppInfo.h>
#include <NxCore/NxLog.h>
#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLEngine/disk/NxFileProbe.h>
#include <NxVBLEngine/disk/NxPresenceKeeper.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/pictures/NxEngineThumbManager.h>
#include <NxVBLEngine/pictures/NxPictureService.h>
#include <NxVBLEngine/preview/NxPreviewClip.h>
#include <NxVBLEngine/preview/NxPreviewService.h>
#include <NxVBLEngine/preview/NxPreviewTimeline.h>
#include <NxVBLEngine/reading/NxFootageReader.h>
#include <NxVBLEngine/reading/NxWorkerLocation.h>
#include <NxVBLEngine/store/NxProjectStore.h>

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QString absolute(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace

class NxEmbeddedEnginePrivate
{
public:
    explicit NxEmbeddedEnginePrivate(NxEmbeddedEngine::Options chosen) : options(std::move(chosen))
    {
    }

    NxProjectStoreOptions storeOptions(bool readOnly) const
    {
        NxProjectStoreOptions store;
        store.readOnly = readOnly;
        if (!options.backups)
            return store;
        store.backupFolder = options.backupFolder.isEmpty()
                                 ? INxAppInfo::getInstance()->getDirectory(INxAppInfo::pkUserData)
                                       + QStringLiteral("/Backups")
                                 : options.backupFolder;
        return store;
    }

    QString pictureFolder() const
    {
        return options.pictureFolder.isEmpty()
                   ? QStandardPaths::writableLocation(QStandardPaths::CacheLocation)
                         + QStringLiteral("/Pictures")
                   : absolute(options.pictureFolder);
    }

    NxWorkerSettings workerSettings() const
    {
        NxWorkerSettings workers;
        NxResult<QString> program = NxWorkerLocation::find();
        workers.whyNone = program.errorText();
        if (program)
            workers.program = program.take();
        workers.cacheFolder = pictureFolder();
        if (options.workers > 0)
            workers.workers = options.workers;
        workers.volumeRoots = &NxFileProbe::volumeRoots;
        return workers;
    }

    void ensurePreviews()
    {
        if (previews)
            return;
        NxPreviewSettings settings;
        settings.program = [] { return NxWorkerLocation::find(); };
        settings.cacheFolder = pictureFolder();
        previews = std::make_unique<NxPreviewService>(std::move(settings));
    }

    NxResult<INxProject *> takeOver(NxResult<std::unique_ptr<NxProjectStore>> store)
    {
        if (!store)
            return store.error();
        NxResult<std::unique_ptr<NxEngineProject>> opened =
            NxEngineProject::open(store.take(), workerSettings());
        if (!opened)
            return opened.error();
        project = opened.take();
        *pictures = project->pictureService();
        if (options.readsFootage)
            project->footageReader()->start();
        return static_cast<INxProject *>(project.get());
    }

    NxResult<void> mayOpen() const
    {
        if (!project)
            return {};
        return NxError{QStringLiteral("%1 is open; it must be closed first").arg(project->path())};
    }

    const NxEmbeddedEngine::Options options;
    std::unique_ptr<NxEngineProject> project;
    std::unique_ptr<NxPreviewService> previews; // Since the first clip for one.
    bool isClosing = false;
    const NxEngineThumbManager::Current pictures = std::make_shared<QPointer<NxPictureService>>();
};

NxEmbeddedEngine::NxEmbeddedEngine() : NxEmbeddedEngine(Options()) {}

NxEmbeddedEngine::NxEmbeddedEngine(const Options &options)
    : d(std::make_unique<NxEmbeddedEnginePrivate>(options))
{
}

NxEmbeddedEngine::~NxEmbeddedEngine() = default;

NxResult<INxProject *> NxEmbeddedEngine::createProject(const QString &path)
{
    const NxResult<void> free = d->mayOpen();
    if (!free)
        return free.error();
    return d->takeOver(NxProjectStore::create(absolute(path), d->storeOptions(false)));
}

NxResult<INxProject *> NxEmbeddedEngine::openProject(const QString &path, NxProjectOpenMode mode)
{
    const NxResult<void> free = d->mayOpen();
    if (!free)
        return free.error();
    const bool readOnly = mode == NxProjectOpenMode::ReadOnly;
    return d->takeOver(NxProjectStore::open(absolute(path), d->storeOptions(readOnly)));
}

NxResult<void> NxEmbeddedEngine::closeProject()
{
    if (!d->project)
        return {};
    if (d->isClosing || d->project->isChanging()) {
        NX_LOG_ERROR("%s is being changed", qUtf8Printable(d->project->path()));
        return NxError{QStringLiteral("%1 is being changed").arg(d->project->path())};
    }
    if (d->project->isObserved()) {
        NX_LOG_ERROR("%s is still observed", qUtf8Printable(d->project->path()));
        return NxError{QStringLiteral("%1 is still in use").arg(d->project->path())};
    }
    d->isClosing = true; // What ends with the project tells so, and may ask for its end again.
    const NxResult<void> closed = d->project->close();
    d->isClosing = false;
    d->project.reset();
    return closed;
}

INxProject *NxEmbeddedEngine::currentProject()
{
    return d->project.get();
}

INxClip *NxEmbeddedEngine::createVideoClip(const QString &path)
{
    if (path.isEmpty())
        return nullptr;
    d->ensurePreviews();
    return new NxPreviewClip(path);
}

INxTimeline *NxEmbeddedEngine::createTimeline(INxClip *clip)
{
    auto *preview = dynamic_cast<NxPreviewClip *>(clip);
    if (!preview || preview->timeline())
        return nullptr;
    d->ensurePreviews();
    return new NxPreviewTimeline(d->previews.get(), std::unique_ptr<NxPreviewClip>(preview));
}

INxBsThumbManager *NxEmbeddedEngine::createThumbManager()
{
    return new NxEngineThumbManager(d->pictures);
}

QString NxEmbeddedEngine::damage() const
{
    return d->project ? d->project->damage() : QString();
}

QStringList NxEmbeddedEngine::integrityProblems()
{
    if (!d->project || !d->project->store())
        return {};
    QStringList problems = d->project->store()->integrityProblems();
    const QString broken = d->project->memory()->brokenInvariant();
    if (!broken.isEmpty())
        problems.append(broken);
    return problems;
}

void NxEmbeddedEngine::refreshExistence()
{
    if (!d->project)
        return;
    QEventLoop loop;
    d->project->presenceKeeper()->refreshNow([&loop] { loop.quit(); });
    loop.exec();
}
