// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ListText.h>

#include <Brevano/commands/ListedRows.h>
#include <Brevano/commands/MediaFacts.h>
#include <Brevano/commands/RowText.h>
#include <Brevano/commands/ShownText.h>
#include <Brevano/commands/TextTable.h>
#include <NxVBLModel/INxAbstractMediaItem.h>

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
    return media.sourceSize() < 0 ? QString() : ShownText::size(media.sourceSize());
}

QString timeText(const INxAbstractMediaItem &media)
{
    const QDateTime time = media.dateCreated();
    return time.isValid() ? time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm"))
                          : QString();
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

QStringList fileTexts(const INxAbstractMediaItem &media)
{
    return {folderText(media), media.name(), MediaFacts::typeWord(media), sizeText(media),
            timeText(media)};
}

void addFileColumns(TextTable *table)
{
    table->addColumn(QStringLiteral("Folder"));
    table->addColumn(QStringLiteral("Name"));
    table->addColumn(QStringLiteral("Type"));
    table->addColumn(QStringLiteral("Size"), TextTable::Align::Right);
    table->addColumn(QStringLiteral("Created"));
}

QStringList withoutGaps(QStringList texts)
{
    for (QString &text : texts) {
        if (text.isEmpty())
            text = QStringLiteral("-");
    }
    return texts;
}

} // namespace

ListText::ListText(NXVBLMODEL::NxMediaCategoryType category, Columns columns)
    : m_category(category),
      m_columns(columns)
{
}

QStringList ListText::table(const ListedRows &rows) const
{
    if (rows.rows().isEmpty())
        return {};
    TextTable table;
    const bool isOfFiles = m_columns == Columns::Files;
    if (isOfFiles)
        addFileColumns(&table);
    for (int column = 0; !isOfFiles && column < rows.headings().size(); ++column)
        table.addColumn(rows.headings().at(column));
    table.addColumn(QString());
    for (const INxAbstractMedia *row : rows.rows()) {
        const auto *media = dynamic_cast<const INxAbstractMediaItem *>(row);
        if (!media) {
            table.addLine(RowText::lineOf(*row));
            continue;
        }
        const QStringList texts =
            isOfFiles ? fileTexts(*media) : MediaFacts::columnTexts(*media, m_category);
        table.addRow(withoutGaps(texts) + QStringList{stateText(*media)});
    }
    return table.lines();
}

QString ListText::sums(const ListedRows &rows)
{
    const QVector<const INxAbstractMediaItem *> media = rows.media();
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
