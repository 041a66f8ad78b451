// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStringList>
#include <QVector>

/// Rows of texts in aligned columns, for a terminal. The last column is not padded.
class TextTable
{
public:
    enum class Align { Left, Right };

    void addColumn(const QString &title, Align align = Align::Left);
    /// One text for each column; each is shown on one line.
    void addRow(const QStringList &cells);
    /// The titles and the rows.
    [[nodiscard]] QStringList lines() const;

private:
    struct Column
    {
        QString title;
        Align align;
        int width;
    };
    [[nodiscard]] QString line(const QStringList &cells) const;

    QVector<Column> m_columns;
    QVector<QStringList> m_rows;
};
