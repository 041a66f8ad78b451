// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/NxEngineProject.h>

#include <NxCore/NxFile.h>
#include <NxCore/NxLog.h>
#include <NxVBLEngine/disk/NxDiskThread.h>
#include <NxVBLEngine/disk/NxPresenceKeeper.h>
#include <NxVBLEngine/import/NxEngineImporter.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineTimelineEditor.h>
#include <NxVBLEngine/objects/NxEngineUndoStack.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxTimelineMemory.h>
#include <NxVBLEngine/pictures/NxPictureService.h>
#include <NxVBLEngine/reading/NxFileLength.h>
#include <NxVBLEngine/reading/NxFootageReader.h>
#include <NxVBLEngine/relink/NxRelinkSearch.h>

#include <QCoreApplication>
#include <QThread>

#include <algorithm>
#include <utility>

using namespace NXVBLMODEL;

NxEngineProject::NxEngineProject(Workers workers) : NxEngineProject(nullptr, std::move(workers))
{
    attachServices();
}

NxEngineProject::NxEngineProject(std::unique_ptr<NxProjectStore> store, Workers workers)
    : m_store(std::move(store)),
      m_memory(std::make_unique<NxProjectMemory>(m_store ? m_store->path() : QString())),
      m_disk(std::make_shared<NxDiskThread>()),
      m_presence(std::make_unique<NxPresenceKeeper>(m_memory.get(), m_disk))
{
    if (workers)
        attachReading(*workers);
}

NxResult<std::unique_ptr<NxEngineProject>> NxEngineProject::open(
    std::unique_ptr<NxProjectStore> store, Workers workers)
{
    std::unique_ptr<NxEngineProject> project(
        new NxEngineProject(std::move(store), std::move(workers)));
    const NxResult<void> loaded = project->load();
    if (!loaded)
        return loaded.error();
    project->attachStore();
    project->attachServices();
    return project;
}

NxEngineProject::~NxEngineProject()
{
    const NxResult<void> closed = close();
    if (!closed)
        NX_LOG_ERROR("%s", qUtf8Printable(closed.error().message));
}

NxResult<void> NxEngineProject::load()
{
    NxResult<NxProjectContents> contents = m_store->load();
    if (!contents)
        return contents.error();
    m_damage = contents->damage;
    m_memory->load(contents.take());
    m_memory->setReadOnly(m_store->isReadOnly());
    return {};
}

void NxEngineProject::attachStore()
{
    m_memory->setWriter([this](NxStoreBatch batch) { m_store->write(std::move(batch)); });
    m_store->setFailureHandler([this](const NxError &failure) {
        m_writeFailure = failure.message;
        m_memory->setReadOnly(true);
        NX_LOG_ERROR("%s", qUtf8Printable(failure.message));
    });
}

void NxEngineProject::attachReading(const NxWorkerSettings &workers)
{
    m_memory->setPictureFolder(workers.cacheFolder);
    m_reader = std::make_unique<NxFootageReader>(m_memory.get(), workers);
    m_pictures = std::make_unique<NxPictureService>(m_memory.get(), m_reader.get(),
                                                    NxPictureService::Limits());
    m_length = std::make_unique<NxFileLength>(workers);
    m_memory->setLengthReader(
        [length = m_length.get()](const QString &path) { return length->read(path); });
    m_relink = std::make_unique<NxRelinkSearch>(m_memory.get(), m_disk, workers);
}

void NxEngineProject::attachServices()
{
    for (int category = 0; category < MediaCategoryCount; ++category) {
        NxEngineCategory *owner = m_memory->category(category);
        const auto &sections = owner->root()->children();
        const bool takesFiles =
            std::any_of(sections.begin(), sections.end(),
                        [](const NxEngineFolder *section) { return section->canAddFolder(); });
        if (!takesFiles)
            continue;
        m_importers.push_back(
            std::make_unique<NxEngineImporter>(m_memory.get(), owner, m_disk, m_store.get()));
        owner->setImporter(m_importers.back().get());
    }
    m_presence->setRelativePaths(m_memory->takeRelativePaths());
    NxFile::setAnswerer([keeper = m_presence.get()](const QString &path) -> std::optional<bool> {
        if (QThread::currentThread() != QCoreApplication::instance()->thread())
            return std::nullopt;
        return keeper->known(path);
    });
    if (m_reader) {
        QObject::connect(m_presence.get(), &NxPresenceKeeper::seen, m_reader.get(),
                         &NxFootageReader::noteSeen);
        QObject::connect(m_reader.get(), &NxFootageReader::looksWanted, m_presence.get(),
                         &NxPresenceKeeper::lookAgain);
    }
    m_presence->start();
}

void NxEngineProject::stopServices()
{
    NxFile::setAnswerer({});
    m_memory->setLengthReader({});
    m_length.reset();
    if (m_relink)
        m_relink->stopAll();
    m_relink.reset();
    m_pictures.reset();
    m_reader.reset(); // What its workers have not answered yet is read another time.
    m_presence.reset();
    for (const auto &importer : m_importers)
        importer->stopAll(); // Their jobs end with the last commit.
}

void NxEngineProject::releaseServices()
{
    for (int category = 0; category < MediaCategoryCount; ++category)
        m_memory->category(category)->setImporter(nullptr);
    m_importers.clear();
    m_disk.reset();
}

NxResult<void> NxEngineProject::close()
{
    if (!m_disk)
        return {};
    stopServices();
    m_memory->flush();
    m_memory->setWriter({});
    const NxResult<void> closed = m_store ? m_store->close() : NxResult<void>();
    releaseServices();
    m_store.reset();
    return closed;
}

bool NxEngineProject::isObserved() const
{
    for (int category = 0; category < MediaCategoryCount; ++category) {
        const NxEngineCategory *owner = m_memory->category(category);
        if (!owner->itemObservers.isEmpty() || !owner->folderObservers.isEmpty())
            return true;
    }
    return false;
}

bool NxEngineProject::isChanging() const
{
    const NxEngineUndoStack *history = m_memory->undoStack();
    if (history->isInStep() || history->isReplaying())
        return true;
    for (int category = 0; category < MediaCategoryCount; ++category) {
        const NxEngineCategory *owner = m_memory->category(category);
        if (owner->itemObservers.isTelling() || owner->folderObservers.isTelling())
            return true;
    }
    return false;
}

QString NxEngineProject::path() const
{
    return m_memory->projectPath();
}

bool NxEngineProject::isReadOnly() const
{
    return m_memory->isReadOnly();
}

QString NxEngineProject::readOnlyReason() const
{
    if (!m_writeFailure.isEmpty())
        return m_writeFailure;
    if (!m_damage.isEmpty())
        return m_damage;
    return m_store ? m_store->readOnlyReason() : QString();
}

INxFootageService *NxEngineProject::footageService()
{
    return m_reader.get();
}

INxRelinkSearch *NxEngineProject::relinkSearch()
{
    return m_relink.get();
}

QList<NxTimelineUse> NxEngineProject::timelineUses(const QString &mediaId)
{
    return m_memory->timelines()->uses(mediaId);
}

QList<INxTimeline *> NxEngineProject::timelines()
{
    return m_memory->timelines()->timelines();
}

INxTimelineEditor *NxEngineProject::timelineEditor()
{
    return m_memory->timelines()->editor();
}

INxUndoStack *NxEngineProject::undoStack()
{
    return m_memory->undoStack();
}

void NxEngineProject::requestCommit(std::function<void(const NxResult<void> &)> done)
{
    m_memory->flush();
    if (m_store)
        m_store->commit(std::move(done));
    else
        INxProject::requestCommit(std::move(done));
}

void NxEngineProject::saveCopy(const QString &path,
                               std::function<void(const NxResult<void> &)> done)
{
    m_memory->flush();
    if (m_store)
        m_store->saveCopy(path, std::move(done));
    else
        INxProject::saveCopy(path, std::move(done));
}

INxMediaManager *NxEngineProject::mediaManager(NxMediaCategoryType category)
{
    return m_memory->category(category);
}
