// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/disk/NxFileProbe.h>

#include <NxCore/NxDiskBan.h>
#include <NxCore/NxText.h>

#include <QByteArray>
#include <QFile>
#include <QList>

#include <climits>
#include <cstdlib>
#include <memory>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace {

NxFileKind kindOfError(int error)
{
    if (error == ENOENT || error == ENOTDIR)
        return NxFileKind::Missing;
    return error == EACCES || error == EPERM ? NxFileKind::Denied : NxFileKind::Failed;
}

NxFileKind kindOfMode(unsigned mode)
{
    if (S_ISREG(mode))
        return NxFileKind::File;
    return S_ISDIR(mode) ? NxFileKind::Folder : NxFileKind::Special;
}

qint64 milliseconds(const statx_timestamp &time)
{
    constexpr qint64 perSecond = 1'000;
    constexpr qint64 nanosecondsEach = 1'000'000;
    return qint64(time.tv_sec) * perSecond + time.tv_nsec / nanosecondsEach;
}

/// The escapes of the mount table: "\040" is a blank.
QByteArray unescaped(const QByteArray &text)
{
    constexpr int digits = 3;
    constexpr int octal = 8;
    QByteArray plain;
    for (int i = 0; i < text.size(); ++i) {
        bool isCode = false;
        const int code = text.at(i) == '\\' ? text.mid(i + 1, digits).toInt(&isCode, octal) : 0;
        plain += isCode ? char(code) : text.at(i);
        if (isCode)
            i += digits;
    }
    return plain;
}

} // namespace

NxFileFacts NxFileProbe::look(const QString &path)
{
    NxDiskBan::note("NxFileProbe::look");
    NxFileFacts facts;
    const QByteArray name = path.toUtf8();
    struct statx found = {};
    const unsigned wanted = STATX_BASIC_STATS | STATX_BTIME;
    if (statx(AT_FDCWD, name.constData(), 0, wanted, &found) != 0) {
        const int error = errno;
        facts.kind = kindOfError(error);
        if (facts.kind != NxFileKind::Missing)
            facts.error = QString::fromStdString(std::generic_category().message(error));
        return facts;
    }
    facts.kind = kindOfMode(found.stx_mode);
    facts.size = qint64(found.stx_size);
    facts.modified = milliseconds(found.stx_mtime);
    if (found.stx_mask & STATX_BTIME)
        facts.created = milliseconds(found.stx_btime);
    facts.device = makedev(found.stx_dev_major, found.stx_dev_minor);
    facts.inode = found.stx_ino;
    facts.readable = faccessat(AT_FDCWD, name.constData(), R_OK, AT_EACCESS) == 0;
    return facts;
}

bool NxFileProbe::isLink(const QString &path)
{
    struct stat found = {};
    return lstat(path.toUtf8().constData(), &found) == 0 && S_ISLNK(found.st_mode);
}

NxFileProbe::Canonical NxFileProbe::canonicalPath(const QString &path)
{
    NxDiskBan::note("NxFileProbe::canonicalPath");
    const std::unique_ptr<char, decltype(&std::free)> real(
        realpath(path.toUtf8().constData(), nullptr), &std::free);
    if (!real)
        return {};
    const QByteArray bytes(real.get());
    if (!NxText::isUtf8(bytes))
        return {QString(), NxText::displayBytes(bytes)};
    return {QString::fromUtf8(bytes), QString()};
}

bool NxFileProbe::isTooLong(const QString &path)
{
    return path.toUtf8().size() >= PATH_MAX;
}

QStringList NxFileProbe::volumeRoots()
{
    constexpr int mountPointField = 4;
    QStringList roots(QStringLiteral("/"));
    QFile table(QStringLiteral("/proc/self/mountinfo"));
    if (!table.open(QIODevice::ReadOnly))
        return roots;
    const QList<QByteArray> lines = table.readAll().split('\n');
    for (const QByteArray &line : lines) {
        const QByteArray point = unescaped(line.split(' ').value(mountPointField));
        if (point.startsWith('/'))
            roots += QString::fromUtf8(point);
    }
    return roots;
}
