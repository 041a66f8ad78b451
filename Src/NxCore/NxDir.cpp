// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxDir.h>

#include <QDir>
#include <QFileInfo>

namespace {

/// "MP4" of "*.MP4", ".mp4" and "MP4".
QString bareSuffix(const QString &pattern)
{
    QString suffix = pattern.trimmed();
    if (suffix.startsWith(QLatin1Char('*')))
        suffix.remove(0, 1);
    if (suffix.startsWith(QLatin1Char('.')))
        suffix.remove(0, 1);
    return suffix;
}

bool fitsEverything(const QString &pattern)
{
    return pattern == QLatin1String("*") || pattern == QLatin1String("*.*");
}

QString suffixOf(const QString &suffixOrPath)
{
    const int slash = qMax(suffixOrPath.lastIndexOf(QLatin1Char('/')),
                           suffixOrPath.lastIndexOf(QLatin1Char('\\')));
    const QString name = suffixOrPath.mid(slash + 1);
    const int point = name.lastIndexOf(QLatin1Char('.'));
    const bool isSuffixItself = slash < 0 && point < 0;
    return isSuffixItself ? name : name.mid(point < 0 ? name.size() : point + 1);
}

void collect(const QString &folder, bool recursive, QStringList &paths)
{
    const QDir dir(folder);
    const QDir::SortFlags byName = QDir::Name;
    const QDir::Filters all = QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    const QFileInfoList files = dir.entryInfoList(all | QDir::Files, byName);
    for (const QFileInfo &file : files)
        paths += file.absoluteFilePath();
    if (!recursive)
        return;
    const QFileInfoList folders = dir.entryInfoList(all | QDir::Dirs | QDir::NoSymLinks, byName);
    for (const QFileInfo &child : folders)
        collect(child.absoluteFilePath(), recursive, paths);
}

} // namespace

bool NxDir::CheckFilters(const QString &suffixOrPath, const QStringList &filters)
{
    const QString suffix = suffixOf(suffixOrPath);
    for (const QString &list : filters) {
        const QStringList patterns = list.split(QLatin1Char(';'), Qt::SkipEmptyParts);
        for (const QString &pattern : patterns) {
            if (fitsEverything(pattern.trimmed()))
                return true;
            const bool isSame = bareSuffix(pattern).compare(suffix, Qt::CaseInsensitive) == 0;
            if (isSame && !suffix.isEmpty())
                return true;
        }
    }
    return false;
}

QStringList NxDir::getAllFile(const QString &dir, bool recursive)
{
    QStringList paths;
    if (!dir.isEmpty())
        collect(dir, recursive, paths);
    return paths;
}
