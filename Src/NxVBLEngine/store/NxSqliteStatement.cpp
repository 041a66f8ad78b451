// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxSqliteStatement.h>

#include <NxCore/NxDiskBan.h>
#include <NxVBLEngine/records/NxLosslessText.h>

#include <sqlite3.h>

#include <utility>

NxSqliteStatement::NxSqliteStatement(sqlite3 *database, const char *sql)
{
    sqlite3_prepare_v3(database, sql, -1, SQLITE_PREPARE_PERSISTENT, &m_statement, nullptr);
}

NxSqliteStatement::~NxSqliteStatement()
{
    sqlite3_finalize(m_statement);
}

NxSqliteStatement::NxSqliteStatement(NxSqliteStatement &&other) noexcept
{
    *this = std::move(other);
}

NxSqliteStatement &NxSqliteStatement::operator=(NxSqliteStatement &&other) noexcept
{
    std::swap(m_statement, other.m_statement);
    std::swap(m_text, other.m_text);
    return *this;
}

void NxSqliteStatement::bind(int parameter, qint64 value)
{
    sqlite3_bind_int64(m_statement, parameter, value);
}

void NxSqliteStatement::bindNull(int parameter)
{
    sqlite3_bind_null(m_statement, parameter);
}

void NxSqliteStatement::bind(int parameter, const QByteArray &value)
{
    sqlite3_bind_blob(m_statement, parameter, value.isEmpty() ? "" : value.constData(),
                      value.size(), SQLITE_TRANSIENT);
}

NxSqliteStatement::Step NxSqliteStatement::step()
{
    NxDiskBan::note("NxSqliteStatement::step");
    const int code = sqlite3_step(m_statement);
    if (code == SQLITE_ROW)
        return Step::Row;
    return code == SQLITE_DONE ? Step::Done : Step::Failed;
}

bool NxSqliteStatement::run()
{
    const bool isDone = step() == Step::Done;
    // A failed run's reset answers the same error again, so the database's last one stands.
    reset();
    return isDone;
}

void NxSqliteStatement::reset()
{
    sqlite3_reset(m_statement);
}

bool NxSqliteStatement::isNull(int column) const
{
    return sqlite3_column_type(m_statement, column) == SQLITE_NULL;
}

qint64 NxSqliteStatement::integer(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

QString NxSqliteStatement::text(int column) const
{
    const auto *bytes = reinterpret_cast<const char *>(sqlite3_column_text(m_statement, column));
    const int size = sqlite3_column_bytes(m_statement, column);
    return size > 0 ? NxLosslessText::decoded(bytes, size) : QString();
}

QByteArray NxSqliteStatement::blob(int column) const
{
    const auto *bytes = static_cast<const char *>(sqlite3_column_blob(m_statement, column));
    return QByteArray(bytes, sqlite3_column_bytes(m_statement, column));
}

void NxSqliteStatement::reserveText(int length)
{
    const size_t bytes = size_t(NxLosslessText::maximumBytes(length)) + 1;
    if (m_text.size() < bytes)
        m_text.resize(bytes);
}

void NxSqliteStatement::bindTextAt(int parameter, const QString &text, char **free)
{
    char *const begin = *free;
    *free = NxLosslessText::encodeTo(begin, text);
    sqlite3_bind_text64(m_statement, parameter, begin, sqlite3_uint64(*free - begin), SQLITE_STATIC,
                        SQLITE_UTF8);
}
