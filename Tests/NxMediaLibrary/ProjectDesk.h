// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxAppSettings/NxAppSettings.h>
#include <NxCore/NxConfig.h>
#include <NxCore/NxMemorySettingsStore.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLEngine/objects/NxEngineUndoStack.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <NxVBLEngine/objects/EngineFixture.h>

#include <QTest>

#include <memory>
#include <optional>

#include "ScriptedEngine.h"

/// A project of the real engine with the presenters of its media before it. Its footage is never
/// read; every file that a media is given counts as long enough.
class ProjectDesk
{
public:
    /// @param path of the project file that is made; empty for a project in memory.
    explicit ProjectDesk(const QString &path) : m_path(path)
    {
        NxConfig::Instance()->setStore(std::make_unique<NxMemorySettingsStore>());
        NxAppSettings::instance()->setStore(std::make_unique<NxMemorySettingsStore>());
        if (path.isEmpty())
            makeInMemory();
        else
            makeFile();
        sitDown();
    }
    ~ProjectDesk()
    {
        getUp();
        NxConfig::Instance()->setStore(nullptr);
        NxAppSettings::instance()->setStore(nullptr);
    }

    /// Closes the project file and opens it in an engine of its own.
    void reopen(NxProjectOpenMode mode = NxProjectOpenMode::ReadWrite)
    {
        getUp();
        QVERIFY(m_engine->closeProject());
        m_door.reset();
        m_engine = std::make_unique<NxEmbeddedEngine>(options());
        m_door.emplace(m_engine.get());
        const auto opened = m_engine->openProject(m_path, mode);
        QVERIFY2(opened, qPrintable(opened.errorText()));
        project = static_cast<NxEngineProject *>(*opened);
        sitDown();
    }
    /// The presenters die: the project may be closed.
    void getUp()
    {
        items.reset();
        folders.reset();
    }
    /// Closes a project file for good.
    void close()
    {
        getUp();
        QVERIFY(m_engine->closeProject());
        project = nullptr;
    }

    [[nodiscard]] NxProjectMemory *memory() const { return project->memory(); }
    [[nodiscard]] NxEngineUndoStack *undo() const { return memory()->undoStack(); }
    [[nodiscard]] INxMediaManager *media() const
    {
        return project->mediaLibrary()->mediaManager(NXVBLMODEL::mctMedia);
    }
    [[nodiscard]] INxFolderMedia *section() const
    {
        return media()->folderManager()->folder(NXVBLMODEL::fidRoot);
    }
    [[nodiscard]] QByteArray dump() const { return projectDump(*memory()); }

    /// Null after close().
    NxEngineProject *project = nullptr; // Not owned.
    std::unique_ptr<NxMediaItemManagerPresenter> items;
    std::unique_ptr<NxFolderMediaManagerPresenter> folders;

private:
    static NxEmbeddedEngine::Options options()
    {
        NxEmbeddedEngine::Options options;
        options.backups = false;
        options.readsFootage = false;
        return options;
    }
    void makeInMemory()
    {
        m_inMemory = std::make_unique<NxEngineProject>();
        project = m_inMemory.get();
        m_scripted.project = project;
        m_door.emplace(&m_scripted);
    }
    void makeFile()
    {
        m_engine = std::make_unique<NxEmbeddedEngine>(options());
        m_door.emplace(m_engine.get());
        const auto created = m_engine->createProject(m_path);
        QVERIFY2(created, qPrintable(created.errorText()));
        project = static_cast<NxEngineProject *>(*created);
    }
    void sitDown()
    {
        memory()->setLengthReader([](const QString &) { return qint64(0); });
        items = std::make_unique<NxMediaItemManagerPresenter>(media()->itemManager(), nullptr);
        folders =
            std::make_unique<NxFolderMediaManagerPresenter>(media()->folderManager(), nullptr);
        items->setFolder(section());
    }

    const QString m_path;
    std::unique_ptr<NxEngineProject> m_inMemory;
    ScriptedEngine m_scripted;
    std::unique_ptr<NxEmbeddedEngine> m_engine;
    std::optional<NxMediaEngineDoor> m_door;
};
