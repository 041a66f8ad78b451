// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>

class NxSqliteDatabase;

/// A write transaction that is rolled back unless commit() succeeded.
class NXVBLENGINE_TEST_EXPORT NxSqliteTransaction
{
public:
    explicit NxSqliteTransaction(NxSqliteDatabase *database);
    ~NxSqliteTransaction();
    NxSqliteTransaction(const NxSqliteTransaction &) = delete;
    NxSqliteTransaction &operator=(const NxSqliteTransaction &) = delete;

    /// Whether it could be begun; the database's last error says why not.
    [[nodiscard]] bool isOpen() const { return m_isOpen; }
    [[nodiscard]] bool commit();

private:
    NxSqliteDatabase *const m_database; // Not owned.
    bool m_isOpen = false;
};
