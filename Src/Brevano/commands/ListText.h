// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaTypes.h>

#include <QStringList>

class ListedRows;

/// A listing as a table for a terminal.
class ListText
{
public:
    enum class Columns {
        Files, ///< What the project knows about the files.
        ListView, ///< Those of a list view of the category.
    };

    ListText(NXVBLMODEL::NxMediaCategoryType category, Columns columns);

    /// Headings, then a line for each row; empty when there is no row.
    [[nodiscard]] QStringList table(const ListedRows &rows) const;
    /// "2 media in 1 folder, 3 bytes", and how many of them cannot be read.
    [[nodiscard]] static QString sums(const ListedRows &rows);

private:
    const NXVBLMODEL::NxMediaCategoryType m_category;
    const Columns m_columns;
};
