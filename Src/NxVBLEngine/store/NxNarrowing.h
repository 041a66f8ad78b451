// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/records/NxMediaRecord.h>
#include <NxVBLEngine/store/NxSqliteStatement.h>

/// Reads numbers of a row that must fit a smaller type; remembers whether one did not.
class NxNarrowing
{
public:
    /// The statement must live as long as this.
    explicit NxNarrowing(const NxSqliteStatement &statement) : m_statement(statement) {}

    int integer(int column)
    {
        const qint64 wide = m_statement.integer(column);
        m_fits = m_fits && wide == qint64(int(wide));
        return int(wide);
    }
    bool flag(int column)
    {
        const qint64 wide = m_statement.integer(column);
        m_fits = m_fits && (wide == 0 || wide == 1);
        return wide == 1;
    }
    /// One of an enum's values from 0 to `last`.
    template<typename Enum>
    Enum oneOf(int column, Enum last)
    {
        const qint64 wide = m_statement.integer(column);
        m_fits = m_fits && wide >= 0 && wide <= qint64(last);
        return Enum(wide);
    }
    /// Bytes, frames and other numbers that count something.
    qint64 atLeast(qint64 least, int column)
    {
        const qint64 wide = m_statement.integer(column);
        m_fits = m_fits && wide >= least;
        return wide;
    }
    qint64 time(int column) const
    {
        return m_statement.isNull(column) ? NxNoTime : m_statement.integer(column);
    }
    [[nodiscard]] bool fits() const { return m_fits; }

private:
    const NxSqliteStatement &m_statement;
    bool m_fits = true;
};
