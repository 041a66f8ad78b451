// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxSqliteTransaction.h>

#include <NxVBLEngine/store/NxSqliteDatabase.h>

NxSqliteTransaction::NxSqliteTransaction(NxSqliteDatabase *database) : m_database(database)
{
    m_isOpen = m_database->execute("BEGIN IMMEDIATE");
}

NxSqliteTransaction::~NxSqliteTransaction()
{
    // SQLite may have rolled back by itself, when the disk was full for one.
    if (m_isOpen && m_database->isInTransaction())
        static_cast<void>(m_database->execute("ROLLBACK"));
}

bool NxSqliteTransaction::commit()
{
    if (!m_isOpen || !m_database->execute("COMMIT"))
        return false;
    m_isOpen = false;
    return true;
}
