// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxIniFileGuard.h>

#include <QFileInfo>
#include <QLockFile>
#include <QTemporaryFile>

namespace {

/// What a file may grow by in one write: a new key, and every byte of foreign texts escaped.
constexpr qint64 RoomBytes = 1024;
constexpr qint64 LongestEscape = 6;

/// How long a write waits for another program's write to end.
constexpr int LockPatienceMs = 100;

QString lockPath(const QString &path)
{
    return path + QStringLiteral(".lock");
}

/// The room of the write is taken once before. A folder in which nothing can be made is no danger.
bool hasRoom(const QString &path)
{
    QTemporaryFile trial(path + QStringLiteral(".XXXXXX"));
    if (!trial.open())
        return true;
    const qint64 bytes = RoomBytes + LongestEscape * QFileInfo(path).size();
    return trial.write(QByteArray(int(bytes), 'x')) == bytes && trial.flush();
}

} // namespace

QString NxIniFileGuard::writingTrouble(const QString &path)
{
    if (isForeign(path))
        return QStringLiteral("is no file");
    if (isForeign(lockPath(path)))
        return QStringLiteral("is locked for ever by something that is no file");
    QLockFile lock(lockPath(path));
    if (!lock.tryLock(LockPatienceMs) && lock.error() == QLockFile::LockFailedError)
        return QStringLiteral("is kept locked by another program");
    return hasRoom(path) ? QString() : QStringLiteral("has no room on the disk");
}

bool NxIniFileGuard::isForeign(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile();
}
