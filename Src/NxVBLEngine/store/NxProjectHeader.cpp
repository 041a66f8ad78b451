// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectHeader.h>

#include <NxVBLEngine/store/NxProjectSchema.h>
#include <NxVBLEngine/store/NxStoreCause.h>

#include <QCoreApplication>
#include <QFile>
#include <QtEndian>

#include <cerrno>

namespace {

constexpr char Magic[] = "SQLite format 3"; // With the zero at its end.

// Where SQLite keeps what we ask, in bytes from the beginning.
constexpr int PageSizeOffset = 16;
constexpr int ChangeCounterOffset = 24;
constexpr int PageCountOffset = 28;
constexpr int UserVersionOffset = 60;
constexpr int ApplicationIdOffset = 68;
constexpr int CountedAtOffset = 92;

quint32 number(const QByteArray &bytes, int offset)
{
    return qFromBigEndian<quint32>(bytes.constData() + offset);
}

QString sentence(const char *text)
{
    return QCoreApplication::translate("NxProjectStore", text);
}

NxError notAProject(const QString &path, const char *why)
{
    return NxStoreCause::error(path, sentence("is not a Brevano project: %1").arg(sentence(why)));
}

qint64 neededSizeOf(const QByteArray &bytes)
{
    // The page count is only maintained by programs that also write this copy of the counter.
    if (number(bytes, ChangeCounterOffset) != number(bytes, CountedAtOffset))
        return 0;
    const qint64 raw = qFromBigEndian<quint16>(bytes.constData() + PageSizeOffset);
    const qint64 pageSize = raw == 1 ? 65536 : raw;
    return pageSize * number(bytes, PageCountOffset);
}

} // namespace

NxResult<NxProjectHeader> NxProjectHeader::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return NxStoreCause::error(path, NxStoreDeed::Open, NxStoreCause::ofSystem(errno));
    const QByteArray bytes = file.read(Size);
    if (bytes.isEmpty() && file.error() != QFile::NoError)
        return NxStoreCause::error(path, NxStoreDeed::Read, NxStoreCause::ofSystem(errno));

    if (bytes.isEmpty())
        return notAProject(path, QT_TRANSLATE_NOOP("NxProjectStore", "the file is empty"));
    if (bytes.count('\0') == bytes.size())
        return NxStoreCause::error(
            path, sentence(QT_TRANSLATE_NOOP("NxProjectStore",
                                             "is damaged: its beginning holds only zeros")));
    const bool isDatabase = bytes.startsWith(QByteArray(Magic, sizeof Magic));
    if (!isDatabase || bytes.size() < Size)
        return notAProject(path, QT_TRANSLATE_NOOP("NxProjectStore", "it is another kind of file"));
    if (number(bytes, ApplicationIdOffset) != NxProjectSchema::ApplicationId)
        return notAProject(
            path, QT_TRANSLATE_NOOP("NxProjectStore", "it is a database of another program"));

    NxProjectHeader header;
    header.version = number(bytes, UserVersionOffset);
    if (header.version > NxProjectSchema::currentVersion())
        return NxProjectSchema::newerVersion(path, header.version);
    header.neededSize = neededSizeOf(bytes);
    header.fileSize = file.size();
    return header;
}
