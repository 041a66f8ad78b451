// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxMediaItemManager.h>

INxMediaItemManager::~INxMediaItemManager() = default;

NXVBLMODEL::NxMediaCategoryType INxMediaItemManager::categoryType() const
{
    return NXVBLMODEL::mctNone;
}

bool INxMediaItemManager::addMediaItems(const QList<INxAbstractMedia *> &)
{
    return false;
}

bool INxMediaItemManager::addMediaItems(INxFolderMedia *, const QList<INxAbstractMedia *> &)
{
    return false;
}

bool INxMediaItemManager::removeMediaItems(INxFolderMedia *, const QList<INxAbstractMedia *> &)
{
    return false;
}

bool INxMediaItemManager::moveMediaItems(INxFolderMedia *, INxFolderMedia *,
                                         const QList<INxAbstractMedia *> &)
{
    return false;
}

bool INxMediaItemManager::renameMediaItem(INxAbstractMedia *, const QString &)
{
    return false;
}

bool INxMediaItemManager::setFavourite(INxAbstractMedia *, bool)
{
    return false;
}

INxFolderMedia *INxMediaItemManager::currentRoot() const
{
    return nullptr;
}

void INxMediaItemManager::refresh(INxFolderMedia *) {}

void INxMediaItemManager::resetResourceLoader(INxFolderMedia *) {}

bool INxMediaItemManager::relinkMedia(INxAbstractMedia *, const QString &)
{
    return false;
}

void INxMediaItemManager::onResourceReply(const ResourceLoadReplyInfo *) {}

INxMediaManager *INxMediaItemManager::mediaManager() const
{
    return nullptr;
}

void INxMediaItemManager::removeDownloadRecords(INxFolderMedia *,
                                                const QList<INxAbstractMediaItem *> &)
{
}

qint64 INxMediaItemManager::readDuration(const QString &) const
{
    return -1;
}
