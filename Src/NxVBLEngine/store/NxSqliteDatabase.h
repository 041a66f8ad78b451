// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/store/NxSqliteStatement.h>
#include <NxVBLEngine/store/NxStoreCause.h>

#include <QString>

#include <memory>

struct sqlite3;

/// One connection to one database file. Used by one thread at a time.
///
/// Errors of statements are the connection's last error: ask failure() right after one failed.
class NXVBLENGINE_TEST_EXPORT NxSqliteDatabase
{
public:
    enum class Access {
        ReadOnly, ///< Beside a living writer, with the locks it understands.
        Immutable, ///< Nobody writes: no locks, no files beside it, works everywhere.
        ReadWrite,
        Create, ///< As ReadWrite, and makes the file.
    };

    /// `vfs` names SQLite's file layer; null for the system's. Errors speak of `shownPath` where
    /// the file at `path` only stands for another.
    [[nodiscard]] static NxResult<std::unique_ptr<NxSqliteDatabase>> open(
        const QString &path, Access access, const char *vfs, const QString &shownPath = {});
    ~NxSqliteDatabase();
    NxSqliteDatabase(const NxSqliteDatabase &) = delete;
    NxSqliteDatabase &operator=(const NxSqliteDatabase &) = delete;

    /// The path that errors speak of.
    [[nodiscard]] QString path() const { return m_path; }

    /// Runs statements whose rows, if any, do not matter.
    [[nodiscard]] bool execute(const char *sql);
    /// The first column of the first row; `fallback` when there is none or it failed.
    [[nodiscard]] qint64 number(const char *sql, qint64 fallback);
    [[nodiscard]] NxSqliteStatement prepare(const char *sql);
    /// How many rows the last statement changed.
    [[nodiscard]] int changedRows() const;

    /// Whether a write transaction is open.
    [[nodiscard]] bool isInTransaction() const;
    /// Moves everything from the write-ahead log into the file and syncs both; no log is fine.
    [[nodiscard]] bool foldLogIn();
    /// Moves the log in and empties it, as far as readers allow. The data is safe either way.
    void truncateLog();
    /// Leaves the log as it is when the connection closes.
    void keepLogOnClose();
    /// Reads even a file that is shorter than it says, and one whose schema looks odd.
    void tolerateDamage();

    [[nodiscard]] int lastCode() const;
    [[nodiscard]] bool lastErrorIsDamage() const;
    /// The last error as a sentence.
    [[nodiscard]] NxError failure(NxStoreDeed deed) const;

    /// For the classes beside this one alone.
    [[nodiscard]] sqlite3 *handle() const { return m_handle; }

    /// The longest path of a database, in bytes of the system's encoding, that the layer takes.
    [[nodiscard]] static int longestPath(const char *vfs);
    /// A path as SQLite wants it.
    [[nodiscard]] static QByteArray fileName(const QString &path);

private:
    NxSqliteDatabase(QString path, sqlite3 *handle);

    const QString m_path;
    sqlite3 *const m_handle; ///< Owned.
};
