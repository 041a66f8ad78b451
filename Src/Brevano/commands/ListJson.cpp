// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ListJson.h>

#include <Brevano/commands/JsonLine.h>
#include <Brevano/commands/ListedRows.h>
#include <Brevano/commands/MediaFacts.h>
#include <Brevano/commands/RowText.h>
#include <NxVBLModel/INxAbstractMediaItem.h>

namespace {

JsonLine columnsOf(const QStringList &headings, const QStringList &texts)
{
    JsonLine columns;
    for (int column = 0; column < headings.size(); ++column)
        columns.addTextOrNull(headings.at(column).toUtf8().constData(), texts.value(column));
    return columns;
}

} // namespace

ListJson::ListJson(NXVBLMODEL::NxMediaCategoryType category, Columns columns)
    : m_category(category),
      m_columns(columns)
{
}

QByteArray ListJson::lineOf(const ListedRows &rows, int number) const
{
    const INxAbstractMedia &row = *rows.rows().at(number);
    JsonLine line;
    RowText::addTo(&line, number, row);
    const auto *media = dynamic_cast<const INxAbstractMediaItem *>(&row);
    if (!media)
        return line.text();
    MediaFacts::addIdentity(&line, *media);
    MediaFacts::addState(&line, *media);
    MediaFacts::addContents(&line, *media);
    if (m_columns == Columns::With)
        line.addObject("columns",
                       columnsOf(rows.headings(), MediaFacts::columnTexts(*media, m_category)));
    return line.text();
}
