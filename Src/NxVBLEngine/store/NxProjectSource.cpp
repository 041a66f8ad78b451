// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectSource.h>

#include <NxVBLEngine/store/NxProjectHeader.h>
#include <NxVBLEngine/store/NxProjectSchema.h>
#include <NxVBLEngine/store/NxSqliteDatabase.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cerrno>

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("NxProjectStore", text);
}

/// What a writer keeps beside the file while it writes.
constexpr const char *LogSuffixes[] = {"-wal", "-journal"};

bool hasUnfoldedLog(const QString &path)
{
    for (const char *suffix : LogSuffixes) {
        if (QFileInfo(path + QLatin1String(suffix)).size() > 0)
            return true;
    }
    return false;
}

NxResult<void> copyFile(const QString &from, const QString &to)
{
    QFile file(from);
    if (!file.copy(to)) {
        return NxStoreCause::error(
            from, NxStoreDeed::Open,
            translated("a temporary copy cannot be made: %1").arg(file.errorString()));
    }
    QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
    return {};
}

constexpr const char *CountOurTables =
    "SELECT count(*) FROM sqlite_schema WHERE type = 'table' AND name IN "
    "('meta', 'folder', 'media', 'resource', 'undo_step', 'undo_change', 'stream_description',"
    " 'footage', 'timeline', 'clip')";
constexpr int OurTables = 10;

} // namespace

NxResult<std::unique_ptr<NxProjectSource>> NxProjectSource::open(const QString &path, Writer writer,
                                                                 const char *vfs)
{
    std::unique_ptr<NxProjectSource> source(new NxProjectSource(path, vfs));
    if (const NxResult<void> opened = source->openAsItIs(writer); !opened)
        return opened.error();
    if (const NxResult<void> identified = source->identify(); !identified)
        return identified.error();
    return source;
}

NxProjectSource::NxProjectSource(const QString &path, const char *vfs) : m_path(path), m_vfs(vfs) {}

NxProjectSource::~NxProjectSource() = default;

bool NxProjectSource::wasDisturbed() const
{
    const Look now = lookAt(m_path);
    return m_mayBeDisturbed
           && (now.hasIndex || now.hasJournal || now.size != m_look.size
               || now.modified != m_look.modified);
}

NxProjectSource::Look NxProjectSource::lookAt(const QString &path)
{
    const QFileInfo file(path);
    return {QFileInfo::exists(path + QLatin1String("-shm")),
            QFileInfo::exists(path + QLatin1String("-journal")), file.size(), file.lastModified()};
}

NxResult<void> NxProjectSource::openAsItIs(Writer writer)
{
    m_look = lookAt(m_path);
    const bool isAtWork = m_look.hasIndex || m_look.hasJournal;
    // Only through SQLite: closing the file by other means would drop the locks that a writer
    // within this very process has on it.
    if (writer == Writer::AnotherAtWork || (writer == Writer::Another && isAtWork))
        return openInPlace(NxSqliteDatabase::Access::ReadOnly);
    if (writer == Writer::Another) {
        m_mayBeDisturbed = true;
        return openInPlace(NxSqliteDatabase::Access::Immutable);
    }

    const NxResult<NxProjectHeader> header = NxProjectHeader::read(m_path);
    if (!header)
        return header.error();
    const bool hasLog = hasUnfoldedLog(m_path);
    if (!hasLog && header->fileSize < header->neededSize)
        m_damage = translated("it is cut off");
    const bool isOld = header->version < NxProjectSchema::currentVersion();
    if (isOld || (hasLog && writer == Writer::None))
        return openCopy();
    return openInPlace(hasLog ? NxSqliteDatabase::Access::ReadWrite
                              : NxSqliteDatabase::Access::Immutable);
}

NxResult<void> NxProjectSource::openInPlace(NxSqliteDatabase::Access access)
{
    NxResult<std::unique_ptr<NxSqliteDatabase>> database =
        NxSqliteDatabase::open(m_path, access, m_vfs);
    if (!database)
        return database.error();
    m_database = database.take();
    m_database->keepLogOnClose();
    // Alone with the log, its index need not be shared: no file is made for it.
    const bool isAlone = access == NxSqliteDatabase::Access::ReadWrite;
    if (isAlone && !m_database->execute("PRAGMA locking_mode = EXCLUSIVE"))
        return m_database->failure(NxStoreDeed::Open);
    return {};
}

NxResult<void> NxProjectSource::openCopy()
{
    m_folder = std::make_unique<QTemporaryDir>();
    if (!m_folder->isValid()) {
        return NxStoreCause::error(
            m_path, NxStoreDeed::Open,
            translated("a temporary copy cannot be made: %1").arg(m_folder->errorString()));
    }
    const QString copy = m_folder->filePath(QStringLiteral("project"));
    if (const NxResult<void> copied = copyFile(m_path, copy); !copied)
        return copied;
    for (const char *suffix : LogSuffixes) {
        const QString log = m_path + QLatin1String(suffix);
        if (QFileInfo(log).size() <= 0)
            continue;
        if (const NxResult<void> copied = copyFile(log, copy + QLatin1String(suffix)); !copied)
            return copied;
    }
    NxResult<std::unique_ptr<NxSqliteDatabase>> database =
        NxSqliteDatabase::open(copy, NxSqliteDatabase::Access::ReadWrite, m_vfs, m_path);
    if (!database)
        return database.error();
    m_database = database.take();
    return {};
}

NxResult<void> NxProjectSource::identify()
{
    if (!m_damage.isEmpty())
        m_database->tolerateDamage();
    qint64 id = m_database->number("PRAGMA application_id", -1);
    if (id < 0 && m_database->lastErrorIsDamage()) {
        m_damage = NxStoreCause::ofSqlite(m_database->lastCode(), 0);
        m_database->tolerateDamage();
        id = m_database->number("PRAGMA application_id", -1);
    }
    if (id < 0)
        return m_database->failure(NxStoreDeed::Open);
    if (id != NxProjectSchema::ApplicationId) {
        return NxStoreCause::error(m_path, translated("is not a Brevano project: "
                                                      "it is a database of another program"));
    }
    const qint64 version = m_database->number("PRAGMA user_version", -1);
    if (version > NxProjectSchema::currentVersion())
        return NxProjectSchema::newerVersion(m_path, version);
    if (version < NxProjectSchema::currentVersion()) {
        if (const NxResult<void> done = takeUpCopy(); !done)
            return done;
    }
    if (m_database->number(CountOurTables, -1) != OurTables) {
        return NxStoreCause::error(m_path, translated("is damaged: its structure cannot be read"));
    }
    return {};
}

NxResult<void> NxProjectSource::takeUpCopy()
{
    if (!m_folder) {
        m_database.reset();
        if (const NxResult<void> copied = openCopy(); !copied)
            return copied;
    }
    return NxProjectSchema::migrate(m_database.get(), NxProjectSchema::steps());
}
