// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxMatterMenuFile_p.h"

#include <NxCore/INxAppInfo.h>
#include <NxCore/NxLog.h>

#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QTemporaryFile>

namespace {

const auto groupName = QStringLiteral("NMatterViewMenu");

/// Ten times what is ever written.
constexpr qint64 LargestBytes = 16 * 1024;

/// How a value begins that is no text. Reading a damaged one may take any amount of memory and
/// stack, and QSettings does not survive the lack of either.
const char *const VariantMark = "@Variant(";

/// What a file may grow by in one write: a new key, and every byte of foreign texts escaped.
constexpr qint64 RoomBytes = 1024;
constexpr qint64 LongestEscape = 6;

/// How long a write waits for another program's write to end.
constexpr int LockPatienceMs = 100;

QString filePath()
{
    const QString folder = INxAppInfo::getInstance()->getDirectory(INxAppInfo::pkUserData);
    return folder.isEmpty() ? QString() : folder + QStringLiteral("/Brevano.ini");
}

QString lockPath(const QString &path)
{
    return path + QStringLiteral(".lock");
}

/// Whether something stands there that is no file: a pipe would never let go of who opens it.
bool isForeign(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile();
}

} // namespace

NxMatterMenuFile::NxMatterMenuFile() : m_path(filePath()) {}

QHash<QString, QString> NxMatterMenuFile::texts(const QStringList &keys)
{
    QHash<QString, QString> found;
    if (isBarredBy(readingTrouble()))
        return found;
    QSettings settings(m_path, QSettings::IniFormat);
    settings.beginGroup(groupName);
    for (const QString &key : keys)
        found.insert(key, settings.value(key).toString());
    settings.endGroup();
    return found;
}

void NxMatterMenuFile::write(const QString &key, const QString &text)
{
    if (isBarredBy(readingTrouble()) || isBarredBy(writingTrouble()))
        return;
    QSettings settings(m_path, QSettings::IniFormat);
    settings.beginGroup(groupName);
    settings.setValue(key, text);
    settings.endGroup();
}

QString NxMatterMenuFile::readingTrouble() const
{
    if (m_path.isEmpty())
        return QStringLiteral("has no folder");
    if (isForeign(m_path))
        return QStringLiteral("is no file");
    if (QFileInfo(m_path).size() > LargestBytes)
        return QStringLiteral("is too large to be settings");
    QFile file(m_path);
    if (file.open(QFile::ReadOnly) && file.read(LargestBytes).contains(VariantMark))
        return QStringLiteral("holds values that are no texts");
    return QString();
}

/// QSettings waits without limit for its lock, so a lock that does not come is found out before.
QString NxMatterMenuFile::writingTrouble() const
{
    if (isForeign(lockPath(m_path)))
        return QStringLiteral("is locked for ever by something that is no file");
    QLockFile lock(lockPath(m_path));
    if (!lock.tryLock(LockPatienceMs) && lock.error() == QLockFile::LockFailedError)
        return QStringLiteral("is kept locked by another program");
    return hasRoom() ? QString() : QStringLiteral("has no room on the disk");
}

/// On a full disk QSettings would put an empty file in the place of the good one, so its room is
/// taken once before. A folder in which nothing can be made is no danger.
bool NxMatterMenuFile::hasRoom() const
{
    QTemporaryFile trial(m_path + QStringLiteral(".XXXXXX"));
    if (!trial.open())
        return true;
    const qint64 bytes = RoomBytes + LongestEscape * QFileInfo(m_path).size();
    return trial.write(QByteArray(int(bytes), 'x')) == bytes && trial.flush();
}

bool NxMatterMenuFile::isBarredBy(const QString &trouble)
{
    if (trouble.isEmpty())
        return false;
    if (!m_isReported)
        NX_LOG_ERROR("Brevano.ini: the view settings are not kept: it %s (%s)",
                     qUtf8Printable(trouble), qUtf8Printable(m_path));
    m_isReported = true;
    return true;
}
