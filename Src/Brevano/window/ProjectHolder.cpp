// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ProjectHolder.h>

#include <Brevano/window/WindowMemory.h>
#include <NxCore/NxDiskBan.h>
#include <NxCore/NxLog.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxVBLModel/INxProject.h>

#include <QDir>
#include <QFileInfo>

namespace {

QString absolute(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace

ProjectHolder::ProjectHolder(WindowMemory *memory, QObject *parent)
    : ProjectHolder(memory, NxEmbeddedEngine::Options(), parent)
{
}

ProjectHolder::ProjectHolder(WindowMemory *memory, const NxEmbeddedEngine::Options &options,
                             QObject *parent)
    : QObject(parent),
      m_memory(memory),
      m_engine(options),
      m_door(&m_engine)
{
}

ProjectHolder::~ProjectHolder()
{
    const NxResult<void> closed = leave();
    if (!closed)
        NX_LOG_ERROR("%s", qUtf8Printable(closed.error().message));
}

QString ProjectHolder::suffix()
{
    return QStringLiteral(".brevano");
}

bool ProjectHolder::isProjectPath(const QString &path)
{
    return path.endsWith(suffix(), Qt::CaseInsensitive);
}

bool ProjectHolder::isMissing(const QString &path)
{
    NxDiskBan::note("ProjectHolder::isMissing");
    const QFileInfo info(path);
    return !info.exists() && !info.isSymLink();
}

NxResult<void> ProjectHolder::open(const QString &path)
{
    return openThere(path, Way::Open);
}

NxResult<void> ProjectHolder::openToLook(const QString &path)
{
    return openThere(path, Way::Look);
}

NxResult<void> ProjectHolder::openThere(const QString &path, Way way)
{
    if (path.isEmpty())
        return NxError{tr("No project was named.")};
    if (m_project && absolute(path) == this->path())
        return {};
    if (way != Way::Look && isMissing(path))
        return NxError{tr("There is no project \"%1\".").arg(QDir::toNativeSeparators(path))};
    return replace(absolute(path), way);
}

NxResult<void> ProjectHolder::create(const QString &path)
{
    if (path.isEmpty())
        return NxError{tr("No project was named.")};
    if (!isMissing(path))
        return NxError{tr("\"%1\" exists already.").arg(QDir::toNativeSeparators(path))};
    return replace(absolute(path), Way::Create);
}

NxResult<void> ProjectHolder::replace(const QString &path, Way way)
{
    const QString before = this->path();
    const NxResult<void> closed = close();
    if (m_project)
        return closed;
    NxResult<void> taken = take(path, way);
    if (!taken && !before.isEmpty()) {
        const NxResult<void> back = take(before, Way::Open);
        if (!back)
            NX_LOG_ERROR("%s", qUtf8Printable(back.error().message));
    }
    if (taken && !closed)
        taken = closed.error(); // The new one is open, but the user must hear of the old one.
    return taken;
}

NxResult<void> ProjectHolder::take(const QString &path, Way way)
{
    const NxResult<INxProject *> taken = opened(path, way);
    if (!taken)
        return taken.error();
    m_project = *taken;
    m_way = way;
    if (way == Way::Look)
        m_engine.refreshExistence();
    else
        m_memory->noteRecent(this->path());
    showProject();
    return {};
}

NxResult<INxProject *> ProjectHolder::opened(const QString &path, Way way)
{
    if (way == Way::Create)
        return m_engine.createProject(path);
    return m_engine.openProject(path, way == Way::Look ? NxProjectOpenMode::ReadOnly
                                                       : NxProjectOpenMode::ReadWrite);
}

void ProjectHolder::showProject()
{
    m_presenter = std::make_unique<NxMediaLibraryPresenter>(m_project->mediaLibrary(), nullptr);
    Q_EMIT sigOpened();
}

NxResult<void> ProjectHolder::close()
{
    if (!m_project)
        return {};
    const NxResult<void> closed = leave();
    if (m_project)
        showProject();
    else
        Q_EMIT sigClosed();
    return closed;
}

NxResult<void> ProjectHolder::leave()
{
    if (!m_project)
        return {};
    Q_EMIT sigAboutToClose();
    m_presenter.reset(); // It observes the project.
    const NxResult<void> closed = m_engine.closeProject();
    m_project = m_engine.currentProject();
    return closed;
}

void ProjectHolder::saveCopy(const QString &path, const Done &done)
{
    if (m_project)
        m_project->saveCopy(absolute(path), done);
    else if (done)
        done(NxError{tr("No project is open.")});
}

QString ProjectHolder::path() const
{
    return m_project ? m_project->path() : QString();
}

QString ProjectHolder::title() const
{
    if (!m_project)
        return {};
    const QString name = QFileInfo(path()).completeBaseName();
    return isReadOnly() ? tr("%1 (read-only)").arg(name) : name;
}

bool ProjectHolder::isReadOnly() const
{
    return m_project && m_project->isReadOnly();
}

QString ProjectHolder::readOnlyReason() const
{
    return m_project && m_way != Way::Look ? m_project->readOnlyReason() : QString();
}

QString ProjectHolder::damage() const
{
    return m_engine.damage();
}
