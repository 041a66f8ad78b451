// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxDoorbell.h>
#include <NxVBLEngine/store/NxProjectLock.h>
#include <NxVBLEngine/store/NxProjectReader.h>
#include <NxVBLEngine/store/NxProjectSource.h>
#include <NxVBLEngine/store/NxProjectStore.h>
#include <NxVBLEngine/store/NxSqliteDatabase.h>
#include <NxVBLEngine/store/NxStoreThread.h>

/// Private to the store: the lock, the way the file is read, and the thread that writes it. While
/// the thread has the file open nothing else here has.
class NxProjectStore::Private
{
public:
    Private(const QString &projectPath, NxProjectStoreOptions storeOptions);

    /// Takes the lock, or notes why the file cannot be written.
    void takeRight();
    void forbidWriting(const QString &sentence);
    [[nodiscard]] bool isReadOnly() const { return !readOnlyReason.isEmpty(); }

    [[nodiscard]] NxResult<void> openSource();
    /// Reads the file in whatever way it is open, or opens it.
    [[nodiscard]] NxResult<NxProjectContents> readFrom(NxSqliteDatabase *openDatabase);
    void useFile(const std::function<void(NxSqliteDatabase *openDatabase)> &use);
    void noteDamage(const QString &sentence);

    [[nodiscard]] NxStoreThread *startedThread();
    void beginWriting();
    void commit(Done done, bool durably);
    void answer(Done done, const NxResult<void> &result);
    [[nodiscard]] qint64 now() const;

    const QString path;
    const NxProjectStoreOptions options;
    const std::shared_ptr<NxStoreMailbox> mailbox;
    NxProjectLock lock;
    NxProjectSource::Writer writer = NxProjectSource::Writer::None;
    QString readOnlyReason;
    QString damage; ///< A sentence, once damage was seen.
    QString fileSaysFolder; ///< The project's folder by what was read.
    bool isOld = false; ///< More than a day, by what was read.
    bool hasBegun = false; ///< Whether the thread has the file.
    bool isClosed = false;
    std::unique_ptr<NxProjectSource> source;
    NxDoorbell bell;
    std::unique_ptr<NxStoreThread> thread; // Ends before the bell it rings.
};
