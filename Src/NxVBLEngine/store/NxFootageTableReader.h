// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/records/NxProjectContents.h>
#include <NxVBLEngine/store/NxTableReader.h>

#include <QHash>

/// Reads what a project knows of the contents of its files.
///
/// All of it can be read from the files again, so a row that makes no sense only leaves its file
/// unread, and a fingerprint that was made in another way counts as none. A table that breaks off
/// is damage of the project all the same.
class NxFootageTableReader
{
public:
    explicit NxFootageTableReader(NxSqliteDatabase *database);

    /// Fills footage, streams and senselessFootage.
    void read(NxProjectContents *contents);
    /// Sentences about tables that break off.
    [[nodiscard]] QStringList damage() const { return m_tables.damage(); }

private:
    void readDescriptions(NxProjectContents *contents);
    [[nodiscard]] bool readRow(const NxSqliteStatement &statement, NxFootageRow *row) const;

    NxTableReader m_tables;
    QHash<qint64, int> m_places; // Of descriptions among the contents' streams, by number.
};
