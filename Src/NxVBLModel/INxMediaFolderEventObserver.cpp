// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxMediaFolderEventObserver.h>

INxMediaFolderEventObserver::~INxMediaFolderEventObserver() = default;

void INxMediaFolderEventObserver::onBeforeAddFolderEvent(INxFolderMedia *, const int &, const int &)
{
}

void INxMediaFolderEventObserver::onAfterAddFolderEvent() {}

void INxMediaFolderEventObserver::onBeforeRemoveFolderEvent(INxFolderMedia *, const int &,
                                                            const int &)
{
}

void INxMediaFolderEventObserver::onAfterRemoveFolderEvent() {}

void INxMediaFolderEventObserver::onBeforeMoveFolderEvent() {}

void INxMediaFolderEventObserver::onAfterMoveFolderEvent() {}

void INxMediaFolderEventObserver::onFolderStateChangedEvent(INxFolderMedia *) {}
