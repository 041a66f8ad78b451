// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxCloudResourceService.h>

#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

INxCloudResourceService::~INxCloudResourceService() = default;

INxCloudResourceService *INxCloudResourceService::getInstance()
{
    return NxMediaEngineDoor::engine() ? NxMediaEngineDoor::engine()->cloudService() : nullptr;
}
