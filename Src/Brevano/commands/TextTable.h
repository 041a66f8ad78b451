// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStringList>
#include <QVector>

/// Rows of texts in aligned columns, and lines among them, for a terminal. The last column is not
/// padded.
class TextTable
{
public:
    enum class Align { Left, Right };

    void addColumn(const QString &title, Align align = Align::Left);
    /// One text for each column; each is shown on one line.
    void addRow(const QStringList &cells);
    /// A text that stands across the columns and makes none of them wider.
    void addLine(const QString &text);
    /// The titles, then the rows and lines in the order in which they were added.
    [[nodiscard]] QStringList lines() const;

private:
    struct Column
    {
        QString title;
        Align align;
        int width;
    };
    struct Row
    {
        QStringList cells;
        bool isAcross;
    };
    [[nodiscard]] QString line(const QStringList &cells) const;

    QVector<Column> m_columns;
    QVector<Row> m_rows;
};
