// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectBackupJob.h>

#include <NxVBLEngine/store/NxProjectHeader.h>
#include <NxVBLEngine/store/NxStoreCause.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace {

constexpr qint64 BytesAtATime = 4 * 1024 * 1024;

} // namespace

NxProjectBackupJob::NxProjectBackupJob(const QString &projectPath, const QString &folder,
                                       qint64 nowMsec, const char *vfs)
    : m_projectPath(projectPath),
      m_folder(folder, projectPath),
      m_now(nowMsec),
      m_vfs(vfs),
      m_project(projectPath)
{
}

bool NxProjectBackupJob::compareOn()
{
    if (!m_isComparing && !beginComparing())
        return false;
    const QByteArray ours = m_project.read(BytesAtATime);
    const QByteArray theirs = m_last.read(BytesAtATime);
    if (ours != theirs)
        return false;
    m_isSame = ours.isEmpty() && m_project.error() == QFile::NoError;
    return !ours.isEmpty();
}

bool NxProjectBackupJob::beginComparing()
{
    const QStringList backups = m_folder.backups();
    const bool hasLog = QFileInfo(m_projectPath + QLatin1String("-wal")).size() > 0;
    if (backups.isEmpty() || hasLog)
        return false;
    m_last.setFileName(backups.constLast());
    if (!m_project.open(QFile::ReadOnly) || !m_last.open(QFile::ReadOnly))
        return false;
    // The header counts how often the file was written, which says nothing about what it holds.
    if (m_project.size() != m_last.size() || !m_project.seek(NxProjectHeader::Size)
        || !m_last.seek(NxProjectHeader::Size))
        return false;
    m_isComparing = true;
    return true;
}

NxProjectCopy::Progress NxProjectBackupJob::copyOn(NxSqliteDatabase *database)
{
    if (!m_copy) {
        m_project.close();
        m_last.close();
        if (!m_folder.make()) {
            m_error = NxStoreCause::error(
                m_folder.path(),
                QCoreApplication::translate("NxProjectStore", "the folder cannot be made"));
            return NxProjectCopy::Progress::Failed;
        }
        m_folder.thin(); // Parts of killed processes, before ours is one.
        m_copy = std::make_unique<NxProjectCopy>(database, m_folder.pathFor(m_now),
                                                 m_folder.partPathFor(m_now), m_vfs);
    }
    const NxProjectCopy::Progress progress = m_copy->step();
    if (progress == NxProjectCopy::Progress::Done)
        m_folder.thin();
    if (progress == NxProjectCopy::Progress::Failed)
        m_error = m_copy->error();
    return progress;
}
