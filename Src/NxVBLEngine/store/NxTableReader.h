// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/store/NxSqliteDatabase.h>

#include <QByteArray>
#include <QStringList>

#include <algorithm>
#include <limits>
#include <vector>

/// Reads tables row by row, and what is left of damaged ones.
///
/// Where a table breaks off it is read from its other end as well, so that what lies on both sides
/// of a damaged place is kept.
class NxTableReader
{
public:
    struct Table
    {
        const char *title; ///< What is said when it breaks off, to be translated.
        const char *select; ///< Columns and table; the first column is the key.
        const char *key; ///< The key's name.
    };

    /// The database must live as long as the reader.
    explicit NxTableReader(NxSqliteDatabase *database) : m_database(database) {}

    /// Appends all rows that can be read, each by `read(statement, &row)`, which answers whether
    /// the row is possible. They are ascending by `keyOf(row)` unless the table is damaged; then
    /// they are put in that order.
    template<typename Row, typename Read, typename KeyOf>
    void read(const Table &table, std::vector<Row> *rows, const Read &read, const KeyOf &keyOf);

    /// Sentences about tables that break off.
    [[nodiscard]] QStringList damage() const { return m_damage; }
    /// Rows that were left out because they are impossible.
    [[nodiscard]] qint64 impossible() const { return m_impossible; }

private:
    /// From the key after that one, ascending or descending; false when the table breaks off.
    template<typename Row, typename Read>
    bool readOnwards(const Table &table, const char *order, qint64 after, std::vector<Row> *rows,
                     const Read &read);
    void noteDamage(const Table &table);

    NxSqliteDatabase *const m_database; // Not owned.
    QStringList m_damage;
    qint64 m_impossible = 0;
    qint64 m_lastKey = 0;
};

template<typename Row, typename Read, typename KeyOf>
void NxTableReader::read(const Table &table, std::vector<Row> *rows, const Read &read,
                         const KeyOf &keyOf)
{
    m_lastKey = std::numeric_limits<qint64>::min();
    if (readOnwards(table, "", m_lastKey, rows, read))
        return;
    noteDamage(table);
    if (!readOnwards(table, " DESC", m_lastKey, rows, read))
        noteDamage(table);
    std::stable_sort(rows->begin(), rows->end(),
                     [&keyOf](const Row &a, const Row &b) { return keyOf(a) < keyOf(b); });
    rows->erase(std::unique(rows->begin(), rows->end(),
                            [&keyOf](const Row &a, const Row &b) { return keyOf(a) == keyOf(b); }),
                rows->end());
}

template<typename Row, typename Read>
bool NxTableReader::readOnwards(const Table &table, const char *order, qint64 after,
                                std::vector<Row> *rows, const Read &read)
{
    const QByteArray sql =
        QByteArray(table.select) + " WHERE " + table.key + " > ?1 ORDER BY " + table.key + order;
    NxSqliteStatement statement = m_database->prepare(sql.constData());
    statement.bind(1, after);
    NxSqliteStatement::Step step = NxSqliteStatement::Step::Row;
    while ((step = statement.step()) == NxSqliteStatement::Step::Row) {
        m_lastKey = statement.integer(0);
        rows->emplace_back();
        if (read(statement, &rows->back()))
            continue;
        rows->pop_back();
        ++m_impossible;
    }
    return step == NxSqliteStatement::Step::Done;
}
