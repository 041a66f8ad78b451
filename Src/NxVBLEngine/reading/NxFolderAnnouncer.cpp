// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxFolderAnnouncer.h>

#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxSlice.h>

#include <QPointer>

#include <algorithm>

NxFolderAnnouncer::NxFolderAnnouncer(NxProjectMemory *memory)
    : m_memory(memory)
{
    m_clock.start();
    m_laterTimer.setSingleShot(true);
    connect(&m_laterTimer, &QTimer::timeout, this, &NxFolderAnnouncer::announce);
}

NxFolderAnnouncer::~NxFolderAnnouncer() = default;

void NxFolderAnnouncer::note(const NxEngineMedia *media)
{
    if (media->folder())
        m_noted.insert(Key(media->category(), media->folderId()));
}

void NxFolderAnnouncer::findDue()
{
    const qint64 now = m_clock.elapsed();
    QVector<QPair<int, Key>> due; // With their depth.
    for (auto key = m_noted.begin(); key != m_noted.end();) {
        const auto told = m_lastTold.constFind(*key);
        if (told != m_lastTold.constEnd() && now - *told < ShortestInterval) {
            ++key;
            continue;
        }
        if (const NxEngineFolder *folder = m_memory->category(key->first)->folder(key->second))
            due.append(qMakePair(-folder->depth(), *key));
        key = m_noted.erase(key);
    }
    std::sort(due.begin(), due.end());
    for (const auto &[depth, key] : qAsConst(due)) {
        m_lastTold.insert(key, now);
        m_due.push_back(key);
    }
}

void NxFolderAnnouncer::announce()
{
    const QPointer<NxFolderAnnouncer> self(this);
    const NxSlice slice;
    if (m_due.empty())
        findDue();
    while (!m_due.empty() && !slice.isOver()) {
        const Key key = m_due.front();
        m_due.pop_front();
        tell(key);
        if (!self)
            return; // Whoever was told has closed the project.
    }
    if (isAnythingNoted())
        m_laterTimer.start(m_due.empty() ? ShortestInterval : 0);
}

void NxFolderAnnouncer::tell(const Key &key) const
{
    NxEngineCategory *category = m_memory->category(key.first);
    NxEngineFolder *folder = category->folder(key.second); // An observer may remove one.
    if (!folder)
        return;
    category->itemObservers.tell([folder](INxMediaItemEventObserver *observer) {
        observer->onAllMediaChangedFinishEvent(folder);
    });
}
