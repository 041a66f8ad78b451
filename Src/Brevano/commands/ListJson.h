// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaTypes.h>

#include <QByteArray>

class ListedRows;

/// The rows of a listing as JSON objects.
class ListJson
{
public:
    enum class Columns { Without, With };

    ListJson(NXVBLMODEL::NxMediaCategoryType category, Columns columns);

    /// The object of the row with this number.
    [[nodiscard]] QByteArray lineOf(const ListedRows &rows, int number) const;

private:
    const NXVBLMODEL::NxMediaCategoryType m_category;
    const Columns m_columns;
};
