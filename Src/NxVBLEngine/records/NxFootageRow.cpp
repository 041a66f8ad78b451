// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/records/NxFootageRow.h>

#include <algorithm>
#include <tuple>

namespace {

/// What counts something and is below nothing is unknown.
qint64 counted(qint64 number)
{
    return std::max<qint64>(number, 0);
}

bool isRead(const NxFootageRecord &record)
{
    return record.state == NxReadState::Read && record.facts.streams.kind != NxFootageKind::Unknown;
}

void takeFacts(NxFootageRow *row, const NxFootageFacts &facts)
{
    row->frames = counted(facts.frames);
    row->rate = facts.rate;
    row->durationUs = counted(facts.durationUs);
    row->videoBitRate = counted(facts.videoBitRate);
    row->audioBitRate = counted(facts.audioBitRate);
    row->shot = facts.shot;
    row->timecode = facts.timecode;
    row->reel = facts.reel;
}

NxPictureState findable(NxPictureState state, const NxFingerprint &fingerprint)
{
    const bool isLost = state == NxPictureState::Made && fingerprint.isNull();
    return isLost ? NxPictureState::Unknown : state;
}

auto shown(const NxFootageRow &row)
{
    return std::tie(row.media, row.state, row.cover, row.strip, row.frames, row.rate,
                    row.durationUs, row.videoBitRate, row.audioBitRate, row.shot, row.timecode,
                    row.reel, row.fingerprint, row.reason, row.coverReason, row.stripReason);
}

} // namespace

NxFootageRow NxFootageRow::of(const NxFootageRecord &record)
{
    NxFootageRow row;
    row.media = record.media;
    row.stamp = {std::max<qint64>(record.stamp.size, -1), record.stamp.modified};
    if (record.fingerprintVersion == NxFingerprint::Version && !record.fingerprint.isNull())
        row.fingerprint = record.fingerprint;
    if (isRead(record)) {
        row.state = NxReadState::Read;
        takeFacts(&row, record.facts);
    } else if (record.state == NxReadState::Failed) {
        row.state = NxReadState::Failed;
        row.reason = record.reason;
    }
    row.cover = findable(record.cover, row.fingerprint);
    row.strip = findable(record.strip, row.fingerprint);
    if (row.cover == NxPictureState::Failed)
        row.coverReason = record.coverReason;
    if (row.strip == NxPictureState::Failed)
        row.stripReason = record.stripReason;
    return row;
}

bool NxFootageRow::looksLike(const NxFootageRow &other) const
{
    return shown(*this) == shown(other);
}

bool NxFootageRow::isBlank() const
{
    NxFootageRow blank;
    blank.media = media;
    return *this == blank;
}
