// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxFolderMediaManager.h>

#include <NxVBLModel/INxFolderMedia.h>

INxFolderMediaManager::~INxFolderMediaManager() = default;

INxFolderMedia *INxFolderMediaManager::searchFolder()
{
    return nullptr;
}

bool INxFolderMediaManager::addFolder(INxFolderMedia *, const QString &)
{
    return false;
}

bool INxFolderMediaManager::canRemoveFolder(INxFolderMedia *)
{
    return false;
}

bool INxFolderMediaManager::removeFolder(INxFolderMedia *)
{
    return false;
}

bool INxFolderMediaManager::renameFolder(INxFolderMedia *, const QString &)
{
    return false;
}

bool INxFolderMediaManager::moveFolder(INxFolderMedia *, INxFolderMedia *, int)
{
    return false;
}

QList<INxAbstractMedia *> INxFolderMediaManager::allMedia()
{
    return rootFolder() ? rootFolder()->items(true, true) : QList<INxAbstractMedia *>();
}

bool INxFolderMediaManager::registerObserver(INxMediaFolderEventObserver *)
{
    return false;
}

void INxFolderMediaManager::unregisterObserver(INxMediaFolderEventObserver *) {}

INxMediaItemManager *INxFolderMediaManager::itemManager()
{
    return nullptr;
}
