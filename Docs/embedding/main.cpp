// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "memoryengine.h"

#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxVBLModel/INxProjectManager.h>
#include <NxVBLModel/NxMediaEngineDoor.h>
#include <NxVBLModel/NxObserverConnector.h>

#include <cstdio>

struct Watcher final : INxMediaItemEventObserver
{
    void onAfterAddItemEvent(INxFolderMedia *, INxAbstractMedia *m) override { in += m->name(); }
    void onAfterRemoveItemEvent(INxFolderMedia *, INxAbstractMedia *m) override { out = m->name(); }
    QStringList in;
    QString out;
};

int main()
{
    MemoryEngine engine;
    const NxMediaEngineDoor door(&engine);
    INxMediaLibrary *library = INxProjectManager::getInstance()->currentProject()->mediaLibrary();
    INxMediaManager *media = library->mediaManager(NXVBLMODEL::mctMedia);
    INxFolderMedia *section = media->folderManager()->folder(NXVBLMODEL::fidRoot);
    auto *day = new MemoryFolder(1001, QStringLiteral("Day 1"), section); // Owned by the section.
    Watcher watcher;
    const NxObserverConnectorT<INxMediaItemManager, INxMediaItemEventObserver> connector(
        media->itemManager(), &watcher);
    const QString beach = QStringLiteral("beach.mp4"), palm = QStringLiteral("palm.mov");
    const QString wave = QStringLiteral("wave.mp4");
    media->itemManager()->addMediaItems(section, {new MemoryMedia(beach)});
    media->itemManager()->addMediaItems(day, {new MemoryMedia(palm), new MemoryMedia(wave)});
    media->itemManager()->removeMediaItems(day, {section->findMediaByPath(wave, true)});

    QStringList rows;
    for (const INxAbstractMedia *row : section->items(true, false))
        rows += row->name();
    std::puts(qUtf8Printable(rows.join(QLatin1Char('\n'))));
    const bool isTold = watcher.in == QStringList{beach, palm, wave} && watcher.out == wave;
    const bool isListed = rows == QStringList{beach, day->name(), palm};
    return isTold && isListed && NxMediaLibraryUtils::hasValidFile(rows) ? 0 : 1;
}
