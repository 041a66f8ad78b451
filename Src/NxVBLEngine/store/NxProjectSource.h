// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/store/NxSqliteDatabase.h>

#include <QDateTime>
#include <QString>

#include <memory>

class QTemporaryDir;

/// A project file opened for reading, so that nothing on the drive changes by it.
///
/// A closed project is read without any lock. One that somebody is writing is read beside him.
/// One whose writer died is read together with what that one left beside it: in place when we
/// hold the lock, else in a temporary copy. A project of an older version is copied and taken up
/// there.
class NXVBLENGINE_TEST_EXPORT NxProjectSource
{
public:
    enum class Writer {
        None, ///< No lock is held; perhaps it cannot be.
        Ourselves, ///< We hold the lock and have no other connection.
        Another, ///< Somebody holds it. While he has not begun to write, it is read without locks,
        ///< so that nothing is made beside it: ask wasDisturbed() after reading.
        AnotherAtWork, ///< Somebody is writing.
    };

    [[nodiscard]] static NxResult<std::unique_ptr<NxProjectSource>> open(const QString &path,
                                                                         Writer writer,
                                                                         const char *vfs);
    ~NxProjectSource();
    NxProjectSource(const NxProjectSource &) = delete;
    NxProjectSource &operator=(const NxProjectSource &) = delete;

    [[nodiscard]] NxSqliteDatabase *database() const { return m_database.get(); }
    /// What was seen to be wrong at first sight; empty when nothing was.
    [[nodiscard]] QString damage() const { return m_damage; }
    /// Whether another writer began after this was opened, so that what was read may be mixed.
    [[nodiscard]] bool wasDisturbed() const;

private:
    NxProjectSource(const QString &path, const char *vfs);

    [[nodiscard]] NxResult<void> openAsItIs(Writer writer);
    [[nodiscard]] NxResult<void> openInPlace(NxSqliteDatabase::Access access);
    [[nodiscard]] NxResult<void> openCopy();
    [[nodiscard]] NxResult<void> identify();
    [[nodiscard]] NxResult<void> takeUpCopy();

    /// How the file and what stands beside it look from outside.
    struct Look
    {
        bool hasIndex = false; ///< Of a log: its writer has the file open.
        bool hasJournal = false;
        qint64 size = 0;
        QDateTime modified;
    };
    [[nodiscard]] static Look lookAt(const QString &path);

    const QString m_path;
    const char *const m_vfs;
    Look m_look;
    bool m_mayBeDisturbed = false;
    QString m_damage;
    std::unique_ptr<QTemporaryDir> m_folder; // Outlives the connection to the file in it.
    std::unique_ptr<NxSqliteDatabase> m_database;
};
