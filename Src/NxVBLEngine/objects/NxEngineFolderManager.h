// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLModel/INxFolderMediaManager.h>

#include <QVector>

class NxEngineCategory;
class NxEngineFolder;
class NxProjectMemory;
struct NxChange;

/// Carries out what the user does with the folders of a category. Each call is one undo step.
class NXVBLENGINE_TEST_EXPORT NxEngineFolderManager final : public INxFolderMediaManager
{
public:
    static constexpr int MaximumNameLength = 255;

    explicit NxEngineFolderManager(NxEngineCategory *category);
    ~NxEngineFolderManager() override;

    /// The name as it would be taken into `parent`, or why it would not. `renamed` is the folder
    /// that may keep its own name.
    [[nodiscard]] static NxResult<QString> checkedName(const QString &name,
                                                       const NxEngineFolder *parent,
                                                       const NxEngineFolder *renamed = nullptr);

    INxFolderMedia *rootFolder() override;
    INxFolderMedia *folder(int folderId) override;
    bool addFolder(INxFolderMedia *parent, const QString &name) override;
    bool canRemoveFolder(INxFolderMedia *folder) override;
    bool removeFolder(INxFolderMedia *folder) override;
    bool renameFolder(INxFolderMedia *folder, const QString &name) override;
    bool moveFolder(INxFolderMedia *folder, INxFolderMedia *newParent, int row) override;
    bool registerObserver(INxMediaFolderEventObserver *observer) override;
    void unregisterObserver(INxMediaFolderEventObserver *observer) override;
    INxMediaItemManager *itemManager() override;

private:
    [[nodiscard]] NxEngineFolder *own(INxFolderMedia *folder) const;
    [[nodiscard]] NxEngineFolder *changeable(INxFolderMedia *folder) const;
    [[nodiscard]] NxProjectMemory *memory() const;
    void removeTree(NxEngineFolder *folder);
    [[nodiscard]] qint64 placeForRow(NxEngineFolder *parent, const NxEngineFolder *moved, int row);
    void spread(const QVector<NxEngineFolder *> &siblings);
    void moveTo(NxEngineFolder *folder, NxEngineFolder *parent, qint64 place);

    NxEngineCategory *const m_category; // Not owned.
};
