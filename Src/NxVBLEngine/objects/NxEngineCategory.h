// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/records/NxFolderRecord.h>
#include <NxVBLModel/INxMediaFolderEventObserver.h>
#include <NxVBLModel/INxMediaItemEventObserver.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/NxObserverList.h>

#include <QString>

#include <memory>
#include <unordered_map>
#include <vector>

class INxMediaImporter;
class NxEngineFolder;
class NxEngineFolderManager;
class NxEngineItem;
class NxEngineItemManager;
class NxEngineMedia;
class NxEngineResource;
class NxProjectMemory;

/// One category of the open project: its folders, its resources, its two managers, and who
/// observes them.
class NXVBLENGINE_TEST_EXPORT NxEngineCategory final : public INxMediaManager
{
public:
    NxEngineCategory(NxProjectMemory *memory, NXVBLMODEL::NxMediaCategoryType category);
    ~NxEngineCategory() override;

    [[nodiscard]] NxProjectMemory *memory() const { return m_memory; }
    [[nodiscard]] NxEngineFolder *root() const { return m_root.get(); }
    /// Null when the category has no living folder of this id.
    [[nodiscard]] NxEngineFolder *folder(int id) const;
    /// The section of a kind; null when the category has none.
    [[nodiscard]] NxEngineFolder *section(int kind) const;
    [[nodiscard]] NxEngineFolderManager *engineFolderManager() const
    {
        return m_folderManager.get();
    }
    [[nodiscard]] NxEngineItemManager *engineItemManager() const { return m_itemManager.get(); }
    [[nodiscard]] const std::vector<std::unique_ptr<NxEngineResource>> &resources() const
    {
        return m_resources;
    }

    /// Brings a user's folder into its parent, by its place. Announces nothing.
    NxEngineFolder *insertFolder(const NxFolderRecord &record);
    /// Takes a folder out of its parent and hands it over. Announces nothing.
    std::unique_ptr<NxEngineFolder> takeFolder(NxEngineFolder *folder);

    /// A living item of this category; null when there is none.
    [[nodiscard]] NxEngineItem *findItem(qint64 id) const;
    [[nodiscard]] NxEngineItem *findItemByPath(const QString &path) const;

    /// The importer is the engine's; it must outlive the category or be taken back.
    void setImporter(INxMediaImporter *importer) { m_importer = importer; }

    NxObserverList<INxMediaItemEventObserver> itemObservers;
    NxObserverList<INxMediaFolderEventObserver> folderObservers;

    INxFolderMediaManager *folderManager() override;
    INxMediaItemManager *itemManager() override;
    NXVBLMODEL::NxMediaCategoryType categoryType() const override { return m_category; }
    INxMediaImporter *importer() override { return m_importer; }
    void setProject(INxProject *project) override;
    bool isTimelineMedia() const override;
    bool isTimelineResource() const override;

private:
    void makeSections();
    void makeResources();

    NxProjectMemory *const m_memory; // Not owned.
    const NXVBLMODEL::NxMediaCategoryType m_category;
    std::unique_ptr<NxEngineFolder> m_root;
    std::unordered_map<int, std::unique_ptr<NxEngineFolder>> m_folders; // By id.
    std::vector<std::unique_ptr<NxEngineResource>> m_resources;
    std::unique_ptr<NxEngineFolderManager> m_folderManager;
    std::unique_ptr<NxEngineItemManager> m_itemManager;
    INxMediaImporter *m_importer = nullptr; // Not owned.
};
