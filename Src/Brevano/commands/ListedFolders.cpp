// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ListedFolders.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/FolderSteps.h>
#include <Brevano/commands/Sections.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/NxFolderPath.h>

namespace {

using Folders = QList<INxFolderMedia *>;

NxResult<Folders> ofProject(const CommandLine &line, const Folders &sections)
{
    const std::optional<QString> path = line.value(CommandOptions::folder);
    if (!path && !line.has(CommandOptions::section))
        return sections;
    const NxResult<INxFolderMedia *> section = Sections::chosen(line, sections);
    const NxResult<INxFolderMedia *> folder =
        section ? FolderSteps::existing(*section, path.value_or(QString())) : section;
    if (!folder)
        return folder.error();
    return Folders{*folder};
}

NxResult<INxFolderMedia *> sectionNamed(const QString &name, const INxFolderMedia *root)
{
    if (INxFolderMedia *section = FolderSteps::childNamed(root, name))
        return section;
    QStringList names;
    const Folders sections = root->childFolders();
    for (const INxFolderMedia *section : sections)
        names.append(section->name());
    return NxError{QStringLiteral("%1: the category has no such section, only %2")
                       .arg(name, names.join(QLatin1String(", ")))};
}

NxResult<Folders> ofResources(const CommandLine &line, INxFolderMediaManager *folders)
{
    const QString path = line.value(CommandOptions::folder).value_or(QString());
    QStringList names = NxFolderPath::split(path);
    if (names.isEmpty())
        return Folders{folders->folder(NXVBLMODEL::fidRoot)};
    const NxResult<INxFolderMedia *> section =
        sectionNamed(names.takeFirst(), folders->rootFolder());
    if (!section)
        return section.error();
    INxFolderMedia *folder = NxFolderPath::find(*section, NxFolderPath::join(names));
    if (!folder)
        return NxError{QStringLiteral("%1: the category has no such folder").arg(path)};
    return Folders{folder};
}

} // namespace

QString ListedFolders::fault(const CommandLine &line, NXVBLMODEL::NxMediaCategoryType category)
{
    if (category == NXVBLMODEL::mctMedia)
        return Sections::fault(line);
    if (!line.has(CommandOptions::section))
        return {};
    return QStringLiteral("--section is for the project's own media; in category %1 the first name "
                          "of --folder is the section")
        .arg(category);
}

NxResult<QList<INxFolderMedia *>> ListedFolders::chosen(const CommandLine &line,
                                                        NXVBLMODEL::NxMediaCategoryType category,
                                                        INxFolderMediaManager *folders)
{
    return category == NXVBLMODEL::mctMedia ? ofProject(line, folders->rootFolder()->childFolders())
                                            : ofResources(line, folders);
}
