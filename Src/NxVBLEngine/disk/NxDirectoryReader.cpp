// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/disk/NxDirectoryReader.h>

#include <algorithm>

void NxDirectoryReader::sort(std::vector<NxDirectoryEntry> *entries)
{
    struct Keyed
    {
        QString folded;
        NxDirectoryEntry entry;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(entries->size());
    for (NxDirectoryEntry &entry : *entries) {
        QString folded = entry.name.toCaseFolded();
        keyed.push_back({std::move(folded), std::move(entry)});
    }
    std::sort(keyed.begin(), keyed.end(), [](const Keyed &a, const Keyed &b) {
        const int order = a.folded.compare(b.folded);
        return order != 0 ? order < 0 : a.entry.name < b.entry.name;
    });
    std::transform(keyed.begin(), keyed.end(), entries->begin(),
        [](Keyed &each) { return std::move(each.entry); });
}
