// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxBackupFolder.h>

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTimeZone>

namespace {

constexpr int LongestTitle = 40; // Characters; a file name may have 255 bytes.
constexpr int HashDigits = 10;

QString suffix()
{
    return QStringLiteral(".brevano");
}

QString partSuffix()
{
    return QStringLiteral(".brevano-part");
}

QString dateFormat()
{
    return QStringLiteral("yyyyMMdd");
}

QString timeFormat()
{
    return QStringLiteral("'T'HHmmsszzz'Z'");
}

QString prefixFor(const QString &projectPath)
{
    const QByteArray hash =
        QCryptographicHash::hash(projectPath.toUtf8(), QCryptographicHash::Sha1).toHex();
    QString title = QFileInfo(projectPath).completeBaseName().left(LongestTitle);
    if (!title.isEmpty() && title.at(title.size() - 1).isHighSurrogate())
        title.chop(1);
    return title + QLatin1Char('-') + QString::fromLatin1(hash.left(HashDigits)) + QLatin1Char('-');
}

QString timeText(qint64 msec)
{
    return QDateTime::fromMSecsSinceEpoch(msec, Qt::UTC).toString(dateFormat() + timeFormat());
}

} // namespace

NxBackupFolder::NxBackupFolder(const QString &folder, const QString &projectPath)
    : m_folder(folder),
      m_prefix(prefixFor(projectPath))
{
}

bool NxBackupFolder::make() const
{
    return QDir().mkpath(m_folder);
}

QString NxBackupFolder::pathFor(qint64 msec) const
{
    return m_folder + QLatin1Char('/') + m_prefix + timeText(msec) + suffix();
}

QString NxBackupFolder::partPathFor(qint64 msec) const
{
    return m_folder + QLatin1Char('/') + m_prefix + timeText(msec) + partSuffix();
}

QStringList NxBackupFolder::backups() const
{
    return files(suffix());
}

QStringList NxBackupFolder::files(const QString &ending) const
{
    QStringList found;
    const QDir folder(m_folder);
    // By plain comparison: the title may hold what a name filter takes as a pattern.
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden, QDir::NoSort);
    for (const QString &name : names) {
        const bool isOurs = name.startsWith(m_prefix) && name.endsWith(ending);
        if (isOurs && timeOf(name.chopped(ending.size())) >= 0)
            found += folder.filePath(name);
    }
    found.sort(); // The time stands last and begins with the year.
    return found;
}

qint64 NxBackupFolder::timeOf(const QString &name) const
{
    // Each for itself: together they would be a local time, and summer time leaves an hour out.
    const QString text = name.mid(m_prefix.size());
    const int dateSize = dateFormat().size();
    const QDate date = QDate::fromString(text.left(dateSize), dateFormat());
    const QTime time = QTime::fromString(text.mid(dateSize), timeFormat());
    const bool isTime = date.isValid() && time.isValid();
    return isTime ? QDateTime(date, time, Qt::UTC).toMSecsSinceEpoch() : -1;
}

void NxBackupFolder::thin() const
{
    // Only the holder of the project's lock makes backups of it: no part belongs to anybody.
    for (const QString &part : files(partSuffix()))
        QFile::remove(part);

    QStringList kept = backups();
    while (kept.size() > MostBackups) {
        QVector<qint64> times;
        for (const QString &path : kept)
            times += timeOf(QFileInfo(path).fileName().chopped(suffix().size()));
        if (!QFile::remove(kept.takeAt(superfluous(times))))
            return;
    }
}

int NxBackupFolder::superfluous(const QVector<qint64> &times)
{
    int closest = 0;
    for (int older = 1; older + 1 < times.size(); ++older) {
        const qint64 gap = times.at(older + 1) - times.at(older);
        if (gap <= times.at(closest + 1) - times.at(closest))
            closest = older;
    }
    return closest;
}
