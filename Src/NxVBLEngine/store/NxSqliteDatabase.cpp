// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxSqliteDatabase.h>

#include <NxCore/NxDiskBan.h>

#include <QFile>

#include <sqlite3.h>

#include <utility>

namespace {

constexpr int BusyTimeoutMsec = 5000;

int openFlags(NxSqliteDatabase::Access access)
{
    static const int flags[] = {
        SQLITE_OPEN_READONLY,
        SQLITE_OPEN_READONLY | SQLITE_OPEN_URI,
        SQLITE_OPEN_READWRITE,
        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE,
    };
    // One thread at a time, which the owner sees to: SQLite's own locks are not needed.
    return flags[int(access)] | SQLITE_OPEN_NOMUTEX;
}

/// The path as a URI, in which SQLite would else read "?", "#" and "%" as its own.
QByteArray immutableUri(const QByteArray &fileName)
{
    const char *const prefix = fileName.startsWith('/') ? "file://" : "file:///";
    return prefix + fileName.toPercentEncoding("/:") + "?immutable=1";
}

} // namespace

NxResult<std::unique_ptr<NxSqliteDatabase>> NxSqliteDatabase::open(const QString &path,
                                                                   Access access, const char *vfs,
                                                                   const QString &shownPath)
{
    QByteArray name = fileName(path);
    if (access == Access::Immutable)
        name = immutableUri(name);

    sqlite3 *handle = nullptr;
    NxDiskBan::note("NxSqliteDatabase::open");
    const int code = sqlite3_open_v2(name.constData(), &handle, openFlags(access), vfs);
    std::unique_ptr<NxSqliteDatabase> database(
        new NxSqliteDatabase(shownPath.isEmpty() ? path : shownPath, handle));
    if (code != SQLITE_OK)
        return database->failure(NxStoreDeed::Open);

    sqlite3_extended_result_codes(handle, 1);
    sqlite3_busy_timeout(handle, BusyTimeoutMsec);
    // A file that somebody prepared must not make the program run what its schema says.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    return database;
}

NxSqliteDatabase::NxSqliteDatabase(QString path, sqlite3 *handle)
    : m_path(std::move(path)),
      m_handle(handle)
{
}

NxSqliteDatabase::~NxSqliteDatabase()
{
    sqlite3_close_v2(m_handle);
}

bool NxSqliteDatabase::execute(const char *sql)
{
    return sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

qint64 NxSqliteDatabase::number(const char *sql, qint64 fallback)
{
    NxSqliteStatement statement = prepare(sql);
    if (statement.step() != NxSqliteStatement::Step::Row || statement.isNull(0))
        return fallback;
    return statement.integer(0);
}

NxSqliteStatement NxSqliteDatabase::prepare(const char *sql)
{
    return NxSqliteStatement(m_handle, sql);
}

int NxSqliteDatabase::changedRows() const
{
    return sqlite3_changes(m_handle);
}

bool NxSqliteDatabase::isInTransaction() const
{
    return sqlite3_get_autocommit(m_handle) == 0;
}

bool NxSqliteDatabase::foldLogIn()
{
    return sqlite3_wal_checkpoint_v2(m_handle, nullptr, SQLITE_CHECKPOINT_FULL, nullptr, nullptr)
           == SQLITE_OK;
}

void NxSqliteDatabase::truncateLog()
{
    sqlite3_wal_checkpoint_v2(m_handle, nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
}

void NxSqliteDatabase::keepLogOnClose()
{
    sqlite3_db_config(m_handle, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

void NxSqliteDatabase::tolerateDamage()
{
    sqlite3_db_config(m_handle, SQLITE_DBCONFIG_DEFENSIVE, 0, nullptr);
    sqlite3_db_config(m_handle, SQLITE_DBCONFIG_WRITABLE_SCHEMA, 1, nullptr);
}

int NxSqliteDatabase::lastCode() const
{
    return sqlite3_extended_errcode(m_handle);
}

bool NxSqliteDatabase::lastErrorIsDamage() const
{
    return NxStoreCause::isDamage(lastCode());
}

NxError NxSqliteDatabase::failure(NxStoreDeed deed) const
{
    // No handle at all means that not even the memory for one was there.
    const int code = m_handle ? lastCode() : SQLITE_NOMEM;
    const int systemError = m_handle ? sqlite3_system_errno(m_handle) : 0;
    return NxStoreCause::error(m_path, deed, NxStoreCause::ofSqlite(code, systemError));
}

int NxSqliteDatabase::longestPath(const char *vfs)
{
    constexpr int longestSuffix = 8; // "-journal", which stands beside the file.
    const sqlite3_vfs *layer = sqlite3_vfs_find(vfs);
    return layer ? layer->mxPathname - longestSuffix : 0;
}

QByteArray NxSqliteDatabase::fileName(const QString &path)
{
#ifdef Q_OS_WIN
    return path.toUtf8();
#else
    return QFile::encodeName(path);
#endif
}
