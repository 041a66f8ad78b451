// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/MoveCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/FolderSteps.h>
#include <Brevano/commands/LogReason.h>
#include <Brevano/commands/ProjectSession.h>
#include <Brevano/commands/ShownText.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/NxFolderPath.h>

namespace {

NxResult<INxFolderMedia *> targetOf(const CommandLine &line, INxFolderMedia *section)
{
    return FolderSteps::existing(section, line.value(CommandOptions::into).value_or(QString()));
}

QString shownPlace(const INxFolderMedia *folder)
{
    const QString path = NxFolderPath::of(folder);
    return path.isEmpty() ? QStringLiteral("the section") : path;
}

QString moveFault(const INxFolderMedia *folder, const INxFolderMedia *target)
{
    const QString path = NxFolderPath::of(folder);
    if (folder == target || folder->contains(target, true))
        return QStringLiteral("%1: a folder cannot be moved into itself").arg(path);
    if (FolderSteps::childNamed(target, folder->name()))
        return QStringLiteral("%1: there is a folder of this name in %2 already")
            .arg(path, shownPlace(target));
    return {};
}

} // namespace

QString MoveCommand::fault(const CommandLine &line) const
{
    const bool isFolder = line.has(CommandOptions::folder);
    if (!line.has(CommandOptions::into))
        return QStringLiteral("move: --into FOLDER is missing");
    if (isFolder && line.names().size() > 1)
        return QStringLiteral("move --folder: media and a folder are moved one after the other");
    if (!isFolder && line.names().size() < 2)
        return QStringLiteral("move: say which media, or which folder by --folder");
    return {};
}

ProgramArguments MoveCommand::mediaNames(const CommandLine &line) const
{
    return line.names().mid(1);
}

MoveCommand::Outcome MoveCommand::changeFolder(ProjectSession *session, const CommandLine &line,
                                               INxFolderMedia *section, INxFolderMedia *folder)
{
    const NxResult<INxFolderMedia *> target = targetOf(line, section);
    if (!target)
        return target.error();
    if (folder->parentFolder() == *target)
        return QStringLiteral("%1 is there already").arg(NxFolderPath::of(folder));
    const QString fault = moveFault(folder, *target);
    if (!fault.isEmpty())
        return NxError{fault};
    const QString before = NxFolderPath::of(folder);
    const LogReason reason;
    if (!session->folders()->moveFolder(folder, *target, (*target)->childFolderCount()))
        return NxError{QStringLiteral("%1: %2").arg(before, reason.text())};
    return QStringLiteral("Moved %1 to %2").arg(before, NxFolderPath::of(folder));
}

MoveCommand::Outcome MoveCommand::changeMedia(ProjectSession *session, const CommandLine &line,
                                              INxFolderMedia *section,
                                              const QVector<INxAbstractMedia *> &media)
{
    const NxResult<INxFolderMedia *> target = targetOf(line, section);
    if (!target)
        return target.error();
    QList<INxAbstractMedia *> moved;
    for (INxAbstractMedia *item : media) {
        if (item->parentFolder() != *target)
            moved.append(item);
    }
    const QString place = shownPlace(*target);
    if (moved.isEmpty())
        return QStringLiteral("All are in %1 already").arg(place);
    const LogReason reason;
    if (!session->items()->moveMediaItems(nullptr, *target, moved))
        return NxError{QStringLiteral("%1: %2").arg(place, reason.text())};
    return QStringLiteral("Moved %1 to %2")
        .arg(ShownText::count(moved.size(), "media", "media"), place);
}
