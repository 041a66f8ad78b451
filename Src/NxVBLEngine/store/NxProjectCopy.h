// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QString>

#include <memory>

class NxSqliteDatabase;
struct sqlite3_backup;

/// Copies a database that may be written meanwhile, a few pages at a time.
///
/// The copy grows under another name in the same folder and takes its own name when it is whole
/// and on the disk. An unfinished one is removed by the destructor. A file that stands under the
/// final name is never touched.
class NXVBLENGINE_TEST_EXPORT NxProjectCopy
{
public:
    enum class Progress {
        More,
        Done,
        Failed,
    };

    /// `source` must outlive the copy; `part` is the name it grows under.
    NxProjectCopy(NxSqliteDatabase *source, const QString &target, const QString &part,
                  const char *vfs);
    ~NxProjectCopy();
    NxProjectCopy(const NxProjectCopy &) = delete;
    NxProjectCopy &operator=(const NxProjectCopy &) = delete;

    /// Does some milliseconds of work. The source must not be within a write transaction of its
    /// own connection.
    [[nodiscard]] Progress step();
    /// Why it failed.
    [[nodiscard]] NxError error() const { return m_error; }

private:
    struct BackupFinisher
    {
        void operator()(sqlite3_backup *backup) const;
    };

    [[nodiscard]] bool begin();
    [[nodiscard]] Progress finish();
    [[nodiscard]] Progress fail(const NxError &error);
    [[nodiscard]] NxError sqliteError(int code) const;

    NxSqliteDatabase *const m_source; // Not owned.
    const QString m_target;
    const QString m_part;
    const char *const m_vfs;
    std::unique_ptr<NxSqliteDatabase> m_database;
    std::unique_ptr<sqlite3_backup, BackupFinisher> m_backup; // Ends before the database.
    NxError m_error;
    bool m_ownsPart = false;
};
