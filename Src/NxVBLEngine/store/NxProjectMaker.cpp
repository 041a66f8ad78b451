// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectMaker.h>

#include <NxVBLEngine/store/NxProjectSchema.h>
#include <NxVBLEngine/store/NxProjectWriter.h>
#include <NxVBLEngine/store/NxSqliteDatabase.h>
#include <NxVBLEngine/store/NxSqliteTransaction.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QUuid>

namespace {

/// Bytes that a name may have so that "-journal" still fits behind it.
constexpr int LongestName = 255 - 8;

QString translated(const char *text)
{
    return QCoreApplication::translate("NxProjectStore", text);
}

NxError taken(const QString &path)
{
    return NxStoreCause::error(
        path, translated("cannot be made: a file of this name is there already"));
}

NxResult<void> fill(const QString &part, const QString &path, qint64 nowMsec, const char *vfs)
{
    NxResult<std::unique_ptr<NxSqliteDatabase>> database =
        NxSqliteDatabase::open(part, NxSqliteDatabase::Access::Create, vfs, path);
    if (!database)
        return database.error();
    // Nobody sees the part before it is whole: it needs no journal of its own.
    if (!(*database)->execute("PRAGMA journal_mode = MEMORY; PRAGMA synchronous = FULL"))
        return (*database)->failure(NxStoreDeed::Write);
    const NxResult<void> made = NxProjectSchema::migrate(database->get(), NxProjectSchema::steps());
    if (!made)
        return made;

    NxSqliteTransaction transaction(database->get());
    if (!transaction.isOpen())
        return (*database)->failure(NxStoreDeed::Write);
    const NxResult<void> begun =
        NxProjectWriter(database->get()).writeBeginning(QFileInfo(path).path(), nowMsec);
    if (!begun)
        return begun;
    if (!transaction.commit())
        return (*database)->failure(NxStoreDeed::Write);
    return {};
}

/// The log of a project that was deleted would be read into the new one.
NxResult<void> removeLeftLog(const QString &path)
{
    for (const char *suffix : {"-wal", "-shm", "-journal"}) {
        QFile left(path + QLatin1String(suffix));
        if (left.exists() && !left.remove())
            return NxStoreCause::error(left.fileName(), NxStoreDeed::Remove, left.errorString());
    }
    return {};
}

} // namespace

NxResult<void> NxProjectMaker::mayMake(const QString &path)
{
    const QFileInfo target(path);
    if (target.exists() || target.isSymLink())
        return taken(path);
    if (!QFileInfo(target.path()).isDir())
        return NxStoreCause::error(path, translated("cannot be made: there is no such folder"));
    if (!QFileInfo(target.path()).isWritable())
        return NxStoreCause::error(path,
                                   translated("cannot be made: its folder is write-protected"));
    if (NxSqliteDatabase::fileName(target.fileName()).size() > LongestName)
        return NxStoreCause::error(path, translated("cannot be made: its name is too long"));
    return {};
}

NxResult<void> NxProjectMaker::make(const QString &path, qint64 nowMsec, const char *vfs)
{
    if (const NxResult<void> possible = mayMake(path); !possible)
        return possible;
    if (const NxResult<void> removed = removeLeftLog(path); !removed)
        return removed;

    const QString unique = QUuid::createUuid().toString(QUuid::Id128).left(12);
    const QString partPath = QFileInfo(path).path() + QLatin1String("/.brevano-new-") + unique;
    auto tidy = qScopeGuard([&partPath] { QFile::remove(partPath); });
    if (const NxResult<void> filled = fill(partPath, path, nowMsec, vfs); !filled)
        return filled;
    QFile part(partPath);
    if (part.rename(path)) {
        tidy.dismiss();
        return {};
    }
    if (QFileInfo::exists(path))
        return taken(path);
    return NxStoreCause::error(path, NxStoreDeed::Write, part.errorString());
}
