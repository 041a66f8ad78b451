// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/RenameCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/FolderSteps.h>
#include <Brevano/commands/LogReason.h>
#include <Brevano/commands/ProjectSession.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaItemManager.h>

QString RenameCommand::fault(const CommandLine &line) const
{
    const bool isFolder = line.has(CommandOptions::folder);
    if (!line.names().constLast().isText)
        return QStringLiteral("rename: the new name is not UTF-8: %1")
            .arg(line.names().constLast().text);
    if (line.names().size() != (isFolder ? 2 : 3))
        return isFolder ? QStringLiteral("rename --folder: say the project and the new name")
                        : QStringLiteral("rename: say the project, the media and its new name");
    return {};
}

ProgramArguments RenameCommand::mediaNames(const CommandLine &line) const
{
    return line.names().mid(1, 1);
}

RenameCommand::Outcome RenameCommand::changeFolder(ProjectSession *session, const CommandLine &line,
                                                   INxFolderMedia *, INxFolderMedia *folder)
{
    const NxResult<QString> name = FolderSteps::checkedName(line.names().constLast().text);
    if (!name)
        return name.error();
    const QString before = folder->name();
    if (*name == before)
        return QStringLiteral("%1 has this name already").arg(before);
    const INxFolderMedia *namesake = FolderSteps::childNamed(folder->parentFolder(), *name);
    if (namesake && namesake != folder)
        return NxError{QStringLiteral("%1: another folder beside it has this name").arg(*name)};
    const LogReason reason;
    if (!session->folders()->renameFolder(folder, *name))
        return NxError{QStringLiteral("%1: %2").arg(before, reason.text())};
    return QStringLiteral("Renamed %1 to %2").arg(before, folder->name());
}

RenameCommand::Outcome RenameCommand::changeMedia(ProjectSession *session, const CommandLine &line,
                                                  INxFolderMedia *,
                                                  const QVector<INxAbstractMedia *> &media)
{
    INxAbstractMedia *renamed = media.constFirst();
    const QString before = renamed->name();
    const QString name = line.names().constLast().text.trimmed();
    if (name.isEmpty())
        return NxError{QStringLiteral("%1: a media needs a name").arg(before)};
    if (name == before)
        return QStringLiteral("%1 has this name already").arg(before);
    const LogReason reason;
    if (!session->items()->renameMediaItem(renamed, name))
        return NxError{QStringLiteral("%1: %2").arg(before, reason.text())};
    return QStringLiteral("Renamed %1 to %2").arg(before, renamed->name());
}
