// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxDoorbell.h>
#include <NxCore/NxQueue.h>
#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/store/NxProjectStore.h>

#include <chrono>
#include <deque>
#include <future>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <variant>

class NxProjectBackupJob;
class NxProjectCopy;
class NxProjectSource;
class NxProjectWriter;
class NxSqliteDatabase;

/// What the store thread tells the thread of the store's owner.
struct NxStoreMailbox
{
    using Letter = std::function<void(NxStoreMailbox &)>;

    NxQueue<Letter> letters;
    NxProjectStore::Failed failed; ///< The owner's thread alone touches it.
};

/// What the store thread is told once, at its beginning.
struct NxStoreThreadSetup
{
    QString path;
    NxProjectStoreOptions options;
    QString projectFolder; ///< Where the project stands now.
    bool folderChanged = false; ///< Whether the file says something else.
    std::shared_ptr<NxStoreMailbox> mailbox;
    NxDoorbellRope bell; ///< Rung after every letter.
};

/// The thread that writes one project file.
///
/// It owns the connection. Batches gather in a transaction that is open for at most 200 ms, or
/// until a commit is asked. Copies and backups go on a few milliseconds at a time, whenever no
/// transaction is open.
class NxStoreThread
{
public:
    explicit NxStoreThread(NxStoreThreadSetup setup);
    /// Ends as finish() does.
    ~NxStoreThread();
    NxStoreThread(const NxStoreThread &) = delete;
    NxStoreThread &operator=(const NxStoreThread &) = delete;

    /// Opens the file for writing; with `backup` a backup is kept first.
    void begin(bool backup);
    void write(NxStoreBatch batch);
    void commit(NxProjectStore::Done done, bool durably);
    /// Copies the file as it is with all that was queued before.
    void copy(const QString &target, NxProjectStore::Done done);
    /// Copies a file that this thread does not write.
    void copyFrom(std::unique_ptr<NxProjectSource> source, const QString &target,
                  NxProjectStore::Done done);
    /// Writes nothing from now on; every commit answers this.
    void refuseWrites(const NxError &error);

    /// Calls `use(database)` on the calling thread, when all that was queued before is written;
    /// nothing is written meanwhile. Null when the file is not open.
    void useDatabase(const std::function<void(NxSqliteDatabase *)> &use);

    /// Writes what is queued, ends what is being copied, and closes the file. Answers why
    /// something could not be written.
    [[nodiscard]] NxResult<void> finish();

private:
    struct Begin
    {
        bool backup = false;
    };
    struct Commit
    {
        NxProjectStore::Done done;
        bool durably = false;
    };
    struct Copy
    {
        QString target;
        NxProjectStore::Done done;
        std::shared_ptr<NxProjectSource> source; ///< Null: the file that is written.
    };
    struct Refuse
    {
        NxError error;
    };
    struct Meet
    {
        std::shared_ptr<std::promise<void>> promise;
    };
    using Task = std::variant<NxStoreBatch, Begin, Commit, Copy, Refuse, Meet>;
    using Clock = std::chrono::steady_clock;

    void run();
    [[nodiscard]] bool isFinished() const;
    [[nodiscard]] std::chrono::milliseconds patience() const;

    void handle(NxStoreBatch &batch);
    void handle(Begin &task);
    void handle(Commit &task);
    void handle(Copy &task);
    void handle(Refuse &task);
    void handle(Meet &task);

    [[nodiscard]] bool ensureOpen();
    [[nodiscard]] bool setUpConnection();
    [[nodiscard]] bool chooseJournal();
    [[nodiscard]] bool ensureTransaction();
    void commitNow();
    [[nodiscard]] NxResult<void> foldLogIn();
    void closeDatabase();
    void fail(const NxError &error);
    void answer(const NxProjectStore::Done &done, const NxResult<void> &result);
    [[nodiscard]] NxResult<void> state() const;

    [[nodiscard]] bool hasJobs() const { return m_backup || !m_copies.empty(); }
    void stepJobs();
    void stepBackup();
    void stepCopy();
    void endCopy(const NxResult<void> &result);
    [[nodiscard]] qint64 now() const;

    NxStoreThreadSetup m_setup;
    NxQueue<Task> m_tasks;
    std::mutex m_databaseMutex; ///< Held while the thread, or useDatabase(), uses the file.

    // Of the thread, or of who holds the mutex.
    std::unique_ptr<NxSqliteDatabase> m_database;
    std::unique_ptr<NxProjectWriter> m_writer; // Its statements end before the database.
    std::unique_ptr<NxProjectBackupJob> m_backup;
    std::deque<Copy> m_copies; ///< The first is under way.
    std::unique_ptr<NxProjectCopy> m_copy;
    std::optional<NxError> m_failure;
    Clock::time_point m_due; ///< When the open transaction has to end.
    bool m_inTransaction = false;
    bool m_hasLog = false;

    std::thread m_thread; ///< Begins last.
};
