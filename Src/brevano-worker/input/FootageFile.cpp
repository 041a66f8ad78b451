// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/input/FootageFile.h>

#include <QCoreApplication>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

NxFileStamp stampOf(const struct stat &status)
{
    constexpr qint64 perSecond = 1'000;
    constexpr qint64 nanosecondsPerMillisecond = 1'000'000;
    NxFileStamp stamp;
    stamp.size = status.st_size;
    stamp.modified = qint64(status.st_mtim.tv_sec) * perSecond
                     + status.st_mtim.tv_nsec / nanosecondsPerMillisecond;
    return stamp;
}

QString translated(const char *text)
{
    return QCoreApplication::translate("FootageFile", text);
}

QString reasonOf(int error)
{
    switch (error) {
    case ENOENT:
        return translated("The file is missing.");
    case EACCES:
    case EPERM:
        return translated("You have no permission to read the file.");
    default:
        return translated("The file cannot be opened: %1.")
            .arg(QString::fromLocal8Bit(std::strerror(error)));
    }
}

} // namespace

NxResult<std::unique_ptr<FootageFile>> FootageFile::open(const QByteArray &path)
{
    // Without O_NONBLOCK a pipe that took a file's place would be waited for without end.
    const int descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0)
        return NxError{reasonOf(errno)};
    struct stat status = {};
    const bool isKnown = ::fstat(descriptor, &status) == 0;
    std::unique_ptr<FootageFile> file(new FootageFile(descriptor, path, stampOf(status)));
    if (!isKnown)
        return NxError{reasonOf(errno)};
    if (!S_ISREG(status.st_mode))
        return NxError{translated("This is not a file.")};
    if (status.st_size == 0)
        return NxError{translated("The file is empty.")};
    return file;
}

FootageFile::FootageFile(int descriptor, QByteArray path, NxFileStamp stamp)
    : m_descriptor(descriptor),
      m_path(std::move(path)),
      m_stamp(stamp)
{
}

FootageFile::~FootageFile()
{
    m_device.close();
    ::close(m_descriptor);
}

bool FootageFile::hasChanged() const
{
    struct stat open = {};
    struct stat named = {};
    if (::fstat(m_descriptor, &open) != 0 || ::stat(m_path.constData(), &named) != 0)
        return true;
    const bool isSame = open.st_dev == named.st_dev && open.st_ino == named.st_ino;
    return !isSame || stampOf(open) != m_stamp;
}

qint64 FootageFile::readAt(qint64 place, char *bytes, qint64 most) const
{
    qint64 done = 0;
    while (done < most) {
        const ssize_t got = ::pread(m_descriptor, bytes + done, size_t(most - done), place + done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return -1;
        if (got == 0)
            break;
        done += got;
    }
    return done;
}

QByteArray FootageFile::openName() const
{
    return "/proc/self/fd/" + QByteArray::number(m_descriptor);
}

QIODevice *FootageFile::device()
{
    if (!m_device.isOpen() && !m_device.open(m_descriptor, QIODevice::ReadOnly))
        return nullptr;
    m_device.seek(0);
    return &m_device;
}
