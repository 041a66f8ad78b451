// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/FolderSteps.h>

#include <Brevano/commands/LogReason.h>
#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/NxFolderPath.h>

#include <algorithm>

NxResult<QString> FolderSteps::checkedName(const QString &name)
{
    constexpr int longest = 255;
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return NxError{QStringLiteral("a folder needs a name")};
    if (trimmed.size() > longest)
        return NxError{QStringLiteral("%1: the name has %2 characters, at most %3 are possible")
                           .arg(trimmed)
                           .arg(trimmed.size())
                           .arg(longest)};
    return trimmed;
}

INxFolderMedia *FolderSteps::childNamed(const INxFolderMedia *parent, const QString &name)
{
    const QList<INxFolderMedia *> children = parent->childFolders();
    const auto found =
        std::find_if(children.cbegin(), children.cend(),
                     [&name](const INxFolderMedia *child) { return child->name() == name; });
    return found == children.cend() ? nullptr : *found;
}

NxResult<INxFolderMedia *> FolderSteps::existing(INxFolderMedia *section, const QString &path)
{
    INxFolderMedia *folder = NxFolderPath::find(section, path);
    if (!folder)
        return NxError{QStringLiteral("%1: the project has no such folder").arg(path)};
    return folder;
}

NxResult<INxFolderMedia *> FolderSteps::changeable(INxFolderMedia *section, const QString &path)
{
    const NxResult<INxFolderMedia *> folder = existing(section, path);
    if (folder && *folder == section)
        return NxError{QStringLiteral("the section itself cannot be changed; name a folder in it")};
    return folder;
}

NxResult<INxFolderMedia *> FolderSteps::made(INxFolderMediaManager *manager, INxUndoStack *stack,
                                             INxFolderMedia *section, const QString &path)
{
    const QStringList names = NxFolderPath::split(path);
    for (const QString &name : names) {
        const NxResult<QString> checked = checkedName(name);
        if (!checked)
            return checked.error();
    }
    const NxUndoRedoCommander step(stack, QStringLiteral("FolderSteps::made"),
                                   QStringLiteral("addFolder"));
    INxFolderMedia *folder = section;
    for (const QString &name : names) {
        INxFolderMedia *child = childNamed(folder, name);
        const LogReason reason;
        if (!child && manager->addFolder(folder, name))
            child = childNamed(folder, name);
        if (!child)
            return NxError{QStringLiteral("%1: %2").arg(path, reason.text())};
        folder = child;
    }
    return folder;
}
