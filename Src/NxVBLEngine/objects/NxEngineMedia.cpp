// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineMedia.h>

#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxStreamDescription.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/NxMediaFileTypes.h>
#include <NxWorkerProtocol/NxPictureFile.h>

#include <QCoreApplication>

#include <array>

namespace {

QDateTime timeOf(qint64 time)
{
    return time == NxNoTime ? QDateTime() : QDateTime::fromMSecsSinceEpoch(time, Qt::UTC);
}

QString suffixOf(const QString &path)
{
    const int point = path.lastIndexOf(QLatin1Char('.'));
    const int separator = path.lastIndexOf(QLatin1Char('/'));
    return point > separator ? path.mid(point + 1) : QString();
}

constexpr qint64 MsPerDay = 24 * 60 * 60 * 1000;

bool isBelievable(qint64 time)
{
    return time >= 0 && time <= QDateTime::currentMSecsSinceEpoch() + MsPerDay;
}

// By NxPresence.
constexpr std::array<const char *, 6> ReasonsOfPresence = {
    "",
    "",
    QT_TRANSLATE_NOOP("NxEngineMedia", "The file is missing."),
    QT_TRANSLATE_NOOP("NxEngineMedia", "The drive does not answer."),
    QT_TRANSLATE_NOOP("NxEngineMedia", "There is no file of this name, but something else."),
    QT_TRANSLATE_NOOP("NxEngineMedia", "You have no permission to read the file."),
};

} // namespace

NxEngineMedia::NxEngineMedia(const NxMediaRecord &record)
    : m_id(record.id),
      m_name(record.name),
      m_path(record.path),
      m_canonicalPath(record.canonicalPath),
      m_size(record.size),
      m_created(record.created),
      m_modified(record.modified),
      m_favourite(record.favourite),
      m_folderId(record.folder),
      m_kindCode(quint8(record.kindCode)),
      m_category(quint8(record.category)),
      m_importKind(quint8(record.importKind))
{
    setPlace(record.place);
    updateCodes();
}

NxEngineMedia::~NxEngineMedia() = default;

void NxEngineMedia::updateCodes()
{
    NXVBLMODEL::NxSuffixFacts facts;
    if (const NxStreamDescription *read = m_facts.streams())
        facts = {read->type, read->subKind, read->kindCode, &m_facts};
    else
        facts = NXVBLMODEL::suffixFacts(suffixOf(m_path));
    m_type = quint8(facts.type);
    m_subKind = quint16(facts.subKind);
    if (m_kindCode != NXVBLMODEL::mkcStockCopy)
        m_kindCode = quint8(facts.kindCode);
    m_info = facts.provisionalInfo;
}

NxMediaRecord NxEngineMedia::record() const
{
    NxMediaRecord record;
    record.id = m_id;
    record.category = m_category;
    record.folder = m_folderId;
    record.place = place();
    record.name = m_name;
    record.path = m_path;
    record.canonicalPath = m_canonicalPath;
    record.size = m_size;
    record.created = m_created;
    record.modified = m_modified;
    record.favourite = m_favourite;
    record.importKind = m_importKind;
    record.kindCode = m_kindCode;
    record.alive = folder() != nullptr;
    return record;
}

void NxEngineMedia::setPaths(const QString &path, const QString &canonicalPath)
{
    m_path = path;
    m_canonicalPath = canonicalPath == path ? QString() : canonicalPath;
    m_presence = NxPresence::Unknown;
    updateCodes();
}

QString NxEngineMedia::canonicalPath() const
{
    return m_canonicalPath.isEmpty() ? m_path : m_canonicalPath;
}

void NxEngineMedia::setFileFacts(qint64 size, qint64 created, qint64 modified)
{
    m_size = size;
    m_created = created;
    m_modified = modified;
}

NxFootageRow NxEngineMedia::footageRow() const
{
    NxFootageRow row;
    row.media = m_id;
    row.state = readState();
    row.cover = coverState();
    row.strip = stripState();
    row.stamp = m_stamp;
    row.fingerprint = m_fingerprint;
    m_facts.writeTo(&row);
    if (m_reasons) {
        row.reason = m_reasons->read;
        row.coverReason = m_reasons->cover;
        row.stripReason = m_reasons->strip;
    }
    return row;
}

NxFootageRecord NxEngineMedia::footage() const
{
    const NxFootageRow row = footageRow();
    NxFootageRecord record;
    record.media = row.media;
    record.state = row.state;
    record.reason = row.reason;
    record.stamp = row.stamp;
    record.fingerprint = row.fingerprint;
    record.cover = row.cover;
    record.strip = row.strip;
    record.coverReason = row.coverReason;
    record.stripReason = row.stripReason;
    if (const NxStreamDescription *read = m_facts.streams())
        record.facts = {read->streams,  row.frames,       row.rate,
                        row.durationUs, row.videoBitRate, row.audioBitRate,
                        row.shot,       row.timecode,     row.reel};
    return record;
}

void NxEngineMedia::setFootage(const NxFootageRow &row, const NxStreamDescription *streams)
{
    Q_ASSERT((row.state == NxReadState::Read) == (streams != nullptr));
    m_readState = quint8(row.state);
    m_coverState = quint8(row.cover);
    m_stripState = quint8(row.strip);
    m_stamp = row.stamp;
    m_fingerprint = row.fingerprint;
    m_facts.set(row, streams);
    const bool hasReasons =
        !row.reason.isEmpty() || !row.coverReason.isEmpty() || !row.stripReason.isEmpty();
    m_reasons.reset(hasReasons ? new Reasons{row.reason, row.coverReason, row.stripReason}
                               : nullptr);
    updateCodes();
}

NXVBLMODEL::NxMediaType NxEngineMedia::mediaType() const
{
    return NXVBLMODEL::NxMediaType(m_type);
}

QString NxEngineMedia::mediaId() const
{
    return QString::number(m_id);
}

bool NxEngineMedia::isUnavailable() const
{
    return m_presence >= NxPresence::Missing || readState() == NxReadState::Failed;
}

QString NxEngineMedia::unavailableReason() const
{
    if (m_presence >= NxPresence::Missing)
        return QCoreApplication::translate("NxEngineMedia", ReasonsOfPresence[size_t(m_presence)]);
    if (readState() != NxReadState::Failed)
        return {};
    const bool isTold = m_reasons && !m_reasons->read.isEmpty();
    return isTold ? m_reasons->read
                  : QCoreApplication::translate("NxEngineMedia", "The file cannot be read.");
}

bool NxEngineMedia::hasDuration() const
{
    return m_type != NXVBLMODEL::mtImage;
}

QDateTime NxEngineMedia::dateCreated() const
{
    for (const qint64 time : {m_facts.shot(), m_created, m_modified}) {
        if (isBelievable(time))
            return timeOf(time);
    }
    return {};
}

QDateTime NxEngineMedia::lastModified() const
{
    return timeOf(m_modified);
}

QDateTime NxEngineMedia::favouriteTime() const
{
    return timeOf(m_favourite);
}

QString NxEngineMedia::audioInfoText() const
{
    const NxStreamDescription *read = m_facts.streams();
    return read ? read->audioFormat : QString();
}

QString NxEngineMedia::cameraName() const
{
    const NxStreamDescription *read = m_facts.streams();
    return read ? read->camera : QString();
}

QString NxEngineMedia::thumbnailStripPath() const
{
    const bool isMade = stripState() == NxPictureState::Made && !fingerprint().isNull();
    if (!isMade || !folder())
        return {};
    const QString cache = folder()->category()->memory()->pictureFolder();
    return cache.isEmpty() ? cache
                           : cache + QLatin1Char('/')
                                 + NxPictureFile::name(fingerprint(), NxPictureKind::Strip);
}
