// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/records/NxProjectContents.h>
#include <NxVBLEngine/records/NxStoreBatch.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

struct NxProjectStoreOptions
{
    bool readOnly = false;
    QString backupFolder; ///< Where backups of older projects go; empty: none are made.
    const char *vfs = nullptr; ///< SQLite file layer to use; null: the system's.
    /// The time in ms UTC, asked on any thread; empty: the system's clock.
    std::function<qint64()> now;
    /// Type of the file system that the project lies on ("ext4", "nfs4"); empty: looked up.
    QByteArray fileSystem;
};

/// One project file and the thread that writes it.
///
/// Made, used and destroyed on one thread, the GUI thread. Opening, reading and closing happen
/// there; every batch is queued to the store thread and written within 200 ms, batches in order,
/// each whole or not at all. After a failed write (disk full, drive gone) nothing further is
/// written: the failure handler is called once, with a sentence that names the file and the cause,
/// and every later commit answers it.
///
/// Nothing on the drive changes before the first write, apart from the lock beside the project:
/// a file that is refused, damaged or only read stays as it is, byte for byte. Handlers are called
/// from the event loop or from within close(); they may call the store, and destroy it.
class NXVBLENGINE_TEST_EXPORT NxProjectStore
{
public:
    using Done = std::function<void(const NxResult<void> &)>;
    using Failed = std::function<void(const NxError &)>;

    /// Makes a new project file; refused where a file stands.
    [[nodiscard]] static NxResult<std::unique_ptr<NxProjectStore>> create(
        const QString &path, const NxProjectStoreOptions &options);
    /// Opens a project file. To write it the lock beside it is taken; when another process or
    /// window holds it, or the file or its folder cannot be written, the store is opened
    /// read-only and readOnlyReason() says why.
    [[nodiscard]] static NxResult<std::unique_ptr<NxProjectStore>> open(
        const QString &path, const NxProjectStoreOptions &options);
    /// Closes; an error of that is logged.
    ~NxProjectStore();
    NxProjectStore(const NxProjectStore &) = delete;
    NxProjectStore &operator=(const NxProjectStore &) = delete;

    /// Absolute.
    [[nodiscard]] QString path() const;
    [[nodiscard]] bool isReadOnly() const;
    /// A sentence for the user that names the file; empty when the store can be written.
    [[nodiscard]] QString readOnlyReason() const;

    /// Reads everything that was written and queued so far. A damaged file gives what can be read
    /// and says so in `damage`; the store is read-only from then on. After the first good reading
    /// of a project that is older than a day a backup is kept, in the store thread.
    [[nodiscard]] NxResult<NxProjectContents> load();

    /// Queues a batch; empty ones are ignored. Ignored by a read-only store.
    ///
    /// StepBegin drops the steps that are not done and makes the new one the last done; after a
    /// StepDrop at most as many steps are done as are left; a StepPosition after it has the last
    /// word. Apply of MediaRelink empties the row's relative path until Facts give a new one.
    /// Applying a change to what the file does not hold is a failed write; Facts about such
    /// media are ignored.
    void write(NxStoreBatch batch);
    /// Asks for everything queued so far to be committed; returns at once. `done` runs on the GUI
    /// thread, in the order of the calls; it may be empty.
    void commit(Done done);
    /// As commit(), and the data has reached the disk itself, power cut or not.
    void commitDurably(Done done);
    /// Writes what is queued so far, and everything before, to a new file. Refused where a file
    /// stands. Works for a read-only store, too, but not for a damaged file.
    void saveCopy(const QString &path, Done done);
    void setFailureHandler(Failed failed);

    /// Checks the file page by page and its rows against each other; empty when all is well.
    [[nodiscard]] QStringList integrityProblems();

    /// Writes what is queued, ends copies and backups that are under way, folds the log in and
    /// gives the lock back. The outstanding `done` functions run before it returns. Answers why
    /// something could not be written. Afterwards the store is read-only; closing again does
    /// nothing.
    [[nodiscard]] NxResult<void> close();

private:
    class Private;
    explicit NxProjectStore(std::unique_ptr<Private> d);
    const std::unique_ptr<Private> d;
};
