// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxStoreThread.h>

#include <NxCore/NxLog.h>
#include <NxVBLEngine/store/NxFileSystemKind.h>
#include <NxVBLEngine/store/NxProjectBackupJob.h>
#include <NxVBLEngine/store/NxProjectCopy.h>
#include <NxVBLEngine/store/NxProjectSchema.h>
#include <NxVBLEngine/store/NxProjectSource.h>
#include <NxVBLEngine/store/NxProjectWriter.h>
#include <NxVBLEngine/store/NxSqliteDatabase.h>

#include <QDateTime>
#include <QFileInfo>
#include <QUuid>

#include <algorithm>

namespace {

/// The most that a kill or a crash can cost, in ms of work.
constexpr std::chrono::milliseconds LongestTransaction{200};
constexpr std::chrono::milliseconds Forever = std::chrono::hours(1);

QString partBeside(const QString &target)
{
    const QString unique = QUuid::createUuid().toString(QUuid::Id128).left(12);
    return QFileInfo(target).path() + QLatin1String("/.brevano-copy-") + unique;
}

} // namespace

NxStoreThread::NxStoreThread(NxStoreThreadSetup setup)
    : m_setup(std::move(setup)),
      m_thread([this] { run(); })
{
}

NxStoreThread::~NxStoreThread()
{
    static_cast<void>(finish());
}

void NxStoreThread::begin(bool backup)
{
    m_tasks.push(Begin{backup});
}

void NxStoreThread::write(NxStoreBatch batch)
{
    m_tasks.push(std::move(batch));
}

void NxStoreThread::commit(NxProjectStore::Done done, bool durably)
{
    m_tasks.push(Commit{std::move(done), durably});
}

void NxStoreThread::copy(const QString &target, NxProjectStore::Done done)
{
    m_tasks.push(Copy{target, std::move(done), nullptr});
}

void NxStoreThread::copyFrom(std::unique_ptr<NxProjectSource> source, const QString &target,
                             NxProjectStore::Done done)
{
    m_tasks.push(Copy{target, std::move(done), std::move(source)});
}

void NxStoreThread::refuseWrites(const NxError &error)
{
    m_tasks.push(Refuse{error});
}

void NxStoreThread::useDatabase(const std::function<void(NxSqliteDatabase *)> &use)
{
    const auto promise = std::make_shared<std::promise<void>>();
    std::future<void> met = promise->get_future();
    if (m_tasks.push(Meet{promise}))
        met.wait();
    const std::lock_guard<std::mutex> lock(m_databaseMutex);
    use(m_database.get());
}

NxResult<void> NxStoreThread::finish()
{
    m_tasks.close();
    if (m_thread.joinable())
        m_thread.join();
    return state();
}

void NxStoreThread::run()
{
    while (!isFinished()) {
        std::optional<Task> task = m_tasks.waitPop(patience());
        const std::lock_guard<std::mutex> lock(m_databaseMutex);
        if (task)
            std::visit([this](auto &kind) { handle(kind); }, *task);
        if (m_inTransaction && (Clock::now() >= m_due || (!task && hasJobs())))
            commitNow();
        if (!m_inTransaction)
            stepJobs();
    }
    const std::lock_guard<std::mutex> lock(m_databaseMutex);
    commitNow();
    closeDatabase();
}

bool NxStoreThread::isFinished() const
{
    return m_tasks.isClosed() && m_tasks.size() == 0 && !hasJobs();
}

std::chrono::milliseconds NxStoreThread::patience() const
{
    using std::chrono::milliseconds;
    if (hasJobs())
        return milliseconds(0);
    if (!m_inTransaction)
        return Forever;
    // Rounded up, so that the transaction is due when the waiting ends.
    const auto left = std::chrono::ceil<milliseconds>(m_due - Clock::now());
    return std::max(left, milliseconds(0));
}

void NxStoreThread::handle(NxStoreBatch &batch)
{
    if (!ensureTransaction())
        return;
    if (const NxResult<void> written = m_writer->write(batch); !written)
        fail(written.error());
}

void NxStoreThread::handle(Begin &task)
{
    if (task.backup) {
        m_backup = std::make_unique<NxProjectBackupJob>(QFileInfo(m_setup.path).canonicalFilePath(),
                                                        m_setup.options.backupFolder, now(),
                                                        m_setup.options.vfs);
    } else {
        static_cast<void>(ensureOpen()); // A failure is told by fail().
    }
}

void NxStoreThread::handle(Commit &task)
{
    commitNow();
    NxResult<void> result = state();
    if (result && task.durably)
        result = foldLogIn();
    answer(task.done, result);
}

void NxStoreThread::handle(Copy &task)
{
    commitNow();
    const bool isPossible = task.source || ensureOpen();
    if (isPossible && (task.source || !m_failure))
        m_copies.push_back(std::move(task));
    else
        answer(task.done, state());
}

void NxStoreThread::handle(Refuse &task)
{
    if (m_inTransaction)
        static_cast<void>(m_database->execute("ROLLBACK"));
    m_inTransaction = false;
    if (m_database)
        m_database->keepLogOnClose();
    m_failure = task.error;
}

void NxStoreThread::handle(Meet &task)
{
    task.promise->set_value();
}

bool NxStoreThread::ensureOpen()
{
    if (m_failure)
        return false;
    if (m_database)
        return true;
    NxResult<std::unique_ptr<NxSqliteDatabase>> database = NxSqliteDatabase::open(
        m_setup.path, NxSqliteDatabase::Access::ReadWrite, m_setup.options.vfs);
    if (!database) {
        fail(database.error());
        return false;
    }
    m_database = database.take();
    if (!setUpConnection()) {
        fail(m_database->failure(NxStoreDeed::Write));
        return false;
    }
    const NxResult<void> current =
        NxProjectSchema::migrate(m_database.get(), NxProjectSchema::steps());
    if (!current) {
        fail(current.error());
        return false;
    }
    m_writer = std::make_unique<NxProjectWriter>(m_database.get());
    return true;
}

bool NxStoreThread::setUpConnection()
{
    // No memory mapping: a drive that vanishes would take the program with it.
    return chooseJournal() && m_database->execute("PRAGMA cache_size = -32768")
           && m_database->execute("PRAGMA wal_autocheckpoint = 4000")
           && m_database->execute("PRAGMA secure_delete = OFF");
}

bool NxStoreThread::chooseJournal()
{
    const QByteArray &told = m_setup.options.fileSystem;
    const QByteArray type = told.isEmpty() ? NxFileSystemKind::typeOf(m_setup.path) : told;
    const bool isNetwork = NxFileSystemKind::isNetwork(type);
    // Leaving a log behind that another computer's program left needs no shared index only when
    // the file is all ours for that moment.
    if (isNetwork && !m_database->execute("PRAGMA locking_mode = EXCLUSIVE"))
        return false;
    NxSqliteStatement mode = m_database->prepare(isNetwork ? "PRAGMA journal_mode = DELETE"
                                                           : "PRAGMA journal_mode = WAL");
    if (mode.step() != NxSqliteStatement::Step::Row)
        return false;
    m_hasLog = mode.text(0) == QLatin1String("wal");
    mode.reset();
    if (isNetwork && !m_database->execute("PRAGMA locking_mode = NORMAL; SELECT 1 FROM meta"))
        return false;
    return m_database->execute(m_hasLog ? "PRAGMA synchronous = NORMAL"
                                        : "PRAGMA synchronous = FULL");
}

bool NxStoreThread::ensureTransaction()
{
    if (!ensureOpen())
        return false;
    if (m_inTransaction)
        return true;
    if (!m_database->execute("BEGIN IMMEDIATE")) {
        fail(m_database->failure(NxStoreDeed::Write));
        return false;
    }
    m_inTransaction = true;
    m_due = Clock::now() + LongestTransaction;
    if (!m_setup.folderChanged)
        return true;
    const NxResult<void> noted = m_writer->writeProjectFolder(m_setup.projectFolder);
    if (!noted)
        fail(noted.error());
    return bool(noted);
}

void NxStoreThread::commitNow()
{
    if (!m_inTransaction)
        return;
    if (!m_database->execute("COMMIT")) {
        fail(m_database->failure(NxStoreDeed::Write));
        return;
    }
    m_inTransaction = false;
    m_setup.folderChanged = false;
}

NxResult<void> NxStoreThread::foldLogIn()
{
    if (!m_database || !m_hasLog || m_database->foldLogIn())
        return {};
    return m_database->failure(NxStoreDeed::Write);
}

void NxStoreThread::closeDatabase()
{
    m_writer.reset();
    if (m_database && m_hasLog && !m_failure)
        m_database->truncateLog();
    m_database.reset();
}

void NxStoreThread::fail(const NxError &error)
{
    // SQLite may have rolled back by itself.
    if (m_database && m_database->isInTransaction())
        static_cast<void>(m_database->execute("ROLLBACK"));
    m_inTransaction = false;
    if (m_failure)
        return;
    m_failure = error;
    m_setup.mailbox->letters.push([error](NxStoreMailbox &mailbox) {
        if (mailbox.failed)
            mailbox.failed(error);
    });
    m_setup.bell.ring();
}

void NxStoreThread::answer(const NxProjectStore::Done &done, const NxResult<void> &result)
{
    if (!done)
        return;
    m_setup.mailbox->letters.push([done, result](NxStoreMailbox &) { done(result); });
    m_setup.bell.ring();
}

NxResult<void> NxStoreThread::state() const
{
    if (m_failure)
        return *m_failure;
    return {};
}

void NxStoreThread::stepJobs()
{
    if (m_backup)
        stepBackup();
    else if (!m_copies.empty())
        stepCopy();
}

void NxStoreThread::stepBackup()
{
    // A file that is written already cannot be compared: it counts as changed.
    if (!m_database && m_backup->compareOn())
        return;
    auto progress = NxProjectCopy::Progress::Done;
    if (!m_backup->isSuperfluous() && ensureOpen())
        progress = m_backup->copyOn(m_database.get());
    if (progress == NxProjectCopy::Progress::More)
        return;
    if (progress == NxProjectCopy::Progress::Failed)
        NX_LOG_ERROR("no backup is kept: %s", qUtf8Printable(m_backup->error().message));
    m_backup.reset();
    static_cast<void>(ensureOpen()); // A failure is told by fail().
}

void NxStoreThread::stepCopy()
{
    const Copy &first = m_copies.front();
    if (!m_copy) {
        NxSqliteDatabase *const from = first.source ? first.source->database() : m_database.get();
        m_copy = std::make_unique<NxProjectCopy>(from, first.target, partBeside(first.target),
                                                 m_setup.options.vfs);
    }
    const NxProjectCopy::Progress progress = m_copy->step();
    if (progress == NxProjectCopy::Progress::Done)
        endCopy({});
    if (progress == NxProjectCopy::Progress::Failed)
        endCopy(m_copy->error());
}

void NxStoreThread::endCopy(const NxResult<void> &result)
{
    m_copy.reset();
    answer(m_copies.front().done, result);
    m_copies.pop_front();
}

qint64 NxStoreThread::now() const
{
    return m_setup.options.now ? m_setup.options.now() : QDateTime::currentMSecsSinceEpoch();
}
