// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectSchema.h>

#include <NxVBLEngine/store/NxSqliteDatabase.h>
#include <NxVBLEngine/store/NxSqliteTransaction.h>

#include <QCoreApplication>

namespace {

/// Unknown times are NULL. Ids, places and serials are given out by memory, never by SQLite.
/// Living media have different paths, which memory sees to; an index would only double the work.
constexpr const char *FirstTables = R"sql(
PRAGMA application_id = 1114797678;
CREATE TABLE meta(
    key TEXT NOT NULL PRIMARY KEY,
    value ANY
) STRICT, WITHOUT ROWID;
CREATE TABLE folder(
    id INTEGER PRIMARY KEY,
    category INTEGER NOT NULL,
    parent INTEGER NOT NULL,
    place INTEGER NOT NULL,
    name TEXT NOT NULL,
    alive INTEGER NOT NULL
) STRICT;
CREATE TABLE media(
    id INTEGER PRIMARY KEY,
    category INTEGER NOT NULL,
    folder INTEGER NOT NULL,
    place INTEGER NOT NULL,
    name TEXT NOT NULL,
    path TEXT NOT NULL,
    canonical_path TEXT NOT NULL,
    relative_path TEXT NOT NULL,
    size INTEGER NOT NULL,
    created INTEGER,
    modified INTEGER,
    favourite INTEGER,
    used INTEGER NOT NULL,
    import_kind INTEGER NOT NULL,
    kind_code INTEGER NOT NULL,
    alive INTEGER NOT NULL
) STRICT;
CREATE TABLE resource(
    id INTEGER PRIMARY KEY,
    name TEXT NOT NULL,
    favourite INTEGER
) STRICT;
CREATE TABLE undo_step(
    serial INTEGER PRIMARY KEY,
    function TEXT NOT NULL,
    action TEXT NOT NULL
) STRICT;
CREATE TABLE undo_change(
    id INTEGER PRIMARY KEY,
    step INTEGER NOT NULL,
    kind INTEGER NOT NULL,
    category INTEGER NOT NULL,
    ids BLOB NOT NULL,
    before BLOB NOT NULL,
    after BLOB NOT NULL
) STRICT;
CREATE INDEX undo_change_step ON undo_change(step);
)sql";

/// What was read of files. Unknown times are NULL, as are a fingerprint that is not known and the
/// description of a file that was not read. Descriptions are what files share; SQLite numbers them.
constexpr const char *FootageTables = R"sql(
CREATE TABLE stream_description(
    id INTEGER PRIMARY KEY,
    streams BLOB NOT NULL UNIQUE
) STRICT;
CREATE TABLE footage(
    media INTEGER PRIMARY KEY,
    state INTEGER NOT NULL,
    reason TEXT NOT NULL,
    file_size INTEGER NOT NULL,
    file_modified INTEGER,
    description INTEGER,
    frames INTEGER NOT NULL,
    rate_num INTEGER NOT NULL,
    rate_den INTEGER NOT NULL,
    duration_us INTEGER NOT NULL,
    video_bit_rate INTEGER NOT NULL,
    audio_bit_rate INTEGER NOT NULL,
    shot INTEGER,
    timecode TEXT NOT NULL,
    reel TEXT NOT NULL,
    fingerprint_version INTEGER,
    fingerprint_size INTEGER,
    fingerprint_high INTEGER,
    fingerprint_low INTEGER,
    cover INTEGER NOT NULL,
    cover_reason TEXT NOT NULL,
    strip INTEGER NOT NULL,
    strip_reason TEXT NOT NULL
) STRICT;
)sql";

/// How often timelines use a media follows from their clips and is kept no longer, nor are undo
/// steps that did nothing but note it. For none, ids are 0.
constexpr const char *TimelineTables = R"sql(
CREATE TABLE timeline(
    id INTEGER PRIMARY KEY,
    name TEXT NOT NULL,
    outer_clip INTEGER NOT NULL,
    alive INTEGER NOT NULL
) STRICT;
CREATE TABLE clip(
    id INTEGER PRIMARY KEY,
    timeline INTEGER NOT NULL,
    split INTEGER NOT NULL,
    kind INTEGER NOT NULL,
    media INTEGER NOT NULL,
    track INTEGER NOT NULL,
    position INTEGER NOT NULL,
    length INTEGER NOT NULL,
    in_point INTEGER NOT NULL,
    alive INTEGER NOT NULL
) STRICT;
INSERT INTO meta(key, value) VALUES('next_timeline_id', 1), ('next_clip_id', 1);
ALTER TABLE media DROP COLUMN used;
CREATE TEMP TABLE use_step AS
    SELECT step FROM undo_change GROUP BY step HAVING min(kind) = 11 AND max(kind) = 11;
UPDATE meta SET value = value - (
    SELECT count(*) FROM use_step WHERE step IN (
        SELECT serial FROM undo_step ORDER BY serial
        LIMIT (SELECT value FROM meta WHERE key = 'undo_done')))
    WHERE key = 'undo_done';
DELETE FROM undo_step WHERE serial IN (SELECT step FROM use_step);
DELETE FROM undo_change WHERE kind = 11;
DROP TABLE use_step;
)sql";

static_assert(NxProjectSchema::ApplicationId == 1114797678);

bool makeFirstTables(NxSqliteDatabase &database)
{
    return database.execute(FirstTables);
}

bool makeFootageTables(NxSqliteDatabase &database)
{
    return database.execute(FootageTables);
}

bool makeTimelineTables(NxSqliteDatabase &database)
{
    return database.execute(TimelineTables);
}

bool setVersion(NxSqliteDatabase *database, size_t version)
{
    const QByteArray sql = "PRAGMA user_version = " + QByteArray::number(qulonglong(version));
    return database->execute(sql.constData());
}

} // namespace

const std::vector<NxSchemaStep> &NxProjectSchema::steps()
{
    static const std::vector<NxSchemaStep> all{makeFirstTables, makeFootageTables,
                                               makeTimelineTables};
    return all;
}

int NxProjectSchema::currentVersion()
{
    return int(steps().size());
}

NxResult<void> NxProjectSchema::migrate(NxSqliteDatabase *database,
                                        const std::vector<NxSchemaStep> &migrations)
{
    const qint64 version = database->number("PRAGMA user_version", -1);
    if (version < 0)
        return database->failure(NxStoreDeed::Read);
    if (version > qint64(migrations.size()))
        return newerVersion(database->path(), version);
    if (version == qint64(migrations.size()))
        return {};

    NxSqliteTransaction transaction(database);
    if (!transaction.isOpen())
        return database->failure(NxStoreDeed::Write);
    for (size_t next = size_t(version); next < migrations.size(); ++next) {
        if (!migrations.at(next)(*database) || !setVersion(database, next + 1))
            return database->failure(NxStoreDeed::Write);
    }
    if (!transaction.commit())
        return database->failure(NxStoreDeed::Write);
    return {};
}

NxError NxProjectSchema::newerVersion(const QString &path, qint64 version)
{
    return NxStoreCause::error(
        path, QCoreApplication::translate("NxProjectStore", "was made by a newer version "
                                                            "(schema %1, this program knows %2)")
                  .arg(version)
                  .arg(currentVersion()));
}
