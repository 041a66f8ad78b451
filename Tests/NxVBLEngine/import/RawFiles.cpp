// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "RawFiles.h"

#include <QtGlobal>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

void need(bool done, const QByteArray &what)
{
    if (!done)
        qFatal("%s: %s", what.constData(), std::strerror(errno));
}

void writeAt(int folder, const QByteArray &name)
{
    const int file = openat(folder, name.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
    need(file >= 0 && ::write(file, "x", 1) == 1 && close(file) == 0, name);
}

int openFolder(const QString &path)
{
    const int folder = open(path.toUtf8().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    need(folder >= 0, path.toUtf8());
    return folder;
}

} // namespace

void RawFiles::write(const QString &folder, const QByteArray &name)
{
    const int handle = openFolder(folder);
    writeAt(handle, name);
    close(handle);
}

void RawFiles::makeFolder(const QString &folder, const QByteArray &name)
{
    const int handle = openFolder(folder);
    need(mkdirat(handle, name.constData(), 0755) == 0, name);
    close(handle);
}

void RawFiles::makePipe(const QString &path)
{
    need(mkfifo(path.toUtf8().constData(), 0644) == 0, path.toUtf8());
}

void RawFiles::makeSocket(const QString &path)
{
    const int handle = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray name = path.toUtf8();
    need(handle >= 0 && name.size() < int(sizeof(address.sun_path)), name);
    std::copy(name.begin(), name.end(), address.sun_path);
    need(bind(handle, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0, name);
    close(handle);
}

void RawFiles::link(const QString &target, const QString &path)
{
    need(symlink(target.toUtf8().constData(), path.toUtf8().constData()) == 0, path.toUtf8());
}

void RawFiles::hardLink(const QString &existing, const QString &path)
{
    need(::link(existing.toUtf8().constData(), path.toUtf8().constData()) == 0, path.toUtf8());
}

void RawFiles::setMode(const QString &path, unsigned mode)
{
    need(chmod(path.toUtf8().constData(), mode) == 0, path.toUtf8());
}

QString RawFiles::writeDeep(const QString &folder, int bytes, const QByteArray &fileName)
{
    constexpr int longestName = 200;
    int handle = openFolder(folder);
    QByteArray path = folder.toUtf8();
    while (path.size() + 1 + fileName.size() < bytes) {
        const int missing = bytes - path.size() - fileName.size() - 2;
        const QByteArray name(std::clamp(missing, 1, longestName), 'd');
        need(mkdirat(handle, name.constData(), 0755) == 0, name);
        const int below = openat(handle, name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        need(below >= 0, name);
        close(handle);
        handle = below;
        path += '/' + name;
    }
    writeAt(handle, fileName);
    close(handle);
    return QString::fromUtf8(path + '/' + fileName);
}
