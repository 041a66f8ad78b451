// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ProjectSession.h>

#include <Brevano/commands/Console.h>
#include <Brevano/commands/ExitCode.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaImporter.h>
#include <NxVBLModel/INxMediaLibrary.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxProject.h>

#include <QEventLoop>
#include <QFileInfo>

namespace {

bool isThere(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

NxEmbeddedEngine::Options engineOptions()
{
    NxEmbeddedEngine::Options options;
    options.readsFootage = false; // A command ends when its work is done.
    return options;
}

} // namespace

ProjectSession::ProjectSession(Console *console)
    : m_console(console),
      m_engine(engineOptions()),
      m_door(&m_engine)
{
}

ProjectSession::~ProjectSession()
{
    m_panel.reset();
    if (!m_project)
        return;
    const NxResult<void> closed = m_engine.closeProject();
    if (!closed)
        tellFailure(closed.error().message);
}

void ProjectSession::tellFailure(const QString &reason)
{
    if (reason == m_told)
        return;
    m_told = reason;
    m_console->error(m_path, reason);
}

bool ProjectSession::isUsablePath(const ProgramArgument &project)
{
    m_path = project.text;
    if (!project.isText)
        m_console->error(m_path, QStringLiteral("the name is not UTF-8"));
    else if (m_path.isEmpty())
        m_console->note(QStringLiteral("the name of the project is empty"));
    return project.isText && !m_path.isEmpty();
}

bool ProjectSession::open(const ProgramArgument &project, Access access)
{
    if (!isUsablePath(project))
        return false;
    const bool toChange = access != Access::Look;
    const auto mode = toChange ? NxProjectOpenMode::ReadWrite : NxProjectOpenMode::ReadOnly;
    if (!take(m_engine.openProject(QFileInfo(m_path).absoluteFilePath(), mode)))
        return false;
    return access != Access::Change || canChange();
}

bool ProjectSession::openOrCreate(const ProgramArgument &project)
{
    if (!isUsablePath(project))
        return false;
    if (isThere(m_path))
        return open(project, Access::Change);
    if (!take(m_engine.createProject(QFileInfo(m_path).absoluteFilePath())))
        return false;
    m_console->error(m_path, QStringLiteral("a new project was made"));
    return canChange();
}

bool ProjectSession::take(const NxResult<INxProject *> &opened)
{
    if (!opened) {
        tellFailure(opened.error().message);
        return false;
    }
    m_project = *opened;
    const QString damage = m_engine.damage();
    m_isDamaged = !damage.isEmpty();
    if (m_isDamaged)
        tellFailure(damage);
    return true;
}

bool ProjectSession::canChange()
{
    if (!m_project->isReadOnly())
        return true;
    tellFailure(m_project->readOnlyReason());
    return false;
}

bool ProjectSession::commit()
{
    QEventLoop loop;
    bool isAnswered = false;
    QString failure;
    m_project->requestCommit([&](const NxResult<void> &result) {
        failure = result.errorText();
        isAnswered = true;
        loop.quit();
    });
    if (!isAnswered)
        loop.exec();
    if (!failure.isEmpty())
        tellFailure(failure);
    return failure.isEmpty();
}

int ProjectSession::close(int code)
{
    if (!m_project)
        return code;
    m_panel.reset(); // It observes the project.
    m_project = nullptr;
    const NxResult<void> closed = m_engine.closeProject();
    if (closed)
        return code;
    tellFailure(closed.error().message);
    return ProjectUnusable;
}

INxUndoStack *ProjectSession::undoStack() const
{
    return m_project->undoStack();
}

INxMediaManager *ProjectSession::manager(NXVBLMODEL::NxMediaCategoryType category) const
{
    return m_project->mediaLibrary()->mediaManager(category);
}

INxFolderMediaManager *ProjectSession::folders(NXVBLMODEL::NxMediaCategoryType category) const
{
    return manager(category)->folderManager();
}

INxMediaItemManager *ProjectSession::items() const
{
    return manager()->itemManager();
}

INxMediaImporter *ProjectSession::importer() const
{
    return manager()->importer();
}

INxFootageService *ProjectSession::footage() const
{
    return m_project->footageService();
}

NxMediaLibraryPresenter *ProjectSession::panel()
{
    if (!m_panel)
        m_panel = std::make_unique<NxMediaLibraryPresenter>(m_project->mediaLibrary(), nullptr);
    return m_panel.get();
}

NxMediaItemManagerPresenter *ProjectSession::itemPresenter()
{
    return panel()->getMediaCategoryPresenter(NXVBLMODEL::mctMedia)->mediaItemManagerPresenter();
}

NxFolderMediaManagerPresenter *ProjectSession::folderPresenter()
{
    return panel()->getMediaCategoryPresenter(NXVBLMODEL::mctMedia)->folderManagerPresenter();
}

QList<INxAbstractMediaItem *> ProjectSession::media() const
{
    QList<INxAbstractMediaItem *> all;
    const QList<INxFolderMedia *> shown = sections();
    for (const INxFolderMedia *section : shown) {
        const QList<INxAbstractMedia *> items = section->items(true, true);
        for (INxAbstractMedia *item : items) {
            if (auto *media = dynamic_cast<INxAbstractMediaItem *>(item))
                all.append(media);
        }
    }
    return all;
}

QList<INxFolderMedia *> ProjectSession::sections() const
{
    return folders()->rootFolder()->childFolders();
}
