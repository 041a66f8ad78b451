// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxFootageTableWriter.h>

#include <NxVBLEngine/records/NxFootageRow.h>
#include <NxVBLEngine/store/NxSqliteDatabase.h>
#include <NxVBLEngine/store/NxStreamsForm.h>

#include <algorithm>
#include <iterator>

namespace {

enum Sql : int {
    InsertFootage,
    RemoveFootage,
    DropOfGone,
    InsertDescription,
    FindDescription,
};

/// By the enum above.
constexpr const char *Texts[] = {
    "INSERT OR REPLACE INTO footage(media, state, cover, strip, file_size, file_modified,"
    " description, frames, rate_num, rate_den, duration_us, video_bit_rate, audio_bit_rate, shot,"
    " fingerprint_version, fingerprint_size, fingerprint_high, fingerprint_low,"
    " reason, timecode, reel, cover_reason, strip_reason)"
    " SELECT ?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14, ?15, ?16, ?17, ?18, ?19,"
    " ?20, ?21, ?22, ?23 WHERE EXISTS (SELECT 1 FROM media WHERE id = ?1)",
    "DELETE FROM footage WHERE media = ?1",
    "DELETE FROM footage WHERE media = ?1 AND NOT EXISTS (SELECT 1 FROM media WHERE id = ?1)",
    "INSERT OR IGNORE INTO stream_description(streams) VALUES(?1)",
    "SELECT id FROM stream_description WHERE streams = ?1",
};

void bindTime(NxSqliteStatement *statement, int parameter, qint64 time)
{
    if (time == NxNoFootageTime)
        statement->bindNull(parameter);
    else
        statement->bind(parameter, time);
}

void bindFingerprint(NxSqliteStatement *statement, int first, const NxFingerprint &fingerprint)
{
    if (fingerprint.isNull()) {
        for (int parameter = first; parameter < first + 4; ++parameter)
            statement->bindNull(parameter);
        return;
    }
    statement->bind(first, NxFingerprint::Version);
    statement->bind(first + 1, fingerprint.size);
    statement->bind(first + 2, qint64(fingerprint.high));
    statement->bind(first + 3, qint64(fingerprint.low));
}

void bindRow(NxSqliteStatement *insert, const NxFootageRow &row, qint64 description)
{
    insert->bind(1, row.media);
    insert->bind(2, int(row.state));
    insert->bind(3, int(row.cover));
    insert->bind(4, int(row.strip));
    insert->bind(5, row.stamp.size);
    bindTime(insert, 6, row.stamp.modified);
    if (description == 0)
        insert->bindNull(7);
    else
        insert->bind(7, description);
    insert->bind(8, row.frames);
    insert->bind(9, row.rate.num);
    insert->bind(10, row.rate.den);
    insert->bind(11, row.durationUs);
    insert->bind(12, row.videoBitRate);
    insert->bind(13, row.audioBitRate);
    bindTime(insert, 14, row.shot);
    bindFingerprint(insert, 15, row.fingerprint);
    insert->bindTexts(19, row.reason, row.timecode, row.reel, row.coverReason, row.stripReason);
}

} // namespace

NxFootageTableWriter::NxFootageTableWriter(NxSqliteDatabase *database) : m_database(database)
{
    static_assert(std::size(Texts) == SqlCount);
}

bool NxFootageTableWriter::write(const NxFootageRecord &record)
{
    const NxFootageRow row = NxFootageRow::of(record);
    if (row.isBlank())
        return remove(row.media);
    qint64 number = 0;
    if (row.state == NxReadState::Read) {
        number = description(record.facts.streams);
        if (number == 0)
            return false;
    }
    NxSqliteStatement *const insert = statement(InsertFootage);
    bindRow(insert, row, number);
    return insert->run();
}

bool NxFootageTableWriter::dropOfGone(const QVector<qint64> &media)
{
    NxSqliteStatement *const drop = statement(DropOfGone);
    return std::all_of(media.begin(), media.end(), [drop](qint64 id) {
        drop->bind(1, id);
        return drop->run();
    });
}

bool NxFootageTableWriter::remove(qint64 media)
{
    NxSqliteStatement *const removal = statement(RemoveFootage);
    removal->bind(1, media);
    return removal->run();
}

qint64 NxFootageTableWriter::description(const NxFootageStreams &streams)
{
    const QByteArray packed = NxStreamsForm::packed(streams);
    qint64 &number = m_descriptions[packed];
    if (number != 0)
        return number;
    NxSqliteStatement *const insert = statement(InsertDescription);
    insert->bind(1, packed);
    if (!insert->run())
        return 0;
    NxSqliteStatement *const find = statement(FindDescription);
    find->bind(1, packed);
    if (find->step() == NxSqliteStatement::Step::Row)
        number = find->integer(0);
    find->reset();
    return number;
}

NxSqliteStatement *NxFootageTableWriter::statement(int sql)
{
    NxSqliteStatement &kept = m_statements[size_t(sql)];
    if (!kept.isValid())
        kept = m_database->prepare(Texts[sql]);
    return &kept;
}
