// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxMediaItemMimeData.h>

NxMediaItemMimeData::NxMediaItemMimeData() = default;
NxMediaItemMimeData::~NxMediaItemMimeData() = default;

void NxMediaItemMimeData::append(INxAbstractMedia *media)
{
    if (media)
        m_items.append(NxMediaRef(media));
}

QList<INxAbstractMedia *> NxMediaItemMimeData::items() const
{
    QList<INxAbstractMedia *> alive;
    for (const NxMediaRef &item : m_items) {
        if (!item.isNull())
            alive.append(item.get());
    }
    return alive;
}
