// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/RowText.h>

#include <Brevano/commands/JsonLine.h>
#include <NxVBLModel/INxGroupMedia.h>

QString RowText::kindWord(const INxAbstractMedia &row)
{
    switch (row.mediaType()) {
    case NXVBLMODEL::mtGroup:
        return QStringLiteral("group");
    case NXVBLMODEL::mtImportTile:
        return QStringLiteral("import");
    case NXVBLMODEL::mtViewMoreTile:
        return QStringLiteral("more");
    default:
        return QStringLiteral("media");
    }
}

QString RowText::lineOf(const INxAbstractMedia &row)
{
    const auto *group = dynamic_cast<const INxGroupMedia *>(&row);
    if (!group)
        return QLatin1Char('[') + row.name() + QLatin1Char(']');
    return QStringLiteral("== %1 (%2)").arg(row.name(), QString::number(group->itemCount()));
}

void RowText::addTo(JsonLine *line, int number, const INxAbstractMedia &row)
{
    line->addNumber("row", number);
    line->addText("kind", kindWord(row));
    line->addText("title", row.name());
    if (const auto *group = dynamic_cast<const INxGroupMedia *>(&row))
        line->addNumber("items", group->itemCount());
}
