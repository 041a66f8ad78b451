// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/RemoveCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/DialogAnswers.h>
#include <Brevano/commands/LogReason.h>
#include <Brevano/commands/ProjectSession.h>
#include <Brevano/commands/ShownText.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/NxFolderPath.h>

#include <algorithm>

QString RemoveCommand::fault(const CommandLine &line) const
{
    const QString contradiction = DialogAnswers::fault(line);
    if (!contradiction.isEmpty())
        return QStringLiteral("remove: ") + contradiction;
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

RemoveCommand::Outcome RemoveCommand::changeFolder(ProjectSession *session, const CommandLine &line,
                                                   INxFolderMedia *, INxFolderMedia *folder)
{
    const QString path = NxFolderPath::of(folder);
    const int id = folder->folderId();
    const int held = folder->items(true, true).size();
    const LogReason reason;
    DialogAnswers answers(line, console());
    {
        const NxDialogScript script(&answers);
        session->folderPresenter()->removeFolder(folder);
    }
    if (answers.isDeclined())
        return NxError{QStringLiteral("%1: nothing was removed").arg(path)};
    if (session->folders()->folder(id))
        return NxError{QStringLiteral("%1: %2").arg(path, reason.text())};
    return QStringLiteral("Removed %1 with %2").arg(path, ShownText::count(held, "media", "media"));
}

RemoveCommand::Outcome RemoveCommand::changeMedia(ProjectSession *session, const CommandLine &line,
                                                  INxFolderMedia *,
                                                  const QVector<INxAbstractMedia *> &media)
{
    return removeMedia(session, line, console(), media.toList());
}

RemoveCommand::Outcome RemoveCommand::removeMedia(ProjectSession *session, const CommandLine &line,
                                                  Console *console,
                                                  const QList<INxAbstractMedia *> &media)
{
    const LogReason reason;
    DialogAnswers answers(line, console);
    {
        const NxDialogScript script(&answers);
        session->itemPresenter()->removeMediaItems(session->folders()->rootFolder(), media);
    }
    if (answers.isDeclined())
        return NxError{QStringLiteral("nothing was removed")};
    const bool isAnyLeft =
        std::any_of(media.begin(), media.end(),
                    [](const INxAbstractMedia *item) { return item->parentFolder() != nullptr; });
    if (isAnyLeft)
        return NxError{reason.text()};
    return QStringLiteral("Removed %1").arg(ShownText::count(media.size(), "media", "media"));
}
