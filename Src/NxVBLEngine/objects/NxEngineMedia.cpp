// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineMedia.h>

#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/NxMediaFileTypes.h>

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

// By NxPresence.
constexpr std::array<const char *, 5> Reasons = {
    "",
    "",
    QT_TRANSLATE_NOOP("NxEngineMedia", "The file is missing."),
    QT_TRANSLATE_NOOP("NxEngineMedia", "The drive does not answer."),
    QT_TRANSLATE_NOOP("NxEngineMedia", "The file cannot be opened."),
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
      m_used(record.used),
      m_kindCode(quint8(record.kindCode)),
      m_category(quint8(record.category)),
      m_importKind(quint8(record.importKind))
{
    setPlace(record.place);
    readSuffix();
}

NxEngineMedia::~NxEngineMedia() = default;

void NxEngineMedia::readSuffix()
{
    const NXVBLMODEL::NxSuffixFacts facts = NXVBLMODEL::suffixFacts(suffixOf(m_path));
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
    record.used = m_used;
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
    readSuffix();
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
    return m_presence >= NxPresence::Missing;
}

QString NxEngineMedia::unavailableReason() const
{
    return QCoreApplication::translate("NxEngineMedia", Reasons[size_t(m_presence)]);
}

bool NxEngineMedia::hasDuration() const
{
    return m_type != NXVBLMODEL::mtImage;
}

QDateTime NxEngineMedia::dateCreated() const
{
    return timeOf(m_created);
}

QDateTime NxEngineMedia::lastModified() const
{
    return timeOf(m_modified);
}

QDateTime NxEngineMedia::favouriteTime() const
{
    return timeOf(m_favourite);
}
