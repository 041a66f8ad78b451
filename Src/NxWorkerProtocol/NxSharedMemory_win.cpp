// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWorkerProtocol/NxSharedMemory.h>

#include <QUuid>

#include <utility>

#include <windows.h>

namespace {

constexpr int BitsOfHalf = 32;

NxError systemError(const char *what)
{
    return NxError{QStringLiteral("%1: error %2").arg(QLatin1String(what)).arg(GetLastError())};
}

const wchar_t *wide(const QString &name)
{
    return reinterpret_cast<const wchar_t *>(name.utf16());
}

uchar *mapped(HANDLE mapping, qint64 bytes)
{
    return static_cast<uchar *>(
        MapViewOfFile(mapping, FILE_MAP_READ | FILE_MAP_WRITE, 0, 0, SIZE_T(bytes)));
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
    UnmapViewOfFile(m_bytes);
    CloseHandle(reinterpret_cast<HANDLE>(m_handle));
}

NxResult<std::unique_ptr<NxSharedMemory>> NxSharedMemory::create(qint64 bytes)
{
    // Nobody can guess the name, and it holds for the user's own session alone.
    const QString name = QStringLiteral("Local\\brevano-") + QUuid::createUuid().toString();
    HANDLE mapping =
        CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE,
                           DWORD(quint64(bytes) >> BitsOfHalf), DWORD(bytes), wide(name));
    uchar *begin = mapping ? mapped(mapping, bytes) : nullptr;
    if (!begin) {
        const NxError error = systemError("no memory can be shared");
        if (mapping)
            CloseHandle(mapping);
        return error;
    }
    return std::unique_ptr<NxSharedMemory>(
        new NxSharedMemory(name, reinterpret_cast<qintptr>(mapping), begin, bytes));
}

NxResult<std::unique_ptr<NxSharedMemory>> NxSharedMemory::attach(const QString &name, qint64 bytes)
{
    HANDLE mapping = OpenFileMappingW(FILE_MAP_READ | FILE_MAP_WRITE, FALSE, wide(name));
    uchar *begin = mapping ? mapped(mapping, bytes) : nullptr; // Fails for one that is smaller.
    if (!begin) {
        const NxError error = systemError("the shared memory cannot be reached");
        if (mapping)
            CloseHandle(mapping);
        return error;
    }
    return std::unique_ptr<NxSharedMemory>(
        new NxSharedMemory(name, reinterpret_cast<qintptr>(mapping), begin, bytes));
}

void NxSharedMemory::passOn() const {}
