// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxMediaIdIndex.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>

#include <QVector>

void NxProjectMemory::setFootage(NxEngineMedia *media, const NxFootageRecord &record)
{
    NxFootageRow row = NxFootageRow::of(record);
    row.media = media->id();
    const NxStreamDescription *streams =
        row.state == NxReadState::Read ? m_descriptions.of(record.facts.streams) : nullptr;
    const NxFootageRow before = media->footageRow();
    const bool sameStreams = streams == media->streams();
    if (sameStreams && row == before)
        return;
    media->setFootage(row, streams);
    if (!m_readOnly)
        enqueue(NxStoreEntry::Footage{{media->footage()}});
    if (!sameStreams || !row.looksLike(before))
        announce(media);
}

void NxProjectMemory::setFootageAside(NxEngineMedia *media)
{
    if (media->footageRow().isBlank())
        return;
    m_footageAside.insert({media->id(), media->sourcePath()}, media->footage());
    NxFootageRow blank;
    blank.media = media->id();
    media->setFootage(blank, nullptr);
    enqueue(NxStoreEntry::Footage{{media->footage()}});
}

void NxProjectMemory::takeFootageBack(NxEngineMedia *media)
{
    const auto aside = m_footageAside.constFind({media->id(), media->sourcePath()});
    if (aside == m_footageAside.constEnd())
        return;
    const NxFootageRecord record = *aside;
    setFootage(media, record); // A file that changed meanwhile is read again, as any other.
}

void NxProjectMemory::loadFootage(NxProjectContents *contents)
{
    QVector<const NxStreamDescription *> descriptions;
    descriptions.reserve(int(contents->streams.size()));
    for (const NxFootageStreams &streams : contents->streams)
        descriptions.append(m_descriptions.of(streams));
    for (const NxFootageRow &row : contents->footage) {
        NxEngineMedia *known = media(row.media);
        const NxStreamDescription *streams = descriptions.value(row.streams, nullptr);
        if (known && (row.state == NxReadState::Read) == (streams != nullptr))
            known->setFootage(row, streams);
    }
}
