// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/records/NxStoreBatch.h>
#include <NxVBLEngine/store/NxFootageTableWriter.h>
#include <NxVBLEngine/store/NxSqliteStatement.h>

#include <QString>

#include <array>

class NxSqliteDatabase;

/// Turns the entries of a batch into rows, within a transaction of the caller.
///
/// Memory is always ahead of the file, so a change of a row that the file does not have means that
/// the two have parted: it is an error, and the batch is not written.
class NXVBLENGINE_TEST_EXPORT NxProjectWriter
{
public:
    explicit NxProjectWriter(NxSqliteDatabase *database);

    /// Stops at the first entry that cannot be written; the transaction is to be rolled back then.
    [[nodiscard]] NxResult<void> write(const NxStoreBatch &batch);

    /// What a project that holds nothing yet says about itself.
    [[nodiscard]] NxResult<void> writeBeginning(const QString &projectFolder, qint64 nowMsec);
    /// Notes where the project stands now.
    [[nodiscard]] NxResult<void> writeProjectFolder(const QString &folder);

private:
    static constexpr int SqlCount = 33;

    // Each answers false when it failed; m_refusal then tells why, or the database does.
    [[nodiscard]] bool writeEntry(const NxStoreEntry::NewMedia &entry);
    [[nodiscard]] bool writeEntry(const NxStoreEntry::NewFolder &entry);
    [[nodiscard]] bool writeEntry(const NxStoreEntry::NewTimeline &entry);
    [[nodiscard]] bool writeEntry(const NxStoreEntry::NewClips &entry);
    [[nodiscard]] bool writeEntry(const NxStoreEntry::Apply &entry);
    [[nodiscard]] bool writeEntry(const NxStoreEntry::Facts &entry);
    [[nodiscard]] bool writeEntry(const NxStoreEntry::Footage &entry);
    [[nodiscard]] bool writeEntry(const NxStoreEntry::StepBegin &entry);
    [[nodiscard]] bool writeEntry(const NxStoreEntry::StepChange &entry);
    [[nodiscard]] bool writeEntry(const NxStoreEntry::StepPosition &entry);
    [[nodiscard]] bool writeEntry(const NxStoreEntry::StepDrop &entry);
    [[nodiscard]] bool writeEntry(const NxStoreEntry::Counters &entry);
    [[nodiscard]] bool setMeta(const char *key, qint64 value);
    [[nodiscard]] bool setMeta(const char *key, const QString &value);
    [[nodiscard]] bool runForEach(int sql, const QVector<qint64> &ids);

    [[nodiscard]] NxResult<void> result(bool isDone) const;
    [[nodiscard]] NxSqliteStatement *statement(int sql);

    NxSqliteDatabase *const m_database; // Not owned.
    std::array<NxSqliteStatement, SqlCount> m_statements; // Each prepared at its first use.
    NxFootageTableWriter m_footage;
    QString m_refusal;
};
