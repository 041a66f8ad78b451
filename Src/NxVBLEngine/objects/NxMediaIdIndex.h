// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QtGlobal>

#include <vector>

class NxEngineMedia;

/// Media by id in 16 bytes each: a vector sorted by id. Ids grow, so new media are appended; a
/// load in another order is sorted once, at the first look-up.
class NXVBLENGINE_TEST_EXPORT NxMediaIdIndex
{
public:
    void reserve(size_t count) { m_entries.reserve(count); }
    void insert(qint64 id, NxEngineMedia *media);
    void remove(qint64 id);
    /// Null when unknown.
    [[nodiscard]] NxEngineMedia *find(qint64 id);
    /// All media, by id.
    [[nodiscard]] std::vector<NxEngineMedia *> all();

private:
    struct Entry
    {
        qint64 id;
        NxEngineMedia *media; // Null: removed from the index.
    };
    void sort();
    std::vector<Entry>::iterator place(qint64 id);

    std::vector<Entry> m_entries;
    size_t m_removed = 0;
    bool m_sorted = true;
};
