// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/TextTable.h>

#include <Brevano/commands/ShownText.h>

#include <algorithm>

void TextTable::addColumn(const QString &title, Align align)
{
    m_columns.append({title, align, ShownText::columns(title)});
}

void TextTable::addRow(const QStringList &cells)
{
    Q_ASSERT(cells.size() == m_columns.size());
    QStringList shown;
    for (int i = 0; i < cells.size(); ++i) {
        shown.append(ShownText::oneLine(cells.at(i)));
        m_columns[i].width = std::max(m_columns.at(i).width, ShownText::columns(shown.constLast()));
    }
    m_rows.append({shown, false});
}

void TextTable::addLine(const QString &text)
{
    m_rows.append({{ShownText::oneLine(text)}, true});
}

QStringList TextTable::lines() const
{
    QStringList titles;
    for (const Column &column : m_columns)
        titles.append(column.title);
    QStringList result{line(titles)};
    for (const Row &row : m_rows)
        result.append(row.isAcross ? row.cells.constFirst() : line(row.cells));
    return result;
}

QString TextTable::line(const QStringList &cells) const
{
    constexpr int gap = 2;
    QString text;
    for (int i = 0; i < cells.size(); ++i) {
        const Column &column = m_columns.at(i);
        const QString padding(column.width - ShownText::columns(cells.at(i)), QLatin1Char(' '));
        const bool isRight = column.align == Align::Right;
        text += isRight ? padding + cells.at(i) : cells.at(i) + padding;
        text += QString(gap, QLatin1Char(' '));
    }
    while (text.endsWith(QLatin1Char(' ')))
        text.chop(1);
    return text;
}
