// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectCopy.h>

#include <NxVBLEngine/store/NxSqliteDatabase.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

namespace {

constexpr int PagesAtATime = 1024;

QString translated(const char *text)
{
    return QCoreApplication::translate("NxProjectStore", text);
}

} // namespace

void NxProjectCopy::BackupFinisher::operator()(sqlite3_backup *backup) const
{
    sqlite3_backup_finish(backup);
}

NxProjectCopy::NxProjectCopy(NxSqliteDatabase *source, const QString &target, const QString &part,
                             const char *vfs)
    : m_source(source),
      m_target(target),
      m_part(part),
      m_vfs(vfs)
{
}

NxProjectCopy::~NxProjectCopy()
{
    m_backup.reset();
    m_database.reset();
    if (m_ownsPart)
        QFile::remove(m_part);
}

NxProjectCopy::Progress NxProjectCopy::step()
{
    if (!m_backup && !begin())
        return Progress::Failed;
    const int code = sqlite3_backup_step(m_backup.get(), PagesAtATime);
    if (code == SQLITE_OK || code == SQLITE_BUSY || code == SQLITE_LOCKED)
        return Progress::More;
    return code == SQLITE_DONE ? finish() : fail(sqliteError(code));
}

bool NxProjectCopy::begin()
{
    // A link to nowhere counts as a file, too: its name is taken.
    if (QFileInfo::exists(m_target) || QFileInfo(m_target).isSymLink()) {
        m_error = NxStoreCause::error(m_target, NxStoreDeed::Copy,
                                      translated("a file of this name is there already"));
        return false;
    }
    NxResult<std::unique_ptr<NxSqliteDatabase>> database =
        NxSqliteDatabase::open(m_part, NxSqliteDatabase::Access::Create, m_vfs, m_target);
    if (!database) {
        m_error = database.error();
        return false;
    }
    m_ownsPart = true;
    m_database = database.take();
    // Nobody reads the part before it is whole; what breaks off is thrown away.
    const bool isReady = m_database->execute("PRAGMA journal_mode = MEMORY")
                         && m_database->execute("PRAGMA synchronous = FULL");
    m_backup.reset(sqlite3_backup_init(m_database->handle(), "main", m_source->handle(), "main"));
    if (isReady && m_backup)
        return true;
    m_error = m_database->failure(NxStoreDeed::Copy);
    return false;
}

NxProjectCopy::Progress NxProjectCopy::finish()
{
    const int code = sqlite3_backup_finish(m_backup.release());
    if (code != SQLITE_OK)
        return fail(sqliteError(code));
    m_database.reset();

    QFile part(m_part);
    if (!part.rename(m_target)) {
        return fail(NxStoreCause::error(m_target, NxStoreDeed::Copy, part.errorString()));
    }
    m_ownsPart = false;
    return Progress::Done;
}

NxProjectCopy::Progress NxProjectCopy::fail(const NxError &error)
{
    m_error = error;
    return Progress::Failed;
}

NxError NxProjectCopy::sqliteError(int code) const
{
    const int systemError = sqlite3_system_errno(m_database->handle());
    return NxStoreCause::error(m_target, NxStoreDeed::Copy,
                               NxStoreCause::ofSqlite(code, systemError));
}
