// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxMediaIdIndex.h>

#include <algorithm>

void NxMediaIdIndex::insert(qint64 id, NxEngineMedia *media)
{
    m_sorted = m_sorted && (m_entries.empty() || m_entries.back().id < id);
    m_entries.push_back({id, media});
}

void NxMediaIdIndex::remove(qint64 id)
{
    const auto entry = place(id);
    if (entry == m_entries.end() || !entry->media)
        return;
    entry->media = nullptr;
    if (++m_removed * 2 <= m_entries.size())
        return;
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(),
                                   [](const Entry &candidate) { return !candidate.media; }),
                    m_entries.end());
    m_removed = 0;
}

NxEngineMedia *NxMediaIdIndex::find(qint64 id)
{
    const auto entry = place(id);
    return entry == m_entries.end() ? nullptr : entry->media;
}

std::vector<NxEngineMedia *> NxMediaIdIndex::all()
{
    sort();
    std::vector<NxEngineMedia *> media;
    media.reserve(m_entries.size());
    for (const Entry &entry : m_entries) {
        if (entry.media)
            media.push_back(entry.media);
    }
    return media;
}

void NxMediaIdIndex::sort()
{
    if (m_sorted)
        return;
    std::sort(m_entries.begin(), m_entries.end(),
              [](const Entry &a, const Entry &b) { return a.id < b.id; });
    m_sorted = true;
}

std::vector<NxMediaIdIndex::Entry>::iterator NxMediaIdIndex::place(qint64 id)
{
    sort();
    const auto entry = std::lower_bound(
        m_entries.begin(), m_entries.end(), id,
        [](const Entry &candidate, qint64 wanted) { return candidate.id < wanted; });
    return entry != m_entries.end() && entry->id == id ? entry : m_entries.end();
}
