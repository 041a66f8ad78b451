// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFullDiskVfs.h"

#include <sqlite3.h>

#include <atomic>
#include <mutex>

struct NxFullDiskVfsState
{
    sqlite3_vfs layer{};
    sqlite3_vfs *system = nullptr;
    QByteArray name;
    std::atomic<int> fullAt{0};
    std::atomic<bool> forGood{true};
    std::atomic<int> writes{0};
    std::atomic<int> refused{0};
    std::atomic<int> syncs{0};
    std::mutex gate; // Of every write.

    [[nodiscard]] bool hasRoom()
    {
        const int number = ++writes;
        const int full = fullAt;
        const bool room = full == 0 || number < full || (number > full && !forGood);
        if (!room)
            ++refused;
        return room;
    }
};

namespace {

/// Our file; the system's own stands right behind it in memory.
struct File
{
    sqlite3_file base;
    NxFullDiskVfsState *disk;
};

NxFullDiskVfsState *diskOf(sqlite3_vfs *layer)
{
    return static_cast<NxFullDiskVfsState *>(layer->pAppData);
}

NxFullDiskVfsState *diskOf(sqlite3_file *file)
{
    return reinterpret_cast<File *>(file)->disk;
}

sqlite3_file *real(sqlite3_file *file)
{
    return reinterpret_cast<sqlite3_file *>(reinterpret_cast<File *>(file) + 1);
}

const sqlite3_io_methods *realMethods(sqlite3_file *file)
{
    return real(file)->pMethods;
}

int closeFile(sqlite3_file *file)
{
    return realMethods(file)->xClose(real(file));
}

int readFile(sqlite3_file *file, void *to, int size, sqlite3_int64 offset)
{
    return realMethods(file)->xRead(real(file), to, size, offset);
}

int writeFile(sqlite3_file *file, const void *from, int size, sqlite3_int64 offset)
{
    const std::lock_guard<std::mutex> passing(diskOf(file)->gate);
    if (!diskOf(file)->hasRoom())
        return SQLITE_FULL;
    return realMethods(file)->xWrite(real(file), from, size, offset);
}

int truncateFile(sqlite3_file *file, sqlite3_int64 size)
{
    return realMethods(file)->xTruncate(real(file), size);
}

int syncFile(sqlite3_file *file, int /*flags*/)
{
    // Nobody pulls the plug in a test, and real disks may take their time.
    ++diskOf(file)->syncs;
    return SQLITE_OK;
}

int fileSize(sqlite3_file *file, sqlite3_int64 *size)
{
    return realMethods(file)->xFileSize(real(file), size);
}

int lockFile(sqlite3_file *file, int level)
{
    return realMethods(file)->xLock(real(file), level);
}

int unlockFile(sqlite3_file *file, int level)
{
    return realMethods(file)->xUnlock(real(file), level);
}

int checkReserved(sqlite3_file *file, int *answer)
{
    return realMethods(file)->xCheckReservedLock(real(file), answer);
}

int controlFile(sqlite3_file *file, int operation, void *argument)
{
    return realMethods(file)->xFileControl(real(file), operation, argument);
}

int sectorSize(sqlite3_file *file)
{
    return realMethods(file)->xSectorSize(real(file));
}

int characteristics(sqlite3_file *file)
{
    return realMethods(file)->xDeviceCharacteristics(real(file));
}

int mapShared(sqlite3_file *file, int page, int size, int extend, void volatile **memory)
{
    return realMethods(file)->xShmMap(real(file), page, size, extend, memory);
}

int lockShared(sqlite3_file *file, int offset, int count, int flags)
{
    return realMethods(file)->xShmLock(real(file), offset, count, flags);
}

void shareBarrier(sqlite3_file *file)
{
    realMethods(file)->xShmBarrier(real(file));
}

int unmapShared(sqlite3_file *file, int deleteIt)
{
    return realMethods(file)->xShmUnmap(real(file), deleteIt);
}

constexpr int WithSharedMemory = 2; // Version of the methods: no memory mapping of the file.

const sqlite3_io_methods Methods = {
    WithSharedMemory, closeFile,   readFile,        writeFile,  truncateFile,
    syncFile,         fileSize,    lockFile,        unlockFile, checkReserved,
    controlFile,      sectorSize,  characteristics, mapShared,  lockShared,
    shareBarrier,     unmapShared, nullptr,         nullptr,
};

int openFile(sqlite3_vfs *layer, const char *path, sqlite3_file *file, int flags, int *outFlags)
{
    NxFullDiskVfsState *const disk = diskOf(layer);
    reinterpret_cast<File *>(file)->disk = disk;
    file->pMethods = nullptr;
    const int code = disk->system->xOpen(disk->system, path, real(file), flags, outFlags);
    if (realMethods(file))
        file->pMethods = &Methods;
    return code;
}

int deleteFile(sqlite3_vfs *layer, const char *path, int syncFolder)
{
    sqlite3_vfs *const system = diskOf(layer)->system;
    return system->xDelete(system, path, syncFolder);
}

int accessFile(sqlite3_vfs *layer, const char *path, int flags, int *answer)
{
    sqlite3_vfs *const system = diskOf(layer)->system;
    return system->xAccess(system, path, flags, answer);
}

int fullPath(sqlite3_vfs *layer, const char *path, int size, char *full)
{
    sqlite3_vfs *const system = diskOf(layer)->system;
    return system->xFullPathname(system, path, size, full);
}

int randomness(sqlite3_vfs *layer, int size, char *bytes)
{
    sqlite3_vfs *const system = diskOf(layer)->system;
    return system->xRandomness(system, size, bytes);
}

int sleepFor(sqlite3_vfs *layer, int microseconds)
{
    sqlite3_vfs *const system = diskOf(layer)->system;
    return system->xSleep(system, microseconds);
}

int currentTime(sqlite3_vfs *layer, double *days)
{
    sqlite3_vfs *const system = diskOf(layer)->system;
    return system->xCurrentTime(system, days);
}

int lastError(sqlite3_vfs *layer, int size, char *text)
{
    sqlite3_vfs *const system = diskOf(layer)->system;
    return system->xGetLastError(system, size, text);
}

int currentTimeMsec(sqlite3_vfs *layer, sqlite3_int64 *msec)
{
    sqlite3_vfs *const system = diskOf(layer)->system;
    return system->xCurrentTimeInt64(system, msec);
}

QByteArray nextName()
{
    static std::atomic<int> made{0};
    return "full-disk-" + QByteArray::number(++made);
}

} // namespace

NxFullDiskVfs::NxFullDiskVfs() : d(std::make_unique<NxFullDiskVfsState>())
{
    d->system = sqlite3_vfs_find(nullptr);
    d->name = nextName();
    d->layer = *d->system;
    d->layer.iVersion = 2; // Time in milliseconds; no system calls to replace.
    d->layer.szOsFile = int(sizeof(File)) + d->system->szOsFile;
    d->layer.pNext = nullptr;
    d->layer.zName = d->name.constData();
    d->layer.pAppData = d.get();
    d->layer.xOpen = openFile;
    d->layer.xDelete = deleteFile;
    d->layer.xAccess = accessFile;
    d->layer.xFullPathname = fullPath;
    d->layer.xDlOpen = nullptr;
    d->layer.xDlError = nullptr;
    d->layer.xDlSym = nullptr;
    d->layer.xDlClose = nullptr;
    d->layer.xRandomness = randomness;
    d->layer.xSleep = sleepFor;
    d->layer.xCurrentTime = currentTime;
    d->layer.xGetLastError = lastError;
    d->layer.xCurrentTimeInt64 = currentTimeMsec;
    sqlite3_vfs_register(&d->layer, 0);
}

NxFullDiskVfs::~NxFullDiskVfs()
{
    sqlite3_vfs_unregister(&d->layer);
}

const char *NxFullDiskVfs::name() const
{
    return d->name.constData();
}

void NxFullDiskVfs::fillAtWrite(int n, Then then)
{
    d->forGood = then == Then::FullForGood;
    d->fullAt = n;
    d->writes = 0;
    d->refused = 0;
}

void NxFullDiskVfs::hold()
{
    d->gate.lock();
}

void NxFullDiskVfs::letGo()
{
    d->gate.unlock();
}

int NxFullDiskVfs::writes() const
{
    return d->writes;
}

int NxFullDiskVfs::refusedWrites() const
{
    return d->refused;
}

int NxFullDiskVfs::syncs() const
{
    return d->syncs;
}
