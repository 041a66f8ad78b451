// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineItem.h>

#include <NxVBLEngine/objects/NxEngineFolder.h>

INxFolderMedia *NxEngineItem::parentFolder() const
{
    return m_folder;
}
