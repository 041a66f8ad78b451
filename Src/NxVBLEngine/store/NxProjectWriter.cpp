// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectWriter.h>

#include <NxVBLEngine/store/NxSqliteDatabase.h>

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace {

enum Sql : int {
    InsertMedia,
    InsertFolder,
    InsertTimeline,
    InsertClip,
    SetFolderAlive,
    SetFolderName,
    SetFolderParent,
    SetMediaAlive,
    SetMediaName,
    SetMediaFolder,
    SetMediaFavourite,
    SetMediaPath,
    SetMediaFacts,
    SetResourceName,
    SetResourceFavourite,
    DropNeutralResource,
    SetTimelineAlive,
    SetTimelineName,
    SetClipAlive,
    SetClipPlace,
    DropUndoneChanges,
    DropUndoneSteps,
    InsertStep,
    AllStepsDone,
    InsertChange,
    DropStepChanges,
    DropStep,
    DropMedia,
    DropFolder,
    DropTimeline,
    DropClip,
    ClampPosition,
    SetMeta,
};

#define NX_UNDONE_STEPS                                                                            \
    "(SELECT serial FROM undo_step ORDER BY serial LIMIT -1"                                       \
    " OFFSET (SELECT value FROM meta WHERE key = 'undo_done'))"

/// By the enum above. ?1 is the id, except where a row is made.
constexpr const char *Texts[] = {
    "INSERT INTO media(id, category, folder, place, size, created, modified, favourite,"
    " import_kind, kind_code, alive, name, path, canonical_path, relative_path)"
    " VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14, ?15)",
    "INSERT INTO folder(id, category, parent, place, alive, name) VALUES(?1, ?2, ?3, ?4, ?5, ?6)",
    "INSERT INTO timeline(id, outer_clip, alive, name) VALUES(?1, ?2, ?3, ?4)",
    "INSERT INTO clip(id, timeline, split, kind, media, track, position, length, in_point, alive)"
    " VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10)",
    "UPDATE folder SET alive = ?2 WHERE id = ?1",
    "UPDATE folder SET name = ?2 WHERE id = ?1",
    "UPDATE folder SET parent = ?2, place = ?3 WHERE id = ?1",
    "UPDATE media SET alive = ?2 WHERE id = ?1",
    "UPDATE media SET name = ?2 WHERE id = ?1",
    "UPDATE media SET folder = ?2, place = ?3 WHERE id = ?1",
    "UPDATE media SET favourite = ?2 WHERE id = ?1",
    "UPDATE media SET path = ?2, canonical_path = ?3, relative_path = '' WHERE id = ?1",
    "UPDATE media SET size = ?2, created = ?3, modified = ?4, path = ?5, canonical_path = ?6,"
    " relative_path = ?7 WHERE id = ?1",
    "INSERT INTO resource(id, name) VALUES(?1, ?2)"
    " ON CONFLICT(id) DO UPDATE SET name = excluded.name",
    "INSERT INTO resource(id, name, favourite) VALUES(?1, '', ?2)"
    " ON CONFLICT(id) DO UPDATE SET favourite = excluded.favourite",
    "DELETE FROM resource WHERE id = ?1 AND name = '' AND favourite IS NULL",
    "UPDATE timeline SET alive = ?2 WHERE id = ?1",
    "UPDATE timeline SET name = ?2 WHERE id = ?1",
    "UPDATE clip SET alive = ?2 WHERE id = ?1",
    "UPDATE clip SET track = ?2, position = ?3 WHERE id = ?1",
    "DELETE FROM undo_change WHERE step IN " NX_UNDONE_STEPS,
    "DELETE FROM undo_step WHERE serial IN " NX_UNDONE_STEPS,
    "INSERT INTO undo_step(serial, function, action) VALUES(?1, ?2, ?3)",
    "UPDATE meta SET value = (SELECT count(*) FROM undo_step) WHERE key = 'undo_done'",
    "INSERT INTO undo_change(step, kind, category, ids, before, after)"
    " VALUES(?1, ?2, ?3, ?4, ?5, ?6)",
    "DELETE FROM undo_change WHERE step = ?1",
    "DELETE FROM undo_step WHERE serial = ?1",
    "DELETE FROM media WHERE id = ?1 AND alive = 0",
    "DELETE FROM folder WHERE id = ?1 AND alive = 0",
    "DELETE FROM timeline WHERE id = ?1 AND alive = 0",
    "DELETE FROM clip WHERE id = ?1 AND alive = 0",
    "UPDATE meta SET value = min(value, (SELECT count(*) FROM undo_step))"
    " WHERE key = 'undo_done'",
    "INSERT INTO meta(key, value) VALUES(?1, ?2)"
    " ON CONFLICT(key) DO UPDATE SET value = excluded.value",
};

#undef NX_UNDONE_STEPS

/// What of the state after a change goes into its row.
enum class Takes {
    Alive,
    Dead,
    Text,
    BothTexts,
    FolderAndPlace,
    Time,
};

struct ApplyRule
{
    NxChangeKind kind;
    Sql sql;
    Takes takes;
    bool makesRow; ///< Whether the row may be missing before.
};

constexpr ApplyRule ApplyRules[] = {
    {NxChangeKind::FolderAdd, SetFolderAlive, Takes::Alive, false},
    {NxChangeKind::FolderRemove, SetFolderAlive, Takes::Dead, false},
    {NxChangeKind::FolderRename, SetFolderName, Takes::Text, false},
    {NxChangeKind::FolderMove, SetFolderParent, Takes::FolderAndPlace, false},
    {NxChangeKind::MediaAdd, SetMediaAlive, Takes::Alive, false},
    {NxChangeKind::MediaRemove, SetMediaAlive, Takes::Dead, false},
    {NxChangeKind::MediaRename, SetMediaName, Takes::Text, false},
    {NxChangeKind::MediaMove, SetMediaFolder, Takes::FolderAndPlace, false},
    {NxChangeKind::MediaFavourite, SetMediaFavourite, Takes::Time, false},
    {NxChangeKind::MediaRelink, SetMediaPath, Takes::BothTexts, false},
    {NxChangeKind::ResourceRename, SetResourceName, Takes::Text, true},
    {NxChangeKind::ResourceFavourite, SetResourceFavourite, Takes::Time, true},
    {NxChangeKind::TimelineAdd, SetTimelineAlive, Takes::Alive, false},
    {NxChangeKind::TimelineRemove, SetTimelineAlive, Takes::Dead, false},
    {NxChangeKind::TimelineRename, SetTimelineName, Takes::Text, false},
    {NxChangeKind::ClipAdd, SetClipAlive, Takes::Alive, false},
    {NxChangeKind::ClipRemove, SetClipAlive, Takes::Dead, false},
    {NxChangeKind::ClipMove, SetClipPlace, Takes::FolderAndPlace, false},
};

void bindTime(NxSqliteStatement *statement, int parameter, qint64 time)
{
    if (time == NxNoTime)
        statement->bindNull(parameter);
    else
        statement->bind(parameter, time);
}

void bindState(NxSqliteStatement *statement, const NxChangeState &state, Takes takes)
{
    switch (takes) {
    case Takes::Alive:
        return statement->bind(2, 1);
    case Takes::Dead:
        return statement->bind(2, 0);
    case Takes::Text:
        return statement->bindTexts(2, state.text);
    case Takes::BothTexts:
        return statement->bindTexts(2, state.text, state.secondText);
    case Takes::FolderAndPlace:
        statement->bind(2, state.folder);
        return statement->bind(3, state.place);
    case Takes::Time:
        return bindTime(statement, 2, state.number);
    }
}

bool insertMedia(NxSqliteStatement *insert, const NxMediaRecord &media)
{
    insert->bind(1, media.id);
    insert->bind(2, media.category);
    insert->bind(3, media.folder);
    insert->bind(4, media.place);
    insert->bind(5, media.size);
    bindTime(insert, 6, media.created);
    bindTime(insert, 7, media.modified);
    bindTime(insert, 8, media.favourite);
    insert->bind(9, media.importKind);
    insert->bind(10, media.kindCode);
    insert->bind(11, media.alive ? 1 : 0);
    insert->bindTexts(12, media.name, media.path, media.canonicalPath, media.relativePath);
    return insert->run();
}

bool insertClip(NxSqliteStatement *insert, const NxClipRecord &clip)
{
    insert->bind(1, clip.id);
    insert->bind(2, clip.timeline);
    insert->bind(3, clip.split);
    insert->bind(4, clip.kind);
    insert->bind(5, clip.media);
    insert->bind(6, clip.place.track);
    insert->bind(7, clip.place.position);
    insert->bind(8, clip.place.length);
    insert->bind(9, clip.place.inPoint);
    insert->bind(10, clip.alive ? 1 : 0);
    return insert->run();
}

} // namespace

NxProjectWriter::NxProjectWriter(NxSqliteDatabase *database)
    : m_database(database),
      m_footage(database)
{
    static_assert(std::size(Texts) == SqlCount);
}

NxResult<void> NxProjectWriter::write(const NxStoreBatch &batch)
{
    const bool isDone = std::all_of(batch.begin(), batch.end(), [this](const auto &any) {
        return std::visit([this](const auto &entry) { return writeEntry(entry); }, any);
    });
    return result(isDone);
}

NxResult<void> NxProjectWriter::writeBeginning(const QString &projectFolder, qint64 nowMsec)
{
    return result(setMeta("created", nowMsec) && setMeta("project_folder", projectFolder)
                  && setMeta("undo_done", 0) && writeEntry(NxStoreEntry::Counters{}));
}

NxResult<void> NxProjectWriter::writeProjectFolder(const QString &folder)
{
    return result(setMeta("project_folder", folder));
}

bool NxProjectWriter::writeEntry(const NxStoreEntry::NewMedia &entry)
{
    NxSqliteStatement *const insert = statement(InsertMedia);
    return std::all_of(entry.media.begin(), entry.media.end(),
                       [insert](const NxMediaRecord &media) { return insertMedia(insert, media); });
}

bool NxProjectWriter::writeEntry(const NxStoreEntry::NewFolder &entry)
{
    const NxFolderRecord &folder = entry.folder;
    NxSqliteStatement *const insert = statement(InsertFolder);
    insert->bind(1, folder.id);
    insert->bind(2, folder.category);
    insert->bind(3, folder.parent);
    insert->bind(4, folder.place);
    insert->bind(5, folder.alive ? 1 : 0);
    insert->bindTexts(6, folder.name);
    return insert->run();
}

bool NxProjectWriter::writeEntry(const NxStoreEntry::NewTimeline &entry)
{
    const NxTimelineRecord &timeline = entry.timeline;
    NxSqliteStatement *const insert = statement(InsertTimeline);
    insert->bind(1, timeline.id);
    insert->bind(2, timeline.outerClip);
    insert->bind(3, timeline.alive ? 1 : 0);
    insert->bindTexts(4, timeline.name);
    return insert->run();
}

bool NxProjectWriter::writeEntry(const NxStoreEntry::NewClips &entry)
{
    NxSqliteStatement *const insert = statement(InsertClip);
    return std::all_of(entry.clips.begin(), entry.clips.end(),
                       [insert](const NxClipRecord &clip) { return insertClip(insert, clip); });
}

bool NxProjectWriter::writeEntry(const NxStoreEntry::Apply &entry)
{
    const NxChange &change = entry.change;
    const auto rule = std::find_if(std::begin(ApplyRules), std::end(ApplyRules),
                                   [&change](const ApplyRule &r) { return r.kind == change.what; });
    if (rule == std::end(ApplyRules)) {
        m_refusal = QStringLiteral("unknown change %1").arg(int(change.what));
        return false;
    }
    NxSqliteStatement *const update = statement(rule->sql);
    bindState(update, change.after, rule->takes);
    for (const qint64 id : change.ids) {
        update->bind(1, id);
        if (!update->run())
            return false;
        if (m_database->changedRows() == 0) {
            m_refusal =
                QCoreApplication::translate("NxProjectStore", "it does not hold entry %1").arg(id);
            return false;
        }
    }
    return !rule->makesRow || runForEach(DropNeutralResource, change.ids);
}

bool NxProjectWriter::writeEntry(const NxStoreEntry::Facts &entry)
{
    NxSqliteStatement *const update = statement(SetMediaFacts);
    for (const NxMediaRecord &media : entry.media) {
        update->bind(1, media.id);
        update->bind(2, media.size);
        bindTime(update, 3, media.created);
        bindTime(update, 4, media.modified);
        update->bindTexts(5, media.path, media.canonicalPath, media.relativePath);
        if (!update->run())
            return false;
    }
    return true;
}

bool NxProjectWriter::writeEntry(const NxStoreEntry::Footage &entry)
{
    return std::all_of(entry.footage.begin(), entry.footage.end(),
                       [this](const NxFootageRecord &record) { return m_footage.write(record); });
}

bool NxProjectWriter::writeEntry(const NxStoreEntry::StepBegin &entry)
{
    NxSqliteStatement *const insert = statement(InsertStep);
    insert->bind(1, entry.serial);
    insert->bindTexts(2, entry.function, entry.action);
    return statement(DropUndoneChanges)->run() && statement(DropUndoneSteps)->run() && insert->run()
           && statement(AllStepsDone)->run();
}

bool NxProjectWriter::writeEntry(const NxStoreEntry::StepChange &entry)
{
    NxSqliteStatement *const insert = statement(InsertChange);
    insert->bind(1, entry.serial);
    insert->bind(2, int(entry.change.what));
    insert->bind(3, entry.change.category);
    insert->bind(4, packedIds(entry.change.ids));
    insert->bind(5, packedState(entry.change.before));
    insert->bind(6, packedState(entry.change.after));
    return insert->run();
}

bool NxProjectWriter::writeEntry(const NxStoreEntry::StepPosition &entry)
{
    return setMeta("undo_done", entry.done);
}

bool NxProjectWriter::writeEntry(const NxStoreEntry::StepDrop &entry)
{
    return runForEach(DropStepChanges, entry.serials) && runForEach(DropStep, entry.serials)
           && runForEach(DropMedia, entry.deadMedia) && m_footage.dropOfGone(entry.deadMedia)
           && runForEach(DropFolder, entry.deadFolders)
           && runForEach(DropTimeline, entry.deadTimelines) && runForEach(DropClip, entry.deadClips)
           && statement(ClampPosition)->run();
}

bool NxProjectWriter::writeEntry(const NxStoreEntry::Counters &entry)
{
    return setMeta("next_media_id", entry.nextMediaId) && setMeta("next_place", entry.nextPlace)
           && setMeta("next_folder_id", entry.nextFolderId)
           && setMeta("next_step_serial", entry.nextStepSerial)
           && setMeta("next_timeline_id", entry.nextTimelineId)
           && setMeta("next_clip_id", entry.nextClipId);
}

bool NxProjectWriter::setMeta(const char *key, qint64 value)
{
    NxSqliteStatement *const set = statement(SetMeta);
    set->bindTexts(1, QString::fromLatin1(key));
    set->bind(2, value);
    return set->run();
}

bool NxProjectWriter::setMeta(const char *key, const QString &value)
{
    NxSqliteStatement *const set = statement(SetMeta);
    set->bindTexts(1, QString::fromLatin1(key), value);
    return set->run();
}

bool NxProjectWriter::runForEach(int sql, const QVector<qint64> &ids)
{
    NxSqliteStatement *const each = statement(sql);
    return std::all_of(ids.begin(), ids.end(), [each](qint64 id) {
        each->bind(1, id);
        return each->run();
    });
}

NxResult<void> NxProjectWriter::result(bool isDone) const
{
    if (isDone)
        return {};
    if (!m_refusal.isEmpty())
        return NxStoreCause::error(m_database->path(), NxStoreDeed::Write, m_refusal);
    return m_database->failure(NxStoreDeed::Write);
}

NxSqliteStatement *NxProjectWriter::statement(int sql)
{
    NxSqliteStatement &kept = m_statements[size_t(sql)];
    if (!kept.isValid())
        kept = m_database->prepare(Texts[sql]);
    return &kept;
}
