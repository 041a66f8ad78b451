// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineResource.h>

NxEngineResource::NxEngineResource(const NxResourceEntry &entry) : m_entry(entry)
{
    setPlace(entry.listOrder);
}

NxEngineResource::~NxEngineResource() = default;

NxResourceRecord NxEngineResource::record() const
{
    return {m_entry.id, m_userName, m_favourite};
}

QString NxEngineResource::name() const
{
    return m_userName.isEmpty() ? m_entry.name : m_userName;
}

QString NxEngineResource::mediaId() const
{
    return QString::number(m_entry.id);
}

bool NxEngineResource::hasDuration() const
{
    return m_entry.type == NXVBLMODEL::mtAudio || m_entry.type == NXVBLMODEL::mtVideoAudio;
}

QDateTime NxEngineResource::favouriteTime() const
{
    return m_favourite == NxNoTime ? QDateTime()
                                   : QDateTime::fromMSecsSinceEpoch(m_favourite, Qt::UTC);
}
