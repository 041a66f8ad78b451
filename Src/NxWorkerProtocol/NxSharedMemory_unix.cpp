// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWorkerProtocol/NxSharedMemory.h>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr qintptr NoHandle = -1;

NxError systemError(const char *what)
{
    return NxError{QStringLiteral("%1: %2").arg(QLatin1String(what),
                                                QString::fromLocal8Bit(std::strerror(errno)))};
}

uchar *mapped(int descriptor, qint64 bytes)
{
    void *begin = ::mmap(nullptr, size_t(bytes), PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    return begin == MAP_FAILED ? nullptr : static_cast<uchar *>(begin);
}

/// Gives it its size, for good: memory that shrinks would end whoever reads it.
bool setSize(int descriptor, qint64 bytes)
{
    return ::ftruncate(descriptor, bytes) == 0
           && ::fcntl(descriptor, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL) == 0;
}

} // namespace

NxSharedMemory::NxSharedMemory(QString name, qintptr handle, uchar *bytes, qint64 size)
    : m_name(std::move(name)),
      m_handle(handle),
      m_bytes(bytes),
      m_size(size)
{
}

NxSharedMemory::~NxSharedMemory()
{
    ::munmap(m_bytes, size_t(m_size));
    if (m_handle != NoHandle)
        ::close(int(m_handle));
}

NxResult<std::unique_ptr<NxSharedMemory>> NxSharedMemory::create(qint64 bytes)
{
    const int descriptor = ::memfd_create("brevano", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    if (descriptor < 0)
        return systemError("no memory can be shared");
    uchar *begin = setSize(descriptor, bytes) ? mapped(descriptor, bytes) : nullptr;
    if (!begin) {
        const NxError error = systemError("no memory can be shared");
        ::close(descriptor);
        return error;
    }
    return std::unique_ptr<NxSharedMemory>(
        new NxSharedMemory(QString::number(descriptor), descriptor, begin, bytes));
}

NxResult<std::unique_ptr<NxSharedMemory>> NxSharedMemory::attach(const QString &name, qint64 bytes)
{
    bool isNumber = false;
    const int descriptor = name.toInt(&isNumber);
    struct stat status = {};
    if (!isNumber || descriptor <= STDERR_FILENO)
        return NxError{QStringLiteral("%1 is no shared memory").arg(name)};
    if (::fstat(descriptor, &status) != 0)
        return systemError("the shared memory is not there");
    if (!S_ISREG(status.st_mode) || status.st_size < bytes)
        return NxError{QStringLiteral("the shared memory is too small")};
    uchar *begin = mapped(descriptor, bytes);
    if (!begin)
        return systemError("the shared memory cannot be reached");
    ::close(descriptor); // What is mapped stays.
    return std::unique_ptr<NxSharedMemory>(new NxSharedMemory(name, NoHandle, begin, bytes));
}

void NxSharedMemory::passOn() const
{
    ::fcntl(int(m_handle), F_SETFD, 0);
}
