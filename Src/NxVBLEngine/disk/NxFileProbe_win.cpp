// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/disk/NxFileProbe.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <qt_windows.h>

namespace {

/// Above it only programs that ask for it can open a file.
constexpr int LongestPath = 32'000;

qint64 milliseconds(const FILETIME &time)
{
    constexpr qint64 ticksEach = 10'000; // 100 ns
    constexpr qint64 from1601To1970 = 11'644'473'600'000;
    const qint64 ticks = (qint64(time.dwHighDateTime) << 32) | time.dwLowDateTime;
    return ticks == 0 ? NxNoTime : ticks / ticksEach - from1601To1970;
}

NxFileKind kindOfError(DWORD error)
{
    const bool missing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND
        || error == ERROR_INVALID_NAME || error == ERROR_INVALID_DRIVE
        || error == ERROR_NOT_READY || error == ERROR_BAD_NETPATH;
    if (missing)
        return NxFileKind::Missing;
    return error == ERROR_ACCESS_DENIED ? NxFileKind::Denied : NxFileKind::Failed;
}

QString systemPath(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    if (native.size() < MAX_PATH - 12 || native.startsWith(QLatin1String("\\\\")))
        return native;
    return QLatin1String("\\\\?\\") + native;
}

} // namespace

NxFileFacts NxFileProbe::look(const QString &path)
{
    NxFileFacts facts;
    WIN32_FILE_ATTRIBUTE_DATA found = {};
    const QString name = isLink(path) ? canonicalPath(path).path : path;
    const std::wstring wide = systemPath(name).toStdWString();
    if (name.isEmpty())
        return facts;
    if (!GetFileAttributesExW(wide.c_str(), GetFileExInfoStandard, &found)) {
        const DWORD error = GetLastError();
        facts.kind = kindOfError(error);
        if (facts.kind != NxFileKind::Missing)
            facts.error = qt_error_string(int(error));
        return facts;
    }
    const DWORD attributes = found.dwFileAttributes;
    if (attributes & FILE_ATTRIBUTE_DEVICE)
        facts.kind = NxFileKind::Special;
    else
        facts.kind = attributes & FILE_ATTRIBUTE_DIRECTORY ? NxFileKind::Folder : NxFileKind::File;
    facts.size = (qint64(found.nFileSizeHigh) << 32) | found.nFileSizeLow;
    facts.created = milliseconds(found.ftCreationTime);
    facts.modified = milliseconds(found.ftLastWriteTime);
    facts.readable = QFileInfo(name).isReadable();
    return facts;
}

bool NxFileProbe::isLink(const QString &path)
{
    const DWORD attributes = GetFileAttributesW(systemPath(path).toStdWString().c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT);
}

NxFileProbe::Canonical NxFileProbe::canonicalPath(const QString &path)
{
    return {QFileInfo(path).canonicalFilePath(), QString()};
}

bool NxFileProbe::isTooLong(const QString &path)
{
    return path.size() >= LongestPath;
}

QStringList NxFileProbe::volumeRoots()
{
    QStringList roots;
    const DWORD drives = GetLogicalDrives();
    for (int letter = 0; letter < 26; ++letter) {
        if (drives & (1u << letter))
            roots += QLatin1Char(char('A' + letter)) + QLatin1String(":/");
    }
    return roots;
}
