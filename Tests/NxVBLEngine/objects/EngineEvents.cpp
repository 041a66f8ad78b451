// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineEvents.h"

#include <NxVBLEngine/objects/NxEngineCategory.h>

#include <utility>

EngineEvents::EngineEvents(NxEngineCategory *category) : m_category(category)
{
    m_category->itemObservers.add(this);
    m_category->folderObservers.add(this);
}

EngineEvents::~EngineEvents()
{
    m_category->itemObservers.remove(this);
    m_category->folderObservers.remove(this);
}

QStringList EngineEvents::take()
{
    return std::exchange(m_lines, {});
}

void EngineEvents::note(const QString &line)
{
    if (!quiet)
        m_lines.append(line);
}

void EngineEvents::expectListed(INxFolderMedia *folder, INxAbstractMedia *item, bool listed,
                                const char *when)
{
    if (folder->containsMedia(item, false) != listed)
        complaints.append(QLatin1String(when) + QLatin1Char(' ') + item->name());
}

void EngineEvents::onBeforeAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item)
{
    expectListed(folder, item, false, "before add");
    note(QStringLiteral("before add %1 < %2").arg(item->name(), folder->name()));
}

void EngineEvents::onAfterAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item)
{
    expectListed(folder, item, true, "after add");
    note(QStringLiteral("after add %1 < %2").arg(item->name(), folder->name()));
}

void EngineEvents::onBeforeRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item)
{
    expectListed(folder, item, true, "before remove");
    note(QStringLiteral("before remove %1 < %2").arg(item->name(), folder->name()));
}

void EngineEvents::onAfterRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item)
{
    expectListed(folder, item, false, "after remove");
    note(QStringLiteral("after remove %1 < %2").arg(item->name(), folder->name()));
}

void EngineEvents::onBeforeMoveItemEvent(INxFolderMedia *from, INxFolderMedia *to,
                                         INxAbstractMedia *item)
{
    expectListed(from, item, true, "before move");
    note(QStringLiteral("before move %1: %2 > %3").arg(item->name(), from->name(), to->name()));
}

void EngineEvents::onAfterMoveItemEvent(INxFolderMedia *from, INxFolderMedia *to,
                                        INxAbstractMedia *item)
{
    expectListed(to, item, true, "after move");
    note(QStringLiteral("after move %1: %2 > %3").arg(item->name(), from->name(), to->name()));
}

void EngineEvents::onRenameFolderEvent(INxFolderMedia *folder)
{
    note(QStringLiteral("folder renamed %1").arg(folder->name()));
}

void EngineEvents::onRenameItemEvent(INxFolderMedia *folder, INxAbstractMedia *item)
{
    note(QStringLiteral("renamed %1 < %2").arg(item->name(), folder->name()));
}

void EngineEvents::onMediaStateChangedEvent(INxAbstractMedia *item)
{
    note(QStringLiteral("state %1").arg(item->name()));
}

void EngineEvents::onAllMediaChangedFinishEvent(INxFolderMedia *folder)
{
    note(QStringLiteral("all changed %1").arg(folder->name()));
}

void EngineEvents::onBeforeAddFolderEvent(INxFolderMedia *parent, const int &first, const int &last)
{
    note(QStringLiteral("before folder add %1 %2-%3").arg(parent->name()).arg(first).arg(last));
}

void EngineEvents::onAfterAddFolderEvent()
{
    note(QStringLiteral("after folder add"));
}

void EngineEvents::onBeforeRemoveFolderEvent(INxFolderMedia *parent, const int &first,
                                             const int &last)
{
    note(QStringLiteral("before folder remove %1 %2-%3").arg(parent->name()).arg(first).arg(last));
}

void EngineEvents::onAfterRemoveFolderEvent()
{
    note(QStringLiteral("after folder remove"));
}

void EngineEvents::onBeforeMoveFolderEvent()
{
    note(QStringLiteral("before folder move"));
}

void EngineEvents::onAfterMoveFolderEvent()
{
    note(QStringLiteral("after folder move"));
}

void EngineEvents::onFolderStateChangedEvent(INxFolderMedia *folder)
{
    note(QStringLiteral("folder state %1").arg(folder->name()));
}
