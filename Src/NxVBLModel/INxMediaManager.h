// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaTypes.h>
#include <NxVBLModel/NxVBLModelExport.h>

class INxFolderMediaManager;
class INxMediaImporter;
class INxMediaItemManager;
class INxProject;

/// One category of a project: its folders, its items, its importer. Owned by the library; what it
/// answers is owned by it.
class NXVBLMODEL_EXPORT INxMediaManager
{
public:
    virtual ~INxMediaManager();

    [[nodiscard]] virtual INxFolderMediaManager *folderManager() = 0;
    [[nodiscard]] virtual INxMediaItemManager *itemManager() = 0;
    [[nodiscard]] virtual NXVBLMODEL::NxMediaCategoryType categoryType() const = 0;
    /// Brings files in; null where a category takes none.
    [[nodiscard]] virtual INxMediaImporter *importer();
    /// Tells which project new media belong to. Calling it again records what is new.
    virtual void setProject(INxProject *project);
    /// True when timelines use this category's items by their files.
    [[nodiscard]] virtual bool isTimelineMedia() const;
    /// True when timelines use this category's items as resources.
    [[nodiscard]] virtual bool isTimelineResource() const;
};
