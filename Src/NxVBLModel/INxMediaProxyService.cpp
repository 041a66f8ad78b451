// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxMediaProxyService.h>

#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

INxMediaProxyService::~INxMediaProxyService() = default;

INxMediaProxyService *getMediaProxyService()
{
    INxMediaEngine *engine = NxMediaEngineDoor::engine();
    return engine ? engine->proxyService() : nullptr;
}
