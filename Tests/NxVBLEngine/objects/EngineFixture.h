// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineFolderManager.h>
#include <NxVBLEngine/objects/NxEngineItemManager.h>
#include <NxVBLEngine/objects/NxEngineMedia.h>
#include <NxVBLEngine/objects/NxEngineTimelineEditor.h>
#include <NxVBLEngine/objects/NxEngineUndoStack.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxTimelineMemory.h>
#include <NxVBLModel/NxMediaRef.h>

#include <QStringList>

/// A project in memory with the project media section at hand.
struct EngineFixture
{
    EngineFixture();

    NxProjectMemory memory;
    NxEngineCategory *const category;
    NxEngineFolder *const section;
    NxEngineFolderManager *const folders;
    NxEngineItemManager *const items;
    NxEngineUndoStack *const undo;
    NxEngineTimelineEditor *const editor;

    /// A new media "/footage/NAME".
    NxEngineMedia *addMedia(NxEngineFolder *folder, const QString &name);
    QVector<NxEngineMedia *> addMedia(NxEngineFolder *folder, const QStringList &names);
    NxEngineFolder *addFolder(NxEngineFolder *parent, const QString &name);
    [[nodiscard]] NxEngineMedia *named(const QString &name) const;
};

/// Names of what a folder lists, separated by blanks.
[[nodiscard]] QString listing(const INxFolderMedia *folder, bool recursive = true);

/// Every folder and item of every category and every timeline and clip, with the answer of every
/// query, as text. Only
/// whether a file is there is left out: the disk says that, not the project.
[[nodiscard]] QByteArray projectDump(const NxProjectMemory &memory);
