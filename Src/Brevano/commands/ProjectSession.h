// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/ProgramArgument.h>
#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLModel/NxMediaEngineDoor.h>
#include <NxVBLModel/NxMediaTypes.h>

#include <QList>

#include <memory>

class Console;
class INxAbstractMediaItem;
class INxFolderMedia;
class INxFolderMediaManager;
class INxFootageService;
class INxMediaImporter;
class INxMediaItemManager;
class INxMediaManager;
class INxUndoStack;
class NxFolderMediaManagerPresenter;
class NxMediaItemManagerPresenter;
class NxMediaLibraryPresenter;

/// One project, open for one command. Says on the console why something does not work.
class ProjectSession
{
public:
    enum class Access {
        Look, ///< Works beside another process that holds the project.
        Change,
        ChangeIfFree, ///< To change it; beside another process that holds it, only to look.
    };

    explicit ProjectSession(Console *console);
    ~ProjectSession();
    Q_DISABLE_COPY_MOVE(ProjectSession)

    /// False, after saying why, when the project cannot be opened, or not be changed.
    [[nodiscard]] bool open(const ProgramArgument &project, Access access);
    /// The same to change it; a project that is not there is made, which is said.
    [[nodiscard]] bool openOrCreate(const ProgramArgument &project);

    /// Says why the project cannot be used, once for each reason.
    void tellFailure(const QString &reason);
    /// Waits until all that was done so far is on disk. False, after saying why, when it is not.
    [[nodiscard]] bool commit();
    /// Closes the project. Answers `code`, or ProjectUnusable when not all could be written.
    [[nodiscard]] int close(int code);

    /// The path as the user wrote it.
    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] NxEmbeddedEngine &engine() { return m_engine; }
    [[nodiscard]] INxProject *project() const { return m_project; }
    [[nodiscard]] INxUndoStack *undoStack() const;
    /// Those of a category.
    [[nodiscard]] INxFolderMediaManager *folders(
        NXVBLMODEL::NxMediaCategoryType category = NXVBLMODEL::mctMedia) const;
    [[nodiscard]] INxMediaItemManager *items() const;
    [[nodiscard]] INxMediaImporter *importer() const;
    /// What reads the footage; only what it is asked to.
    [[nodiscard]] INxFootageService *footage() const;
    /// What the panel does to media, and to folders, of the project.
    [[nodiscard]] NxMediaItemManagerPresenter *itemPresenter();
    [[nodiscard]] NxFolderMediaManagerPresenter *folderPresenter();
    /// Every media of the project, section by section, in the order of its folders.
    [[nodiscard]] QList<INxAbstractMediaItem *> media() const;
    /// The sections in their order.
    [[nodiscard]] QList<INxFolderMedia *> sections() const;
    /// Whether the file is damaged; what is wrong with it was said when it was opened.
    [[nodiscard]] bool isDamaged() const { return m_isDamaged; }

private:
    [[nodiscard]] bool isUsablePath(const ProgramArgument &project);
    [[nodiscard]] bool take(const NxResult<INxProject *> &opened);
    [[nodiscard]] bool canChange();
    [[nodiscard]] NxMediaLibraryPresenter *panel();
    [[nodiscard]] INxMediaManager *manager(
        NXVBLMODEL::NxMediaCategoryType category = NXVBLMODEL::mctMedia) const;

    Console *const m_console; // Not owned.
    NxEmbeddedEngine m_engine;
    const NxMediaEngineDoor m_door;
    INxProject *m_project = nullptr; // The engine's.
    std::unique_ptr<NxMediaLibraryPresenter> m_panel; // Made at the first request.
    QString m_path;
    QString m_told; // The last reason that was said.
    bool m_isDamaged = false;
};
