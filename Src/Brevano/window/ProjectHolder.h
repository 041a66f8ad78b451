// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class INxProject;
class NxMediaLibraryPresenter;
class WindowMemory;

/// The project that is open in a window, with the engine behind it and the presenters over it.
///
/// One project is open at a time; opening another closes the one before. A project that another
/// process holds, or that cannot be written, is opened to be looked at: readOnlyReason() says why.
class ProjectHolder : public QObject
{
    Q_OBJECT
public:
    using Done = std::function<void(const NxResult<void> &)>;

    /// The memory is not owned and outlives the holder.
    explicit ProjectHolder(WindowMemory *memory, QObject *parent = nullptr);
    ProjectHolder(WindowMemory *memory, const NxEmbeddedEngine::Options &options,
                  QObject *parent = nullptr);
    /// Closes the project; why it could not be written is logged.
    ~ProjectHolder() override;

    /// What project files end in, with the point.
    [[nodiscard]] static QString suffix();
    /// Whether a path ends like that of a project, in any case.
    [[nodiscard]] static bool isProjectPath(const QString &path);
    /// Whether there is no file of this path. Looks at the disk.
    [[nodiscard]] static bool isMissing(const QString &path);

    /// Opens a project, which comes first in the list of recent ones; done at once when it is open
    /// already. When it cannot be opened, the project before is opened again.
    NxResult<void> open(const QString &path);
    /// Opens a project as open() does, but never to change it, also where that could be done; it
    /// does not become a recent one. Waits until it is known which of its files are there: for
    /// pictures and scripts.
    NxResult<void> openToLook(const QString &path);
    /// Makes a new project and opens it; refused where a file stands. Otherwise like open().
    NxResult<void> create(const QString &path);
    /// Writes what waits and closes the project. When something keeps it from being closed it
    /// stays open, with new presenters; the error says why, as it does when not all could be
    /// written.
    NxResult<void> close();
    /// Writes a copy of the project to a new file and calls `done`, which may be empty, when that
    /// has happened or failed.
    void saveCopy(const QString &path, const Done &done);

    /// Null when no project is open. Owned by the engine.
    [[nodiscard]] INxProject *project() const { return m_project; }
    /// Over the media of the project; null when none is open. Owned by this holder.
    [[nodiscard]] NxMediaLibraryPresenter *presenter() const { return m_presenter.get(); }

    /// The absolute path of the project; empty when none is open.
    [[nodiscard]] QString path() const;
    /// The project's name for a title bar, with a mark when it can only be looked at; empty when
    /// none is open.
    [[nodiscard]] QString title() const;
    [[nodiscard]] bool isReadOnly() const;
    /// Why nothing can be changed; empty when it can, and when nobody wanted to.
    [[nodiscard]] QString readOnlyReason() const;
    /// What could not be read of a damaged project; empty when all could.
    [[nodiscard]] QString damage() const;

Q_SIGNALS:
    /// The project and its presenters are still there; views let go of them now.
    void sigAboutToClose();
    void sigClosed();
    /// A project is open, with new presenters.
    void sigOpened();

private:
    enum class Way { Open, Look, Create };

    [[nodiscard]] NxResult<void> openThere(const QString &path, Way way);
    [[nodiscard]] NxResult<void> replace(const QString &path, Way way);
    [[nodiscard]] NxResult<void> take(const QString &path, Way way);
    [[nodiscard]] NxResult<INxProject *> opened(const QString &path, Way way);
    void showProject();
    [[nodiscard]] NxResult<void> leave();

    WindowMemory *const m_memory; // Not owned.
    NxEmbeddedEngine m_engine;
    const NxMediaEngineDoor m_door;
    INxProject *m_project = nullptr; // The engine's.
    Way m_way = Way::Open; // In which the project was opened.
    std::unique_ptr<NxMediaLibraryPresenter> m_presenter;
};
