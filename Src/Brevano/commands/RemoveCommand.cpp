// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/RemoveCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/LogReason.h>
#include <Brevano/commands/ProjectSession.h>
#include <Brevano/commands/ShownText.h>
#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/NxFolderPath.h>

QString RemoveCommand::fault(const CommandLine &line) const
{
    const bool isFolder = line.has(CommandOptions::folder);
    if (isFolder && line.names().size() > 1)
        return QStringLiteral(
            "remove --folder: media and a folder are removed one after the other");
    if (!isFolder && line.names().size() < 2)
        return QStringLiteral("remove: say which media, or which folder by --folder");
    return {};
}

ProgramArguments RemoveCommand::mediaNames(const CommandLine &line) const
{
    return line.names().mid(1);
}

RemoveCommand::Outcome RemoveCommand::changeFolder(ProjectSession *session, const CommandLine &,
                                                   INxFolderMedia *, INxFolderMedia *folder)
{
    const QString path = NxFolderPath::of(folder);
    const int held = folder->items(true, true).size();
    const LogReason reason;
    if (!session->folders()->removeFolder(folder))
        return NxError{QStringLiteral("%1: %2").arg(path, reason.text())};
    return QStringLiteral("Removed %1 with %2").arg(path, ShownText::count(held, "media", "media"));
}

RemoveCommand::Outcome RemoveCommand::changeMedia(ProjectSession *session, const CommandLine &,
                                                  INxFolderMedia *,
                                                  const QVector<INxAbstractMedia *> &media)
{
    QVector<INxFolderMedia *> folders;
    QHash<INxFolderMedia *, QList<INxAbstractMedia *>> byFolder;
    for (INxAbstractMedia *item : media) {
        INxFolderMedia *folder = item->parentFolder();
        if (!byFolder.contains(folder))
            folders.append(folder);
        byFolder[folder].append(item);
    }
    const NxUndoRedoCommander step(session->undoStack(), QStringLiteral("RemoveCommand"),
                                   QStringLiteral("deleteMediaItems"));
    for (INxFolderMedia *folder : qAsConst(folders)) {
        const LogReason reason;
        if (!session->items()->removeMediaItems(folder, byFolder.value(folder)))
            return NxError{QStringLiteral("%1: %2").arg(NxFolderPath::of(folder), reason.text())};
    }
    return QStringLiteral("Removed %1").arg(ShownText::count(media.size(), "media", "media"));
}
