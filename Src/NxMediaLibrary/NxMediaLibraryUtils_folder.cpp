// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryUtils.h>

#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>

QList<INxAbstractMediaItem *> NxMediaLibraryUtils::extractItems(const INxFolderMedia *folder,
                                                                bool recursive)
{
    return extractMediaItems(getMediaItemsFromFolderMedia(folder, recursive, true));
}

QList<INxAbstractMediaItem *> NxMediaLibraryUtils::extractMediaItems(
    const QList<INxAbstractMedia *> &medias)
{
    QList<INxAbstractMediaItem *> items;
    items.reserve(medias.size());
    for (INxAbstractMedia *media : medias) {
        if (auto *item = dynamic_cast<INxAbstractMediaItem *>(media))
            items.append(item);
    }
    return items;
}

QList<INxAbstractMedia *> NxMediaLibraryUtils::getMediaItemsFromFolderMedia(
    const INxFolderMedia *folder, bool recursive, bool mediaOnly)
{
    return folder ? folder->items(recursive, mediaOnly) : QList<INxAbstractMedia *>();
}

INxFolderMedia *NxMediaLibraryUtils::findCanAddMediaFolder(INxFolderMedia *folder)
{
    while (folder && !folder->canAddMedia())
        folder = folder->parentFolder();
    return folder;
}

QString NxMediaLibraryUtils::getParentFolderName(const INxAbstractMedia *media)
{
    const INxFolderMedia *folder = media ? media->parentFolder() : nullptr;
    if (!folder)
        return {};
    return folder->isSearchFolder() ? QStringLiteral("Search") : folder->name();
}

bool NxMediaLibraryUtils::needConvertOldResource(const INxFolderMedia *folder)
{
    return folder && folder->needConvert();
}

bool NxMediaLibraryUtils::isSpecialFolder(const INxFolderMedia *folder)
{
    return folder && folder->isSpecial();
}

bool NxMediaLibraryUtils::isNonCommercial(const INxFolderMedia *)
{
    return false;
}
