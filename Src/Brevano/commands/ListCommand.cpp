// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ListCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/FolderSteps.h>
#include <Brevano/commands/JsonLine.h>
#include <Brevano/commands/MediaFacts.h>
#include <Brevano/commands/ProjectSession.h>
#include <Brevano/commands/Sections.h>
#include <Brevano/commands/ShownText.h>
#include <Brevano/commands/TextTable.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>

#include <QSet>

#include <algorithm>

namespace {

QString stateText(const INxAbstractMediaItem &media)
{
    if (MediaFacts::isMissing(media))
        return QStringLiteral("missing");
    const QString reason = MediaFacts::unreadableReason(media);
    return reason.isEmpty() ? QString() : QStringLiteral("unreadable: %1").arg(reason);
}

QString sizeText(const INxAbstractMediaItem &media)
{
    return media.sourceSize() < 0 ? QStringLiteral("-") : ShownText::size(media.sourceSize());
}

QString timeText(const INxAbstractMediaItem &media)
{
    const QDateTime time = media.dateCreated();
    return time.isValid() ? time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm"))
                          : QStringLiteral("-");
}

/// Folders of another section than the project's own say so.
QString folderText(const INxAbstractMediaItem &media)
{
    const QString folder = MediaFacts::folder(media);
    const QString section = MediaFacts::section(media);
    const QString shown = folder.isEmpty() ? QStringLiteral(".") : folder;
    return section == QLatin1String("project") ? shown
                                               : QStringLiteral("[%1] %2").arg(section, shown);
}

} // namespace

int ListCommand::run(const CommandLine &line, Console *console)
{
    const QString fault = Sections::fault(line);
    if (!fault.isEmpty())
        return wrongUsage(console, fault);
    ProjectSession session(console);
    if (!session.open(line.names().constFirst(), ProjectSession::Access::Look))
        return ProjectUnusable;
    const NxResult<QList<INxFolderMedia *>> folders = listedFolders(session, line);
    if (!folders) {
        console->note(folders.error().message);
        return session.close(NothingDone);
    }
    session.engine().refreshExistence();
    const Media media = mediaOf(*folders);
    if (line.has(CommandOptions::json))
        printJson(media, console);
    else
        printTable(media, console);
    return session.close(session.isDamaged() ? SomeRefused : Done);
}

NxResult<QList<INxFolderMedia *>> ListCommand::listedFolders(const ProjectSession &session,
                                                             const CommandLine &line)
{
    const std::optional<QString> path = line.value(CommandOptions::folder);
    if (!path && !line.has(CommandOptions::section))
        return session.sections();
    const NxResult<INxFolderMedia *> section = Sections::chosen(line, session.sections());
    const NxResult<INxFolderMedia *> folder =
        section ? FolderSteps::existing(*section, path.value_or(QString())) : section;
    if (!folder)
        return folder.error();
    return QList<INxFolderMedia *>{*folder};
}

ListCommand::Media ListCommand::mediaOf(const QList<INxFolderMedia *> &folders)
{
    Media media;
    for (const INxFolderMedia *folder : folders) {
        const QList<INxAbstractMedia *> items = folder->items(true, true);
        for (const INxAbstractMedia *item : items) {
            if (const auto *file = dynamic_cast<const INxAbstractMediaItem *>(item))
                media.append(file);
        }
    }
    return media;
}

void ListCommand::printJson(const Media &media, Console *console)
{
    for (int row = 0; row < media.size() && console->isRead(); ++row) {
        const INxAbstractMediaItem &item = *media.at(row);
        JsonLine line;
        line.addNumber("row", row);
        line.addText("kind", QStringLiteral("media"));
        line.addText("title", item.name());
        MediaFacts::addIdentity(&line, item);
        MediaFacts::addState(&line, item);
        MediaFacts::addContents(&line, item);
        console->line(line.text());
    }
}

void ListCommand::printTable(const Media &media, Console *console)
{
    TextTable table;
    table.addColumn(QStringLiteral("Folder"));
    table.addColumn(QStringLiteral("Name"));
    table.addColumn(QStringLiteral("Type"));
    table.addColumn(QStringLiteral("Size"), TextTable::Align::Right);
    table.addColumn(QStringLiteral("Created"));
    table.addColumn(QString());
    for (const INxAbstractMediaItem *item : media) {
        table.addRow({folderText(*item), item->name(), MediaFacts::typeWord(*item), sizeText(*item),
                      timeText(*item), stateText(*item)});
    }
    if (!media.isEmpty()) {
        const QStringList lines = table.lines();
        for (const QString &line : lines)
            console->line(line);
    }
    console->line(sums(media));
}

QString ListCommand::sums(const Media &media)
{
    qint64 bytes = 0;
    qint64 missing = 0;
    qint64 unreadable = 0;
    QSet<const INxFolderMedia *> folders;
    for (const INxAbstractMediaItem *item : media) {
        bytes += std::max<qint64>(item->sourceSize(), 0);
        missing += MediaFacts::isMissing(*item) ? 1 : 0;
        unreadable += MediaFacts::unreadableReason(*item).isEmpty() ? 0 : 1;
        folders.insert(item->parentFolder());
    }
    QString text =
        QStringLiteral("%1 in %2, %3")
            .arg(ShownText::count(media.size(), "media", "media"),
                 ShownText::count(folders.size(), "folder", "folders"), ShownText::size(bytes));
    if (missing > 0)
        text += QStringLiteral(", %1 missing").arg(missing);
    if (unreadable > 0)
        text += QStringLiteral(", %1 unreadable").arg(unreadable);
    return text;
}
