// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/store/NxBackupFolder.h>
#include <NxVBLEngine/store/NxProjectCopy.h>

#include <QFile>
#include <QString>

#include <memory>

class NxSqliteDatabase;

/// Keeps a backup of a project that has just been opened, unless the last backup is the same.
class NXVBLENGINE_TEST_EXPORT NxProjectBackupJob
{
public:
    /// `nowMsec` is the backup's time, ms UTC.
    NxProjectBackupJob(const QString &projectPath, const QString &folder, qint64 nowMsec,
                       const char *vfs);

    /// Some milliseconds of comparing the file with the last backup. False when that is over.
    /// While it goes on nobody may have the project's database open.
    [[nodiscard]] bool compareOn();
    /// Whether comparing found the last backup to be the same: then nothing is left to do.
    [[nodiscard]] bool isSuperfluous() const { return m_isSame; }

    /// Some milliseconds of copying.
    [[nodiscard]] NxProjectCopy::Progress copyOn(NxSqliteDatabase *database);
    [[nodiscard]] NxError error() const { return m_error; }

private:
    [[nodiscard]] bool beginComparing();

    const QString m_projectPath;
    const NxBackupFolder m_folder;
    const qint64 m_now;
    const char *const m_vfs;
    QFile m_project;
    QFile m_last;
    bool m_isComparing = false;
    bool m_isSame = false;
    std::unique_ptr<NxProjectCopy> m_copy;
    NxError m_error;
};
