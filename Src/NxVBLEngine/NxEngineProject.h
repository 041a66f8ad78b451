// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/reading/NxWorkerSettings.h>
#include <NxVBLEngine/store/NxProjectStore.h>
#include <NxVBLModel/INxMediaLibrary.h>
#include <NxVBLModel/INxProject.h>

#include <memory>
#include <optional>
#include <vector>

class NxDiskThread;
class NxEngineImporter;
class NxFileLength;
class NxFootageReader;
class NxPictureService;
class NxPresenceKeeper;
class NxProjectMemory;
class NxRelinkSearch;

/// Everything that belongs to one open project: its memory, its store, its importers and what
/// watches its files.
class NXVBLENGINE_TEST_EXPORT NxEngineProject final : public INxProject, public INxMediaLibrary
{
public:
    /// How its files are read; nothing when they are not.
    using Workers = std::optional<NxWorkerSettings>;

    /// A project without a file, for tests and previews.
    explicit NxEngineProject(Workers workers = {});
    /// Takes over an open store and loads it.
    [[nodiscard]] static NxResult<std::unique_ptr<NxEngineProject>> open(
        std::unique_ptr<NxProjectStore> store, Workers workers = {});
    ~NxEngineProject() override;

    [[nodiscard]] NxProjectMemory *memory() const { return m_memory.get(); }
    [[nodiscard]] NxProjectStore *store() const { return m_store.get(); }
    [[nodiscard]] NxPresenceKeeper *presenceKeeper() const { return m_presence.get(); }
    /// Null when nothing reads the project's files.
    [[nodiscard]] NxFootageReader *footageReader() const { return m_reader.get(); }
    /// Null when nothing reads the project's files.
    [[nodiscard]] NxPictureService *pictureService() const { return m_pictures.get(); }
    /// True while somebody observes one of the managers.
    [[nodiscard]] bool isObserved() const;
    /// True while observers are being told of a change, or an undo step is open: whoever calls then
    /// stands in the middle of what is done to the project.
    [[nodiscard]] bool isChanging() const;
    /// What could not be read of a damaged file; empty when all could.
    [[nodiscard]] QString damage() const { return m_damage; }
    /// Stops jobs, writes what waits and closes the file.
    [[nodiscard]] NxResult<void> close();

    QString path() const override;
    bool isReadOnly() const override;
    QString readOnlyReason() const override;
    INxMediaLibrary *mediaLibrary() override { return this; }
    INxUndoStack *undoStack() override;
    INxFootageService *footageService() override;
    QList<NxTimelineUse> timelineUses(const QString &mediaId) override;
    QList<INxTimeline *> timelines() override;
    INxTimelineEditor *timelineEditor() override;
    INxRelinkSearch *relinkSearch() override;
    void requestCommit(std::function<void(const NxResult<void> &)> done) override;
    void saveCopy(const QString &path, std::function<void(const NxResult<void> &)> done) override;
    INxMediaManager *mediaManager(NXVBLMODEL::NxMediaCategoryType category) override;

private:
    NxEngineProject(std::unique_ptr<NxProjectStore> store, Workers workers);
    [[nodiscard]] NxResult<void> load();
    void attachStore();
    void attachServices();
    void attachReading(const NxWorkerSettings &workers);
    void stopServices();
    void releaseServices();

    std::unique_ptr<NxProjectStore> m_store; // Null for a project without a file.
    std::unique_ptr<NxProjectMemory> m_memory;
    std::shared_ptr<NxDiskThread> m_disk;
    std::unique_ptr<NxPresenceKeeper> m_presence;
    std::unique_ptr<NxFootageReader> m_reader;
    std::unique_ptr<NxPictureService> m_pictures;
    std::unique_ptr<NxFileLength> m_length;
    std::unique_ptr<NxRelinkSearch> m_relink;
    std::vector<std::unique_ptr<NxEngineImporter>> m_importers;
    QString m_damage;
    QString m_writeFailure; // Why nothing is written any more.
};
