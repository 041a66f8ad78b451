// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectStore.h>

#include <NxCore/NxLog.h>
#include <NxVBLEngine/store/NxProjectChecker.h>
#include <NxVBLEngine/store/NxProjectHeader.h>
#include <NxVBLEngine/store/NxProjectMaker.h>
#include <NxVBLEngine/store/NxProjectStore_p.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <utility>

namespace {

constexpr qint64 DayMsec = 24LL * 60 * 60 * 1000;

QString translated(const char *text)
{
    return QCoreApplication::translate("NxProjectStore", text);
}

QString absolutePath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

void deliver(NxStoreMailbox &mailbox)
{
    while (std::optional<NxStoreMailbox::Letter> letter = mailbox.letters.tryPop())
        (*letter)(mailbox);
}

QString damageSentence(const QString &path, const QString &what)
{
    return NxStoreCause::error(path, translated("is damaged: %1").arg(what)).message;
}

/// Why nobody could open this; the header's reader answers for what is left.
NxResult<void> openable(const QString &path, const char *vfs)
{
    const QFileInfo file(path);
    if (NxSqliteDatabase::fileName(path).size() > NxSqliteDatabase::longestPath(vfs))
        return NxStoreCause::error(path, NxStoreDeed::Open, translated("its path is too long"));
    if (file.isDir())
        return NxStoreCause::error(path, NxStoreDeed::Open, translated("it is a folder"));
    if (file.exists() && !file.isFile())
        return NxStoreCause::error(path, NxStoreDeed::Open, translated("it is not a file"));
    return {};
}

} // namespace

NxProjectStore::Private::Private(const QString &projectPath, NxProjectStoreOptions storeOptions)
    : path(projectPath),
      options(std::move(storeOptions)),
      mailbox(std::make_shared<NxStoreMailbox>()),
      lock(projectPath),
      bell([letters = mailbox] { deliver(*letters); })
{
}

void NxProjectStore::Private::takeRight()
{
    if (options.readOnly)
        forbidWriting(translated("was opened for reading only"));
    else if (!QFileInfo(path).isWritable())
        forbidWriting(translated("is write-protected"));

    const QString lockPath = NxProjectLock::pathFor(path);
    if (isReadOnly() && !QFileInfo::exists(lockPath))
        return; // Nobody writes, and we shall not.
    const NxProjectLock::Answer answer = lock.tryLock();
    if (answer == NxProjectLock::Answer::Taken) {
        writer = NxProjectSource::Writer::Another;
        forbidWriting(lock.holderText());
    } else if (answer == NxProjectLock::Answer::Impossible) {
        forbidWriting(lock.impossibleText());
    } else if (isReadOnly()) {
        lock.release(); // A dead process had left it.
    } else {
        writer = NxProjectSource::Writer::Ourselves;
    }
}

void NxProjectStore::Private::forbidWriting(const QString &sentence)
{
    if (readOnlyReason.isEmpty())
        readOnlyReason = NxStoreCause::error(path, sentence).message;
}

NxResult<void> NxProjectStore::Private::openSource()
{
    if (source)
        return {};
    using Writer = NxProjectSource::Writer;
    NxResult<std::unique_ptr<NxProjectSource>> opened =
        NxProjectSource::open(path, writer, options.vfs);
    const bool isOdd = !opened || !(*opened)->damage().isEmpty();
    if (isOdd && writer == Writer::Another) // Perhaps for being written at that moment.
        opened = NxProjectSource::open(path, Writer::AnotherAtWork, options.vfs);
    if (!opened)
        return opened.error();
    source = opened.take();
    return {};
}

void NxProjectStore::Private::useFile(const std::function<void(NxSqliteDatabase *)> &use)
{
    if (hasBegun)
        thread->useDatabase(use);
    else
        use(nullptr);
}

NxResult<NxProjectContents> NxProjectStore::Private::readFrom(NxSqliteDatabase *openDatabase)
{
    if (!openDatabase) {
        if (const NxResult<void> opened = openSource(); !opened)
            return opened.error();
    }
    NxSqliteDatabase *const database = openDatabase ? openDatabase : source->database();
    NxProjectContents contents =
        NxProjectReader(database).read(openDatabase ? QString() : source->damage());
    const qint64 created = database->number("SELECT value FROM meta WHERE key = 'created'", now());
    isOld = now() - created > DayMsec;
    fileSaysFolder = contents.projectFolder;
    const bool isMixed = !openDatabase && source->wasDisturbed();
    source.reset();
    if (!isMixed)
        return contents;
    writer = NxProjectSource::Writer::AnotherAtWork;
    return readFrom(nullptr);
}

void NxProjectStore::Private::noteDamage(const QString &sentence)
{
    damage = sentence;
    if (thread)
        thread->refuseWrites({damage});
    if (isReadOnly())
        return;
    readOnlyReason = damage;
    source.reset();
    writer = NxProjectSource::Writer::None;
    lock.release();
}

NxStoreThread *NxProjectStore::Private::startedThread()
{
    if (thread)
        return thread.get();
    const QString folder = QFileInfo(path).path();
    NxStoreThreadSetup setup;
    setup.path = path;
    setup.options = options;
    setup.projectFolder = folder;
    setup.folderChanged = folder != fileSaysFolder;
    setup.mailbox = mailbox;
    setup.bell = bell.rope();
    thread = std::make_unique<NxStoreThread>(std::move(setup));
    return thread.get();
}

void NxProjectStore::Private::beginWriting()
{
    if (hasBegun || isReadOnly())
        return;
    hasBegun = true;
    source.reset(); // Closed first: no two ways into the file at one time.
    const bool wantsBackup = isOld && !options.backupFolder.isEmpty();
    startedThread()->begin(wantsBackup);
}

void NxProjectStore::Private::commit(Done done, bool durably)
{
    if (isReadOnly())
        return answer(std::move(done), NxError{readOnlyReason});
    beginWriting();
    thread->commit(std::move(done), durably);
}

void NxProjectStore::Private::answer(Done done, const NxResult<void> &result)
{
    if (!done)
        return;
    mailbox->letters.push([done = std::move(done), result](NxStoreMailbox &) { done(result); });
    bell.ring();
}

qint64 NxProjectStore::Private::now() const
{
    return options.now ? options.now() : QDateTime::currentMSecsSinceEpoch();
}

NxResult<std::unique_ptr<NxProjectStore>> NxProjectStore::create(
    const QString &path, const NxProjectStoreOptions &options)
{
    const QString absolute = absolutePath(path);
    if (const NxResult<void> possible = openable(absolute, options.vfs); !possible)
        return possible.error();
    if (const NxResult<void> makeable = NxProjectMaker::mayMake(absolute); !makeable)
        return makeable.error();
    auto d = std::make_unique<Private>(absolute, options);
    const NxProjectLock::Answer answer = d->lock.tryLock();
    if (answer == NxProjectLock::Answer::Taken)
        return NxStoreCause::error(absolute, d->lock.holderText());
    const NxResult<void> made = NxProjectMaker::make(absolute, d->now(), options.vfs);
    if (!made)
        return made.error();
    if (answer == NxProjectLock::Answer::Impossible) {
        d->forbidWriting(d->lock.impossibleText());
    } else {
        d->writer = NxProjectSource::Writer::Ourselves;
        d->fileSaysFolder = QFileInfo(absolute).path();
    }
    return std::unique_ptr<NxProjectStore>(new NxProjectStore(std::move(d)));
}

NxResult<std::unique_ptr<NxProjectStore>> NxProjectStore::open(const QString &path,
                                                               const NxProjectStoreOptions &options)
{
    const QString absolute = absolutePath(path);
    if (const NxResult<void> possible = openable(absolute, options.vfs); !possible)
        return possible.error();
    auto d = std::make_unique<Private>(absolute, options);
    // Beside what is no project, not even a lock is made: it may be a file of the user's footage.
    if (QFileInfo(absolute).isReadable() && NxProjectHeader::read(absolute))
        d->takeRight();
    if (const NxResult<void> opened = d->openSource(); !opened)
        return opened.error();
    if (const QString seen = d->source->damage(); !seen.isEmpty())
        d->noteDamage(damageSentence(absolute, seen));
    return std::unique_ptr<NxProjectStore>(new NxProjectStore(std::move(d)));
}

NxProjectStore::NxProjectStore(std::unique_ptr<Private> privateData) : d(std::move(privateData)) {}

NxProjectStore::~NxProjectStore()
{
    if (const NxResult<void> closed = close(); !closed)
        NX_LOG_ERROR("%s", qUtf8Printable(closed.errorText()));
}

QString NxProjectStore::path() const
{
    return d->path;
}

bool NxProjectStore::isReadOnly() const
{
    return d->isReadOnly();
}

QString NxProjectStore::readOnlyReason() const
{
    return d->readOnlyReason;
}

NxResult<NxProjectContents> NxProjectStore::load()
{
    NxResult<NxProjectContents> contents = NxError{};
    d->useFile([this, &contents](NxSqliteDatabase *database) { contents = d->readFrom(database); });
    if (!contents)
        return contents;
    if (!contents->damage.isEmpty()) {
        contents->damage = damageSentence(d->path, contents->damage);
        d->noteDamage(contents->damage);
    }
    d->beginWriting();
    return contents;
}

void NxProjectStore::write(NxStoreBatch batch)
{
    if (d->isReadOnly() || batch.empty())
        return;
    d->beginWriting();
    d->thread->write(std::move(batch));
}

void NxProjectStore::commit(Done done)
{
    d->commit(std::move(done), false);
}

void NxProjectStore::commitDurably(Done done)
{
    d->commit(std::move(done), true);
}

void NxProjectStore::saveCopy(const QString &path, Done done)
{
    const QString target = absolutePath(path);
    if (!d->damage.isEmpty())
        return d->answer(std::move(done), NxError{d->damage});
    if (d->isClosed)
        return d->answer(std::move(done), NxError{d->readOnlyReason});
    if (const NxResult<void> possible = openable(target, d->options.vfs); !possible)
        return d->answer(std::move(done), possible);
    if (!d->isReadOnly()) {
        d->beginWriting();
        return d->thread->copy(target, std::move(done));
    }
    if (const NxResult<void> opened = d->openSource(); !opened)
        return d->answer(std::move(done), opened);
    d->startedThread()->copyFrom(std::move(d->source), target, std::move(done));
}

void NxProjectStore::setFailureHandler(Failed failed)
{
    d->mailbox->failed = std::move(failed);
}

QStringList NxProjectStore::integrityProblems()
{
    QStringList problems;
    d->useFile([this, &problems](NxSqliteDatabase *database) {
        if (database) {
            problems = NxProjectChecker::problems(database);
            return;
        }
        if (const NxResult<void> opened = d->openSource(); !opened) {
            problems += opened.errorText();
            return;
        }
        if (!d->source->damage().isEmpty())
            problems += d->source->damage();
        problems += NxProjectChecker::problems(d->source->database());
        d->source.reset();
    });
    return problems;
}

NxResult<void> NxProjectStore::close()
{
    if (d->isClosed)
        return {};
    d->isClosed = true;
    d->source.reset();
    NxResult<void> result;
    if (d->thread)
        result = d->thread->finish();
    if (!d->damage.isEmpty())
        result = {}; // Told already, and nothing was to be written.
    d->thread.reset();
    d->hasBegun = false;
    d->writer = NxProjectSource::Writer::None;
    d->forbidWriting(translated("is closed"));
    d->lock.release();
    // The letters may destroy this store.
    const std::shared_ptr<NxStoreMailbox> mailbox = d->mailbox;
    deliver(*mailbox);
    return result;
}
