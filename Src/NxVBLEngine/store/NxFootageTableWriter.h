// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/records/NxFootageRecord.h>
#include <NxVBLEngine/store/NxSqliteStatement.h>

#include <QByteArray>
#include <QHash>
#include <QVector>

#include <array>

class NxSqliteDatabase;

/// Writes what was read of files, within a transaction of the caller. What files share becomes one
/// row for all of them.
///
/// After a failure the transaction is to be rolled back and the writer not used again: it
/// remembers rows that are no longer there. The database then tells why.
class NxFootageTableWriter
{
public:
    explicit NxFootageTableWriter(NxSqliteDatabase *database);

    /// Puts a record in the place of what was known; a record that knows nothing takes that away.
    /// Records of media that are not there are passed over.
    [[nodiscard]] bool write(const NxFootageRecord &record);
    /// Deletes what is known of media that are there no longer; of those that are, nothing.
    [[nodiscard]] bool dropOfGone(const QVector<qint64> &media);

private:
    static constexpr int SqlCount = 5;

    /// The number of a description, made when there is none yet; 0 when it failed.
    [[nodiscard]] qint64 description(const NxFootageStreams &streams);
    [[nodiscard]] bool remove(qint64 media);
    [[nodiscard]] NxSqliteStatement *statement(int sql);

    NxSqliteDatabase *const m_database; // Not owned.
    std::array<NxSqliteStatement, SqlCount> m_statements; // Each prepared at its first use.
    QHash<QByteArray, qint64> m_descriptions; // Those met so far.
};
