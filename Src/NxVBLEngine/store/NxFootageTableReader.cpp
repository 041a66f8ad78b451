// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxFootageTableReader.h>

#include <NxVBLEngine/store/NxNarrowing.h>
#include <NxVBLEngine/store/NxStreamsForm.h>

#include <QtGlobal>

#include <utility>

namespace {

struct Description
{
    qint64 id = 0;
    NxFootageStreams streams;
};

/// As the columns stand in the query.
enum Column : int {
    Media,
    State,
    Cover,
    Strip,
    FileSize,
    FileModified,
    DescriptionId,
    Frames,
    RateNum,
    RateDen,
    DurationUs,
    VideoBitRate,
    AudioBitRate,
    Shot,
    FingerprintVersion,
    FingerprintSize,
    FingerprintHigh,
    FingerprintLow,
    Reason,
    Timecode,
    Reel,
    CoverReason,
    StripReason,
};

NxFingerprint fingerprintOf(const NxSqliteStatement &statement)
{
    NxFingerprint fingerprint;
    const bool isOurs = statement.integer(FingerprintVersion) == NxFingerprint::Version
                        && !statement.isNull(FingerprintSize)
                        && statement.integer(FingerprintSize) >= 0;
    if (!isOurs)
        return fingerprint;
    fingerprint.size = statement.integer(FingerprintSize);
    fingerprint.high = quint64(statement.integer(FingerprintHigh));
    fingerprint.low = quint64(statement.integer(FingerprintLow));
    return fingerprint;
}

NxPictureState stateOf(NxPictureState stored, const NxFingerprint &fingerprint)
{
    // Without its fingerprint a picture cannot be found in the cache.
    const bool isLost = stored == NxPictureState::Made && fingerprint.isNull();
    return isLost ? NxPictureState::Unknown : stored;
}

} // namespace

NxFootageTableReader::NxFootageTableReader(NxSqliteDatabase *database) : m_tables(database) {}

void NxFootageTableReader::read(NxProjectContents *contents)
{
    readDescriptions(contents);
    const NxTableReader::Table table{
        QT_TRANSLATE_NOOP("NxProjectStore", "the facts of its footage break off"),
        "SELECT media, state, cover, strip, file_size, file_modified, description, frames,"
        " rate_num, rate_den, duration_us, video_bit_rate, audio_bit_rate, shot,"
        " fingerprint_version, fingerprint_size, fingerprint_high, fingerprint_low,"
        " reason, timecode, reel, cover_reason, strip_reason FROM footage",
        "media"};
    m_tables.read(
        table, &contents->footage,
        [this](const NxSqliteStatement &statement, NxFootageRow *row) {
            return readRow(statement, row);
        },
        [](const NxFootageRow &row) { return row.media; });
    contents->senselessFootage = m_tables.impossible();
}

void NxFootageTableReader::readDescriptions(NxProjectContents *contents)
{
    const NxTableReader::Table table{
        QT_TRANSLATE_NOOP("NxProjectStore", "the facts of its footage break off"),
        "SELECT id, streams FROM stream_description", "id"};
    std::vector<Description> descriptions;
    m_tables.read(
        table, &descriptions,
        [](const NxSqliteStatement &statement, Description *description) {
            description->id = statement.integer(0);
            return NxStreamsForm::unpack(statement.blob(1), &description->streams);
        },
        [](const Description &description) { return description.id; });
    contents->streams.reserve(descriptions.size());
    for (Description &description : descriptions) {
        m_places.insert(description.id, int(contents->streams.size()));
        contents->streams.push_back(std::move(description.streams));
    }
}

bool NxFootageTableReader::readRow(const NxSqliteStatement &statement, NxFootageRow *row) const
{
    NxNarrowing from(statement);
    row->media = from.atLeast(1, Media);
    row->state = from.oneOf(State, NxReadState::Failed);
    row->fingerprint = fingerprintOf(statement);
    row->cover = stateOf(from.oneOf(Cover, NxPictureState::Failed), row->fingerprint);
    row->strip = stateOf(from.oneOf(Strip, NxPictureState::Failed), row->fingerprint);
    row->stamp.size = from.atLeast(-1, FileSize);
    row->stamp.modified = from.time(FileModified);
    row->frames = from.atLeast(0, Frames);
    row->rate.num = from.integer(RateNum);
    row->rate.den = from.integer(RateDen);
    row->durationUs = from.atLeast(0, DurationUs);
    row->videoBitRate = from.atLeast(0, VideoBitRate);
    row->audioBitRate = from.atLeast(0, AudioBitRate);
    row->shot = from.time(Shot);
    row->reason = statement.text(Reason);
    row->timecode = statement.text(Timecode);
    row->reel = statement.text(Reel);
    row->coverReason = statement.text(CoverReason);
    row->stripReason = statement.text(StripReason);
    if (!statement.isNull(DescriptionId))
        row->streams = m_places.value(statement.integer(DescriptionId), -1);
    const bool isRead = row->state == NxReadState::Read;
    return from.fits() && isRead == (row->streams >= 0);
}
