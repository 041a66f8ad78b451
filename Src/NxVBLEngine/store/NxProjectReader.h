// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/records/NxProjectContents.h>

#include <QStringList>

class NxSqliteDatabase;

/// Reads a whole project file into records.
///
/// Where a table breaks off it is read from its other end as well, so that what lies on both sides
/// of a damaged place is kept. Rows that no program of ours can have written are left out. All of
/// this is told in the contents' damage, a sentence without the file's name.
class NXVBLENGINE_TEST_EXPORT NxProjectReader
{
public:
    explicit NxProjectReader(NxSqliteDatabase *database);

    /// `damage` is what is known to be wrong already.
    [[nodiscard]] NxProjectContents read(const QString &damage = {});

private:
    struct Table
    {
        const char *title; ///< For the user.
        const char *select; ///< Columns and table; the first column is the key.
        const char *key; ///< The key's name.
    };

    void readMeta();
    void readFolders();
    void readMedia();
    void readResources();
    void readUndo();
    void sortMedia();
    [[nodiscard]] qint64 mediaEstimate();
    [[nodiscard]] qint64 metaNumber(const char *key, qint64 fallback);

    /// Reads all rows that can be read, each by `read(statement, &row)`, which answers whether the
    /// row is possible. They are ascending by key unless the table is damaged.
    template<typename Row, typename Read>
    void readTable(const Table &table, std::vector<Row> *rows, const Read &read);

    NxSqliteDatabase *const m_database; // Not owned.
    NxProjectContents m_contents;
    QStringList m_damage;
    qint64 m_impossible = 0;
};
