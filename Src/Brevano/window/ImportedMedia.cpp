// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ImportedMedia.h>

#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/NxFolderPath.h>

void ImportedMedia::add(INxAbstractMediaItem *item, const NxFootageState &state)
{
    ++m_count;
    watch(item);
    (void)noteRead(item, state);
}

void ImportedMedia::watch(INxAbstractMediaItem *item)
{
    if (!isUnreadable(item))
        m_waiting.insert(item, NxMediaRef(item));
}

bool ImportedMedia::noteRead(INxAbstractMediaItem *item, const NxFootageState &state)
{
    if (state.facts == NxFootageStatus::Waiting)
        return false;
    if (isUnreadable(item))
        return noteReadAgain(item, state);
    if (!isWaiting(item))
        return false;
    m_waiting.remove(item);
    if (state.facts != NxFootageStatus::Failed)
        return false;
    addUnreadable(item, state.reason);
    return true;
}

bool ImportedMedia::noteReadAgain(INxAbstractMediaItem *item, const NxFootageState &state)
{
    const quint64 serial = m_serials.value(item);
    if (state.facts != NxFootageStatus::Failed) {
        m_serials.remove(item);
        m_unreadable.remove(serial);
        return true;
    }
    QString &reason = m_unreadable[serial].line.reason;
    const bool isOther = reason != state.reason;
    reason = state.reason;
    return isOther;
}

void ImportedMedia::addUnreadable(INxAbstractMediaItem *item, const QString &reason)
{
    Unreadable unreadable;
    unreadable.media = item;
    unreadable.line = {item->sourcePath(), NxImportVerdict::Unreadable, reason,
                       NxFolderPath::of(item->parentFolder())};
    m_unreadable.insert(++m_lastSerial, unreadable);
    m_serials.insert(item, m_lastSerial);
}

bool ImportedMedia::isWaiting(const INxAbstractMediaItem *item)
{
    const auto found = m_waiting.find(item);
    if (found == m_waiting.end())
        return false;
    if (found->get() == item)
        return true;
    m_waiting.erase(found); // Another media lives where that one died.
    return false;
}

bool ImportedMedia::isUnreadable(const INxAbstractMediaItem *item)
{
    const auto found = m_serials.find(item);
    if (found == m_serials.end())
        return false;
    if (m_unreadable.value(*found).media.get() == item)
        return true;
    m_serials.erase(found); // Another media lives where that one died.
    return false;
}

qint64 ImportedMedia::readCount() const
{
    return m_count - m_waiting.size();
}

void ImportedMedia::appendTo(NxImportReport *report) const
{
    report->lines.reserve(report->lines.size() + m_unreadable.size());
    for (const Unreadable &unreadable : m_unreadable)
        report->lines.append(unreadable.line);
    report->unreadable += m_unreadable.size();
}
