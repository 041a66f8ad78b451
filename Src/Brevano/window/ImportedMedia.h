// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxImportReport.h>
#include <NxVBLModel/NxMediaRef.h>

#include <QHash>
#include <QMap>

class INxAbstractMediaItem;
struct NxFootageState;

/// The media that an import brought: how many of them are read, and which turned out unreadable.
///
/// Media may die; those that were unreadable stay on the list. GUI thread only.
class ImportedMedia
{
public:
    /// A new media of the import; it may have been read already.
    void add(INxAbstractMediaItem *item, const NxFootageState &state);
    /// A media that was there before the import is watched like a new one.
    void watch(INxAbstractMediaItem *item);
    /// A media was read, or could not be; true when that changes what appendTo() appends. Media
    /// that are not watched are passed over.
    bool noteRead(INxAbstractMediaItem *item, const NxFootageState &state);

    /// How many were added, dead ones included.
    [[nodiscard]] qint64 count() const { return m_count; }
    /// How many of them were read, in vain or not.
    [[nodiscard]] qint64 readCount() const;
    /// One line for each unreadable media, in the order in which that was found out.
    void appendTo(NxImportReport *report) const;

private:
    struct Unreadable
    {
        NxMediaRef media;
        NxImportReportLine line;
    };
    [[nodiscard]] bool isWaiting(const INxAbstractMediaItem *item);
    [[nodiscard]] bool isUnreadable(const INxAbstractMediaItem *item);
    void addUnreadable(INxAbstractMediaItem *item, const QString &reason);
    bool noteReadAgain(INxAbstractMediaItem *item, const NxFootageState &state);

    qint64 m_count = 0;
    QHash<const INxAbstractMediaItem *, NxMediaRef> m_waiting; // To be read.
    QMap<quint64, Unreadable> m_unreadable; // By serial.
    QHash<const INxAbstractMediaItem *, quint64> m_serials; // Of unreadable media.
    quint64 m_lastSerial = 0;
};
