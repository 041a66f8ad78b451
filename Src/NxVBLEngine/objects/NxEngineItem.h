// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLModel/INxAbstractMediaItem.h>

class NxEngineFolder;

/// What a folder of the engine lists: an item with a home and a place in it.
class NXVBLENGINE_TEST_EXPORT NxEngineItem : public INxAbstractMediaItem
{
public:
    /// Null while the item is removed.
    [[nodiscard]] NxEngineFolder *folder() const { return m_folder; }
    void setFolder(NxEngineFolder *folder) { m_folder = folder; }
    /// Items of a folder are listed by ascending place.
    [[nodiscard]] qint64 place() const { return m_place; }
    void setPlace(qint64 place) { m_place = place; }

    [[nodiscard]] INxFolderMedia *parentFolder() const override;

protected:
    NxEngineItem() = default;

private:
    NxEngineFolder *m_folder = nullptr; // Not owned.
    qint64 m_place = 0;
};
